/* A library that two programs of one build link: the application and its tests. */
int lib_scale(int x) { return 3 * x; }
