#include "ir/annotes.h"
