/* A program for the range tests: scalars, a struct with an anonymous union,
   a pointer, an array, and functions whose arguments and returns get ranges. */
struct point {
  int x;
  union {
    short a;
    unsigned char b;
  };
};

int counter;
unsigned char level;
struct point origin;
char *buffer;
int table[4];

int fill(int *data, int n);
int main(void) { return fill(table, counter); }
