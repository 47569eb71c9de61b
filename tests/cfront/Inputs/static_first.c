static int level;
int get_first(void) { return level; }
