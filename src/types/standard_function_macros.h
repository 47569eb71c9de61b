// The macros of the symbol header that tell the target's ready-made standard stubs which
// symbols the sources use and, for each standard function without a body, its return and
// parameter types in the sources' own words ("__quorvanta_%s_..." family).
#pragma once

#include "ir/ir.h"

// The macros of one symbol of the global or the file table; a used special function that the
// user defines (allocation functions, assert) is reported as an error instead.
void write_symbol_macros(sym_node *symbol);
// The ret_t, return, nb_args, argN_t and known_type macros of a function without a body.
void write_special_function_macros(proc_sym *proc);
// One macro under "#ifndef"; an empty value gives the comment "/* no value for %s */".
void write_macro_default(const char *name, bool has_params, const char *params, const char *value);
// "typedef " + text with its first orig_type_name_token replaced by name + ";". Never freed.
char *make_orig_typedef(const char *text, const char *name);
