#include "ir/fileset.h"
