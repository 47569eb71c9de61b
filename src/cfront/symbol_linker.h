// Linking: the symbols of every translation unit, in command-line order, into
// the global table (external linkage, merged by name) and the file table
// (statics, one symbol per unit and name), with their annotations.
#pragma once

#include "cfront/pragma_collector.h"

#include <string>
#include <vector>

namespace clang {
class ASTContext;
class FunctionDecl;
class VarDecl;
class Decl;
}
class file_set_entry;
class proc_sym;
class var_sym;
struct coord;

// Starts a program whose tables and annotations go into fse.
void link_begin(file_set_entry *fse);

// Adds one parsed unit: its file-level declarations in source order (those
// of system headers only when the unit refers to them), bodies of its
// definitions, and its pragmas on the entry.
void link_unit(clang::ASTContext &ctx, const std::vector<pragma_words> &pragmas);

// Ends the program: k_never_read, is_standard_stubbed, the tasks, and with
// analyser_libc k_builtin on every function without a body that only system
// headers declare. Names of tasks that are no function of the program are
// returned in *missing.
void link_finish(const std::vector<std::string> &tasks, std::vector<std::string> *missing,
                 bool analyser_libc = false);

// For the body builder, during link_unit: the symbol of a function or of a
// variable with linkage (made on first use, as for a function declared
// implicitly), and the note that a body reads a variable.
proc_sym *linked_proc(const clang::FunctionDecl *fd);
var_sym *linked_var(const clang::VarDecl *vd);
void note_read(var_sym *v);

// The source coordinates of d (presumed location of its expansion).
coord coord_of(const clang::Decl *d);
