#include "ir/lists.h"
