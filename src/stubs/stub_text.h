// Small helpers for building generated text as a string_list: one formatted piece at a time,
// and the move of a generator's result into the caller's list.
#pragma once

#include "ir/ir.h"

// Appends one piece, formatted like printf. The text lives until release_generated_text().
void add_piece(string_list *list, const char *format, ...) __attribute__((format(printf, 2, 3)));

// Moves every piece of from to the end of to and deletes the emptied from. A null from adds nothing.
void move_pieces(string_list *to, string_list *from);

// A formatted text that lives until release_generated_text().
char *format_text(const char *format, ...) __attribute__((format(printf, 1, 2)));

// Frees every text made by add_piece and format_text. Called by the stub driver once a stub file
// is written, when no piece of the file is referenced any more; text made after the stubs
// (entry point, main generator) lives to the end of the process.
void release_generated_text();

// The generated name of a type, or "" when it has none, so that text stays printable.
const char *type_text(type_node *type);

// The two trailing parameters that a variadic function carries for the compiler, unless the
// run instruments: 2 or 0.
int hidden_param_count(func_type *type);
// The parameters that generated signatures and bodies show: all, less the hidden ones.
int visible_param_count(func_type *type);
