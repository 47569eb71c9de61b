static int count = 10;
static int bump(void) { return count--; }
int from_b(void) { return bump(); }
