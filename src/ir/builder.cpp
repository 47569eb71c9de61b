#include "ir/builder.h"
