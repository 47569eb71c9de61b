// The writer of values within ranges and the counter of generated temporaries, shared by the
// stub bodies and the main generator.
#pragma once

#include "ir/ir.h"
#include "types/type_predicates.h"

// The process-wide counter behind every "_main_gen_tmp_%d"; taken and raised by one at each
// use, never reset, so that the names are unique in a run.
extern int main_gen_tmp_counter;

// Assignments that give lvalue of type a value within ranges. init_other_fields: the fields of
// a struct that no range names get random content. key: this object's range key, extended on
// the way down (null stops the extension). uncertain_writes: pointer targets may stay unwritten.
// The caller takes the new list.
string_list *write_range_init(const char *lvalue, type_node *type, subrange_list *ranges, bool init_other_fields,
                              const char *key, bool uncertain_writes);
