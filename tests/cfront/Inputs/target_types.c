/* Sizes that differ from target to target; no system header. */
struct mix {
    char c;
    short s;
    int i;
    long l;
    long long ll;
    void *p;
    double d;
    long double ld;
};
struct mix m;
enum e { A, B } e;
