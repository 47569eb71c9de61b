int ext(int *p);
int counter;

int user(void) { return ext(&counter); }
