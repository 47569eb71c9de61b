// The big-number implementation behind i_integer.
#include "ir/i_integer.h"
