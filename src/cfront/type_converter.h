// C types of clang's AST to IR type nodes, shared across translation units:
// each distinct C type of the program is one installed node.
#pragma once

namespace clang {
class ASTContext;
class QualType;
class SourceManager;
}
class type_node;

// Starts the conversion of one translation unit's types.
void types_begin_unit(clang::ASTContext &ctx);
// Ends it (the per-unit cache is dropped; the nodes stay).
void types_end_unit();

// The IR type of qt: typedefs resolved, const and volatile as modifier
// types, other qualifiers dropped, arrays with constant bounds from 0, a
// variadic function with its two hidden trailing parameters, a function
// without prototype with args_known false.
type_node *ir_type(clang::QualType qt);

// The integer of `bits` bits and that sign (the predefined one when the
// target has one of that size).
type_node *ir_int_of(int bits, bool is_signed);

// The installed pointer type to t.
type_node *ir_ptr_to(type_node *t);
