int run(void);
int main(void) { return run(); }
