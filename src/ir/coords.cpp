#include "ir/coords.h"
