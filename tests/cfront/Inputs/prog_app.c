int lib_scale(int x);
int main(void) { return lib_scale(2); }
