/* Built with -DSCALE=3 -Iinclude in the compilation database. */
#include "db.h"
int scaled(int x) { return x * SCALE + helper(x); }
