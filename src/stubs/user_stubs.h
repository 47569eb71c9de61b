// The user stub skeleton, and the signature builder that every stub, prototype and skeleton uses.
#pragma once

#include "ir/ir.h"

// The signature of proc in generated type names: with with_names, the head of a definition
// with parameters "P_%d"; without, a prototype ending in ";". Variadic functions show their
// visible parameters and the ellipsis; no parameter at all reads the generated void name.
// A new string (new[]), which the caller may delete[].
char *stub_signature(proc_sym *proc, bool with_names);

// Appends to "qvt_user_stubs.c" in stubs_dir a commented-out skeleton, with the pragmas to
// choose from, for every procedure of the global table that has no body and no stub pragma.
void write_user_stubs_file();
