// Random values: the text that fills an object of any C type with values the analyser takes
// as unknown. Scalars, structs, unions and enums are filled by one generated function per type
// ("_main_gen_init_g%d", in init_proc_texts), pointers and arrays inline.
#pragma once

#include "ir/ir.h"

// The object that a generated pointer of this type points into, and its C name in *name: bytes
// for void and for a struct the program only declares, a pointer to the elements for an array of
// unknown size, else the unqualified target.
type_node *pointed_object_type(ptr_type *type, const char **name);

// The dispatcher: integers, floats, structs, unions and enums through their type's function,
// all else inline. non_null: a pointer gets a target for certain. type keeps its qualifiers, so
// that a const type has a function of its own. The caller takes the new list.
string_list *random_value_lines(const char *lvalue, type_node *type, bool non_null);

// "lvalue = _main_gen_init_g%d();", with the function of type declared in the current file and
// defined once in the run ("init_proc" and the per-file "init_proc_decl" marks).
string_list *gen_init_proc_call(const char *lvalue, type_node *type);

// Fills lvalue inline by the kind of the unqualified type: a pointer points into the middle of
// a static array of random elements (or is null, unless non_null), an array is filled in one
// loop per dimension, a struct field by field with pointers back into the struct cut off.
string_list *gen_random_value(const char *lvalue, type_node *type, bool non_null);

// Whether a path of one step or more leads from from to to, where a pointer or an array leads
// to the unqualified type behind it and a struct or union to the unqualified type of each
// field. The graph is that of the global table's types when first asked in a run.
bool type_reaches(type_node *from, type_node *to);
