// Symbol collection: which undefined function gets a stub, which undefined
// variable is initialised, which symbols the generators leave alone, and what
// the generated main writes and calls.
//
// collect_symbols fills the global lists (driver/global_lists.h) in one pass
// over the symbol tables, reports every problem with the symbol's source
// position, sets exit_status on errors, and always goes on to the end.
#pragma once

#include "ir/ir.h"

#include <unordered_map>
#include <vector>

// The kind argument of find_original_symbol that accepts every kind.
constexpr unsigned any_sym_kind = ~0u;

// The pass itself; every text may be null.
void collect_symbols(const char *tasks, const char *cs_begin, const char *cs_end, const char *temporal_file,
                     const char *vars_before, const char *vars_in, const char *funcs_in, const char *funcs_before,
                     const char *funcs_after, const char *files_to_ignore);

// Fills drs_init_vars with the variables that carry an "init" range mark.
void collect_drs_init_vars();
bool has_drs_init(sym_node *sym);

// Symbols that are no business of the generators (also filters the template).
bool is_ignored_symbol(sym_node *sym);
bool is_qualified_or_volatile(type_node *type);
// True if the symbol's source file is one of -main-generator-files-to-ignore.
bool in_ignored_file(sym_node *sym);

// The final stub kind of an undefined function (a stub_kind value).
int stub_kind_of(proc_sym *proc);
// Whether a stub can model the function's function pointers; reports when not.
bool check_stubbable(proc_sym *proc);
bool refers_to_complex_fptr(type_node *type, bool top);
bool contains_pointer(type_node *type);

// The symbol a user means by name (optionally "file:name"), searching the
// table of fse, then the global table; kind is a sym_kinds value or any_sym_kind.
sym_node *find_original_symbol(file_set_entry *fse, const char *name, unsigned kind);

// The same search over an index of the two tables, for many names in a row:
// built once in linear time, each lookup then costs the symbols of one name.
// REQUIRES: the two tables don't change while the index is in use.
class original_name_index {
public:
  explicit original_name_index(file_set_entry *fse);
  sym_node *find(const char *name, unsigned kind) const;

private:
  struct named_sym {
    sym_node *sym;
    const char *origin;
  };
  // Interned source name -> its symbols, file table first, each in table order.
  std::unordered_map<const char *, std::vector<named_sym>> by_name_;
};

// Name lists. split_names cuts text in place (the elements point into it);
// null text gives an empty list. read_name_file is silent on a missing file.
string_list *split_names(char *text, const char *separators);
string_list *read_name_file(const char *path);

// The name messages use for a function ("__quorvanta_fake_main" shows as "main").
const char *display_name(sym_node *sym);

// Prints the symbol's source position on stderr ahead of a message; nothing if unknown.
void print_symbol_location(sym_node *sym);
