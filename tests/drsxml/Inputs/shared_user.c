#include "shared.h"
int read_shared(void) { return shared_state; }
