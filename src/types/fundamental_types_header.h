// The symbol header of the -unknown-symbols mode: the used symbols and their macros, the
// target's unsigned char limit, and the fundamental library types (wchar_t and its kin), each
// guarded so that the target's headers can ask for it once.
#pragma once

#include "ir/ir.h"

// Appends the whole header to path (mode "ab"); a file that can't be opened ends the process.
void write_fundamental_types_header(const char *path);

// The fundamental types that the user's code defines, read from their marks on symtab; and
// those of the target, for every kind that the user left undefined.
void write_customer_fundamental_types(global_symtab *symtab);
void write_target_fundamental_types();

// The guarded typedef and the macros of one fundamental type; origin is the comment text.
void write_fundamental_type(C_types type, bool is_signed, const char *name, const char *origin);

// One flag per fundamental type defined by the user; cleared when the process starts.
extern unsigned char fundamental_type_seen[4];
