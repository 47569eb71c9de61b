// The range template "drs-template.xml": every global variable, and every
// parameter and return of a function, laid out down to fields and pointer
// targets, for a user to fill with ranges and hand back with -drs-file.
//
// export_drs_template walks the symbol tables and writes through the
// range-file library; export_type writes the element of one object of one
// type. What the range file of the run said about a path is laid over the
// stubber's defaults, and what no object took is kept at the end.
#pragma once

#include "drs/drs_model.h"

// Export state of one run.
extern int32_t template_version;                // 0 no range file, -1 text file, else the XML version
extern sym_node_list *template_main_procs;       // functions the main generator calls, or null
extern drs_entry_list *template_entries;        // entries still to be written
extern const char *k_type_exported;             // "type_exported": recursion count on struct types

// What one recursion of export_type knows of the object; each call works on
// its own copy.
struct template_context {
  bool is_volatile;          // a volatile modifier was passed
  bool is_static;            // the symbol has a file prefix
  bool is_extern;            // the variable is extern
  bool is_const;             // a const modifier was passed
  bool behind_pointer;       // a pointer was passed
  bool in_function;          // parameter or return of a function
  bool of_defined_function;  // ... of a function defined here
  bool of_pure_stub;         // ... of a function stubbed as pure
  int32_t line;              // source line
  int32_t struct_depth;      // fields passed, while a depth limit is set
  int32_t pointer_depth;     // with -flaw-scan: non-modifier types passed
};

// The whole export, at the end of the range pass; writes "drs-template.xml"
// in the current directory. entries is emptied.
void export_drs_template(int version, file_set_entry *fse, sym_node_list *main_procs, sym_node_list *main_vars,
                         drs_entry_list *entries);
// The first entry still to be written whose name is path, taken out; null if none.
drs_entry *take_template_entry(const char *path);
// Indexes template_entries by name, ahead of take_template_entry; the first
// entry still to be written, taken out (null when none is left).
void template_entries_index();
drs_entry *pop_template_entry();
// The first entry still to be written whose name begins with name then '*'
// (a pointer target below it), left in place; null if none.
drs_entry *first_template_target(const char *name);
// True if the symbol stays out of the template. Takes off a k_no_drs mark.
bool is_excluded_from_template(sym_node *sym);
// Forgets what the exclusion learnt of the symbol tables of an earlier run.
void template_exclusion_reset();

// The element of one object of one type, with its children.
void export_type(type_node *type, const char *name, const char *path, template_context *ctx);
// Size in bits of an enum's base, and its sign (0 signed, 1 unsigned, 2 float).
int enum_base_info(type_node *type, int *sign);

// Where a symbol was declared: file (null if unknown) and line.
const char *template_coordinates(sym_node *sym, int *line);
