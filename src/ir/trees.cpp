#include "ir/trees.h"
