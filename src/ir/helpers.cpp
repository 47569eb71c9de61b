#include "ir/helpers.h"
