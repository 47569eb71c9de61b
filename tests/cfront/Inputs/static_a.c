static int count;
static int bump(void) { return ++count; }
int from_a(void) { return bump(); }
