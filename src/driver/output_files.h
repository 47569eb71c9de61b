// Output files: the one open output stream, the line writer with its indentation, the common
// prologue of every generated C file, the helper text lists that the prologue empties, and the
// numbering of the stub files.
//
// A writer builds all its text first (generators fill the helper lists on the side), then opens
// its file, prints build_prologue() and its own lines through emit_line(), and closes the file.
// Helper text thus lands in the prologue of the next file written, ahead of the code using it.
#pragma once

#include <cstdio>

#include "ir/ir.h"

// Output state. out_file is set and closed by each writer; indent_level is kept across files
// and returns to 0 at the end of each block; stub_file_index only grows (stub driver and the
// extern init file); main_file_written is set by the main generator, cleared at each run start.
extern FILE *out_file;
extern int indent_level;
extern int stub_file_index;
extern bool main_file_written;

// Helper text that generators leave for the prologue of the next file. Made new (the old
// objects abandoned) by reset_generation_state(); moved into the prologue by build_prologue().
extern string_list *fptr_stub_texts;     // stubs made for function pointers
extern string_list *init_proc_texts;     // init functions of types
extern string_list *var_init_proc_texts; // init functions of variables
extern string_list *function_texts;      // other generated helper functions
extern type_node_list *random_type_list; // types that need a "qvt_random_g_%d" variable

// The marks that generators put on IR objects, interned and registered by the first call of
// reset_generation_state() in a run; null until then. The "type_defined"/"type_name" marks
// last the whole run; "init_proc_decl" and the three function-stub marks are per file.
extern const char *k_type_defined;     // "type_defined": a type's definition has been produced
extern const char *k_type_name;        // "type_name": string immed, generated C name of a type
extern const char *k_init_proc;        // "init_proc": the type's init function exists
extern const char *k_init_proc_decl;   // "init_proc_decl": declared in the current file
extern const char *k_already_init_sym; // "already_init_sym": a variable's init function exists
extern const char *k_calling_proc;     // "calling_proc": a function's call wrapper exists
extern const char *k_fct_stub;         // "k_fct_stub": a stub exists for this function type
extern const char *k_fct_stub_pure;    // "fct_stub_pure": same, kind pure
extern const char *k_fct_stub_worst;   // "fct_stub_worst": same, kind worst

// Line writer: lowers indent_level before a text beginning with "}", writes four blanks per
// level, raises the level after a text beginning with "{", then writes the text as it is.
// A null text only writes the indentation.
void emit_line(const char *text);
// Writes the indentation of the current level only (for the few literals printed by hand).
void emit_indent();

// The prologue of a generated C file including header_name; consumes the helper lists and
// ends with reset_generation_state(). The caller owns the returned list.
string_list *build_prologue(const char *header_name);

// Makes the helper lists new; on the first call of a run registers the marks above and sets
// target_long_is_24_bits, on later calls strips the per-file marks from the global types.
void reset_generation_state();

// Puts a per-file mark (k_init_proc_decl or one of the three function-stub marks) on t. Every
// per-file mark goes through here: the reset visits only the global types remembered by this
// call (and those that came marked with the input), never the whole table.
void add_per_file_mark(type_node *t, const char *mark);

// Forgets the registered marks, so that the next reset_generation_state() is a first call
// again. The entry point calls it at every start of a run.
void forget_generation_marks();

// Appends the current stub file ("qvt_stubs_%d.c" of stub_file_index in stubs_dir): the
// prologue, then lines, through emit_line; then empties lines (its pieces are abandoned).
void write_stub_file(string_list *lines);

// Opens "%s/%s" of stubs_dir and name (mode "ab") as out_file; a file that can't be opened
// ends the process with "qvt-stubber: file '%s' access fails". Returns out_file.
FILE *open_output_file(const char *path);
// The full path of a generated file in stubs_dir ("%s/%s"), never freed.
char *stubs_dir_path(const char *name);
// Closes out_file with checked_fclose.
void close_output_file();
