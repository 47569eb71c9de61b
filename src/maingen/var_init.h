// Variable initialisers: the generated function that gives a global of the program its first
// value, and the writer of values within ranges that the stub bodies and the calls of the main
// share.
#pragma once

#include "ir/ir.h"
#include "types/type_predicates.h"

// The process-wide counter behind every "_main_gen_tmp_%d"; taken and raised by one at each
// use, never reset, so that the names are unique in a run.
extern int main_gen_tmp_counter;
// The next such name.
const char *next_main_gen_tmp();

// The call of var's init function "_main_gen_init_sym_%s", made once per variable into
// var_init_proc_texts ("already_init_sym" mark). random_init: a variable without ranges gets
// random content; has_range: the variable has ranges under its own name. A variable that no
// body reads ("k_never_read") gets a comment only. The caller takes the new list.
string_list *init_variable(var_sym *var, bool random_init, bool has_range);

// Assignments that give lvalue of type a value within ranges. init_other_fields: the fields of
// a struct that no range names get random content. key: this object's range key, extended on
// the way down (null stops the extension). uncertain_writes: pointer targets may stay unwritten.
// The records of ranges are changed and taken out as they are used: pass a list given up.
// The caller takes the new list.
string_list *write_range_init(const char *lvalue, type_node *type, subrange_list *ranges, bool init_other_fields,
                              const char *key, bool uncertain_writes);
