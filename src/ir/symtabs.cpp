#include "ir/symtabs.h"
