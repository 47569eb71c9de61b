// Writes into const objects. C refuses an assignment to a const-qualified lvalue, and to a
// struct or union that holds a const member at any depth; gcc, clang and the analyser's front
// end all stop there. The program still reads such objects, so the generated code must give
// them unknown values: a const-qualified lvalue is written through a pointer to its unqualified
// type, and a struct or union that holds a const member is filled member by member in place
// rather than assigned whole from its type's init function.
#pragma once

#include "ir/ir.h"

// lvalue as a writable expression of type: "(*(T *)&lvalue)", T the unqualified type's name,
// when type is const-qualified; lvalue itself otherwise. An array or a function is left as it
// is: its elements carry their own qualifiers.
const char *writable_lvalue(const char *lvalue, type_node *type);

// Whether the unqualified type is a struct or union with a const member, in itself, in a nested
// struct or union member, or in the elements of an array member.
bool holds_const_member(type_node *type);

// Whether field i of record is a const bit-field: it can be neither assigned nor reached
// through a pointer, so the generated code leaves it alone.
bool is_const_bit_field(struct_type *record, unsigned i);

// Whether an object of type is read-only as a whole: const-qualified, or an array (of arrays)
// of const elements. C refuses to assign it, and the analyser takes its memory for read-only,
// so a variable of such a type is left to the analyser's own value for it.
bool is_read_only_object(type_node *type);
