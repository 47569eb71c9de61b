static int counter;
static int helper(int x) { return x + counter; }
int other_use(void) { return helper(2); }
