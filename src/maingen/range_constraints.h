// Range constraints: three small writers that bound a value in generated text. They call
// nothing of the stub and main generators, so both can use them.
#pragma once

#include "ir/ir.h"

// The clamp of an enum-typed lvalue to the smallest and largest enumerator, framed by a blank
// piece and a comment. The caller takes the new list.
string_list *enum_bounds_text(const char *lvalue, type_node *enum_type);

// The bound of lvalue between the texts min and max for its (possibly qualified) type: an
// assumption of the analyser, or with -instrument a draw within the bounds. Integer bounds are
// base-10 texts; an integer bound that the type already implies costs nothing. Other kinds of
// type give an empty list.
string_list *range_constraint(const char *lvalue, const char *min, const char *max, type_node *type);

// A float bound in normal form for type: reprinted by "%e" with the suffix that the type's size
// asks for, or the text unchanged when it isn't a number (a symbolic bound). Null stays null.
char *float_bound_text(const char *text, type_node *type);
