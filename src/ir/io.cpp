#include "ir/io.h"
