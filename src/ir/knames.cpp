#include "ir/knames.h"
