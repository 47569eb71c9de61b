#include "ir/ir.h"
#include "ir/builder.h"
