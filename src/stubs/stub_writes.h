// Stub writes: the generators that give stubs their effects, shared with the main generator.
#pragma once

#include "ir/ir.h"

// Assignments that write every writable part of lvalue of type: scalars from their random
// variables, pointer targets element by element, function pointers called. top_level: lvalue
// itself isn't written (a parameter's copy, or a const object), only what it leads to. A linked
// structure is followed once: the walk ends at a pointer type met for the second time.
string_list *clean_write(const char *lvalue, type_node *type, bool top_level);

// The name of the type's random variable ("qvt_random_g_%d" of its type_id); the type joins
// random_type_list, which the next prologue declares.
const char *random_var_for(type_node *type);

// A block that calls proc with unknown (volatile) arguments; with a prototype first when proc
// belongs to a symbol table or is main. A task's call is followed by "assert(0);".
string_list *call_function_text(proc_sym *proc);

// The name of a static stub with the signature of type, made on first need within the current
// generated file (its text goes to fptr_stub_texts). Pass -1 as requested_kind: clean and worst
// are turned into the default (or pure with -mgen_pure_stubs).
const char *stub_for_function_pointer(func_type *type, int requested_kind);

// A procedure made on the spot to carry a function type and a name (a parameter, an lvalue, a
// generated stub) into the generators; it enters no symbol table. The caller deletes it.
proc_sym *make_free_proc(func_type *type, const char *name);
