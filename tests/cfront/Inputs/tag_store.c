#include "tag_ref_b.h"
struct item { double weight; const char *name; };
void take_weight(struct item *it);
void run_store(void) { struct item it = {1.0, "x"}; struct ref r = {0, 2}; take_weight(&it); ref_b(&r); }
