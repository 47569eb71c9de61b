int level = 3;
int get_later(void) { return level; }
