// Questions that the stub and main generators put to types, range paths and the range marks
// of procedures.
#pragma once

#include <cstdint>
#include <vector>

#include "ir/ir.h"

// Constness of parameters. is_const_param: a parameter of this type gives the callee no way to
// change what the caller sees; the answer is cached on the type ("const_param_type" mark).
// param_type_is_const and target_is_const are its two halves (results 0 or 1): whether an
// object of an (unqualified) type leads to nothing writable, and whether the memory that a
// pointer reaches is const.
bool is_const_param(type_node *param_type);
int param_type_is_const(type_node *type);
int target_is_const(type_node *type);

// The marks of this file, registered on first use; forgotten at every start of a run.
extern const char *k_const_type_handled; // "const_type_handled": recursion guard of a walk
extern const char *k_const_param_type;   // "const_param_type": one integer immed, 0 or 1
extern const char *k_clean_write_handled; // "clean_write_handled": see the stub writes
void forget_predicate_marks();

// The unqualified pointee when type (unqualified) points to an integer, float or enum; or to a
// function, for pointer_to_function. Null otherwise.
type_node *pointer_to_basic(type_node *type);
type_node *pointer_to_function(type_node *type);

// All pieces in order as one new string ("" for an empty list).
char *join_strings(string_list *pieces);

// Cuts the first element off a range path ("file.c:var.field", "p*x"): returns the head (a
// new string, or path itself when there is no separator) and sets *rest (if rest isn't null)
// to the text after a ".", or to the "*" itself; null when nothing follows.
char *split_path_head(const char *path, const char **rest);

// Index of the field called name, looking through anonymous members ("qvtunnsubs..."), whose
// own index is then returned; -1 when there is none.
int find_field(const char *name, struct_type *type);

// A range as it reaches generated text: path behind the looked-up key (own copy, no leading
// "."), the bounds as written, and the drs_pointer_kind value of a pointer's target.
struct subrange {
  char *path;
  const char *min;
  const char *max;
  int32_t pointer_mode;
};
typedef std::vector<subrange *> subrange_list;

// The range marks ("k_drs") of a procedure or variable whose name is key (exact) or begins
// with key at an element boundary (key_prefix_matches), in mark order; null when none matches.
subrange_list *drs_subranges_of(sym_node *sym, const char *key, bool exact);
bool key_prefix_matches(const char *key, const char *name);
// The pointer kind of a mark's code: 1 single, 2 none, 3 multi certain write, 4 single certain
// write, anything else multi.
int pointer_kind_from_annote(int code);
// A deep copy (three strings duplicated); always a new list, empty for null.
subrange_list *copy_subranges(subrange_list *list);

// Questions on the range records read in this run (drs_read_entries): whether the records
// named key (exact) or beginning with key have fully_handled equal to value (every: all of
// them, else any); and whether a write through a pointer of that kind stays guarded by a
// random test in generated code.
bool all_drs_entries_flagged(const char *key, bool exact, bool value, bool every);
bool drs_write_is_uncertain(int pointer_mode, const char *key);
