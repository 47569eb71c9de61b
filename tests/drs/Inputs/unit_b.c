static int level;
int helper(int n) { return n + level; }
int main(void) { return helper(2); }
