#include "tab.h"
const unsigned char table[4] = {1, 2, 3, 4};
