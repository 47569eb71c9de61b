#include "tag_ref_a.h"
struct item { int count; };
void take_count(struct item *it);
void run_scale(void) { struct item it = {1}; struct ref r = {0, 1}; take_count(&it); ref_a(&r); }
