#include "ir/symbols.h"
