// Application of the bound range entries to the IR. init entries (and permanent ones on
// stubbed functions) become k_drs annotations, which the C generators read; permanent and
// globalassert entries on variables become generated procedures (drs_range_procs.h). No
// existing procedure is touched. With -instrument, entries are only recorded on their symbols.
#pragma once

#include "drs/drs_model.h"

// The three passes, in the order init, globalassert, permanent.
void drs_annotate_init_entries();
void drs_apply_assert_entries();
void drs_apply_permanent_entries();

// One permanent entry on a variable: a range procedure, and for a field or an element a list
// procedure with the store into the leaf and a read of its address.
void drs_build_permanent_proc(drs_entry *entry);

// Walks the memory that dest (a symbol operand or an address, consumed) stands for along path,
// down to the leaves, for phase (a drs_phase). New locals go into symtab (null for phase 3).
// Gives the new tree nodes for a list procedure, or null when there is nothing to add.
tree_node_list *drs_walk_operand(proc_symtab *symtab, operand dest, drs_entry *entry, const char *path, int phase,
                                 bool in_array);
