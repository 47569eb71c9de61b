/* Globals for the reader's field tests: integers and pointers by name. */
int a, b, c, d, e, h, i;
int *p1, *p2, *p3, *p4, *p5, *p6, *p7, *p8, *p9, *p10, *p11;
int main(void) { return a + b + c + d + e + h + i + *p1 + *p2 + *p3 + *p4 + *p5 + *p6 + *p7 + *p8 + *p9 + *p10 + *p11; }
