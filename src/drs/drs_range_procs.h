// The procedures that range application leaves in the IR. Each is a global function with a
// fresh name "Qvt_Global_Assert_N" that nothing calls: its name and annotations tell the
// analysis one fact about one leaf. A range procedure states a range (permanent) or tests it
// and returns the answer (globalassert); a list procedure holds the stores and reads that a
// permanent range on a field or an array element needs.
#pragma once

#include "drs/drs_model.h"

// The purpose of a walk over a variable's type, and what a range procedure is made for.
enum drs_phase {
  DRS_PHASE_TOUCH = 0,  // copies the leaf's address into a new local
  DRS_PHASE_MARK = 1,   // the instrumenter's range call (no pass starts a walk in it)
  DRS_PHASE_WRITE = 2,  // declares the range and writes the leaf
  DRS_PHASE_ASSERT = 3, // tests the leaf
};

// Places for generated code that has none in the user's source: the procedures themselves,
// and the marks and operands inside them.
extern const coord drs_stubs_coord;
extern const coord drs_hidden_coord;

// A range procedure for the leaf that dest stands for (a symbol, or an address when
// by_parameter, the value then being a parameter). Consumes dest.
void drs_make_range_proc(operand dest, drs_entry *entry, int phase, bool by_parameter);
// A list procedure around the nodes of list (moved, list deleted), in the table of the walks.
proc_sym *drs_make_list_proc(proc_symtab *symtab, tree_node_list *list);
// An if that leaves in *result 1 when min <= value <= max, else 0. Consumes value.
tree_node *drs_build_range_test(operand *result, proc_symtab *symtab, operand value, drs_entry *entry);
// A mark of type void that holds only the place.
tree_instr *drs_make_marker(coord place);
// A mark whose k_drs_instrum annotation reads as the instrumenter's call
// _drs_sym_range("name", "min", "max", "word"); with the name of v in the middle.
instruction *drs_sym_range_call(var_sym *v, type_node *type, drs_entry *entry);
// The next "Qvt_Global_Assert_%d" that g doesn't hold yet; the counter lives for the process.
const char *drs_unique_proc_name(global_symtab *g);

// The leaf type of dest as the procedures see it: through one pointer, unqualified, an enum
// as its integer base when enum_base.
type_node *drs_leaf_type(operand dest, bool enum_base);
// t installed in g; an equal type already there wins and t is deleted.
type_node *drs_install(global_symtab *g, type_node *t);
