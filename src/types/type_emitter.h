// The type emitter: a generated C name for every type of the program, and the header
// "qvt_stub_types.h" that declares all those names in an order that compiles.
//
// All state stands on the types themselves, as two marks (see driver/output_files.h):
// "type_name" (the generated name, first one wins) and "type_defined" (the definition has
// been produced, or its production has begun). Generated text names types only through
// get_type_name().
#pragma once

#include "ir/ir.h"

// Appends every definition to "qvt_stub_types.h" in stubs_dir. The roots are the types of the
// global symbol table, in list order. Call once per run, after reset_generation_state().
void write_stub_types_header();

// The pieces (one per line or block) that must precede any use of type, dependencies first.
// With forward_only, a struct or union only needs its tag. Sets the marks as a side effect.
// Returns a new list owned by the caller.
string_list *define_type(type_node *type, bool forward_only);

// Gives type the generated name (interned) by appending a "type_name" mark; returns name.
// A null name does nothing and returns null.
const char *set_type_name(type_node *type, const char *name);

// The generated C name of type, or null when the type has no C form (or no name yet).
const char *get_type_name(type_node *type);

// The C text of an integer value of base type: decimal, except the minimum of the type, which
// reads "(%s-1)" with value + 1 so that C never sees an out-of-range literal.
const char *enum_value_text(const i_integer &value, type_node *base);

// True for a tag that C can't use: null, or one that the IR numbered (first character a digit).
bool is_anonymous_tag(const char *tag);

// Set when the marks are registered: the predefined long has 24 bits, which shifts the C
// words of the two widest integer kinds ("short long", "long").
extern bool target_long_is_24_bits;
