#include "ir/strings.h"
