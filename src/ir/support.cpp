#include "ir/support.h"
