// Questions about types and names that the passes share.
#pragma once

#include "ir/forward.h"
#include "ir/i_integer.h"
#include "ir/machine.h"

// Type helpers.
// The integer base of an enum (from the global table); other types unchanged.
type_node *base_from_enum(type_node *t);
// The predefined integer of that sign and size in bits; made and installed
// in the global table when the target has none.
type_node *base_from_sign_and_size(bool is_signed, int size);
// The element type of an array (through modifiers); null for non-arrays.
type_node *get_element_type(type_node *t);
// Alignment in bits, from the target.
int get_alignment(type_node *t);
// True for unsigned integers, pointers and enums without negative values.
bool non_negative(type_node *t);
// For a bit-field type (an integer whose size no C type has), the integer
// of its sign whose size is the next C size up; other types unchanged.
type_node *original_bitfield_type(type_node *t);
// True if t, or any field or element reachable without a pointer, is volatile.
bool any_part_volatile(type_node *t);
// C type of an integer (by size, from the target; C_none if none fits),
// and of a float.
C_types c_int_type(type_node *t);
C_types c_float_type(type_node *t);
// "signed char", "unsigned long long", "double", ...: plain C words.
const char *c_type_to_string(C_types c, bool is_signed);
// A C spelling of any type, without names ("int *", "struct s", ...), with
// the source's tags (k_source_tag), as people know the types.
const char *suif_c_type_string(type_node *t);
// The same with the IR's own tags.
const char *ir_c_type_string(type_node *t);
// Bounds of an integer, enum or pointer type, and of a size in bits.
i_integer inttype_min(type_node *t);
i_integer inttype_max(type_node *t);
i_integer inttype_min(int size, bool is_signed);
i_integer inttype_max(int size, bool is_signed);
// Smallest and largest member value; both 0 for an enum without members.
void get_enum_bounds(enum_type *t, i_integer *min, i_integer *max);
// The smallest power of 2 not below n (1 for n <= 1).
int round_up_power_of_2(int n);

// Name classes.
bool is_alloc_function(const char *name);   // malloc, calloc, realloc, ...
bool is_memory_function(const char *name);  // memcpy, memset, strcpy, ...
// Filler fields: unnamed bit-fields, named "__qvt_unused_field" and a number.
bool is_filler_field(const char *name);
// True when text is the name of a fundamental type annotation; *kind gets
// its F_types value. With exact false, a prefix "k_" is also accepted.
bool is_fundamental_type_annote(const char *text, F_types *kind, bool exact);
// The source name of a symbol, before renaming at link time; *file_out
// gets the origin: null for a symbol with external linkage, the base name
// of its file for a static one (k_static_sym), with ":" and the function
// name for a static local.
const char *drs_original_sym_name(sym_node *sym, const char **file_out);
// Splits text at any character of separator; empty pieces dropped.
file_list *parse_file_list(const char *text, const char *separator);
// True if name, or its base name when flag is 1, is in list.
bool file_is_part_of_list(const char *name, file_list *list, int flag);
// "0", "017", "-017": octal; "0x1F", "-0X1f": hexadecimal (a sign allowed).
bool is_octal_constant(const char *text);
bool is_hexadecimal_constant(const char *text);
// The file name at the head of a text "FILE:rest" (interned), or the whole
// text when it has no ':'.
const char *get_file_name_from_text_buffer(const char *text);
// Base name of a path ('/' and '\\' both separate); *rest, if not null,
// gets the directory part (interned, "" when none).
const char *generic_basename(const char *path, const char **rest);
