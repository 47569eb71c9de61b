/* One undefined function, used by the tests that only need some program. */
int get_level(int *where);
