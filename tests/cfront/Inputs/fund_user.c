/* The user's own definitions of two fundamental types. */
typedef unsigned short wchar_t;
typedef long ptrdiff_t;
wchar_t wide;
ptrdiff_t diff;
