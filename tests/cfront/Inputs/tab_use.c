#include "tab.h"
int first(void) { return table[0]; }
