#include "ir/machine.h"
