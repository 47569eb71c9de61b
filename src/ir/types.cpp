#include "ir/types.h"
