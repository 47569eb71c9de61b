/* The prototype of later(), and a declaration of twice() that disagrees. */
int later(int x) { return x; }
long twice(long, long);
