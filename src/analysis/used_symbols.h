// Which symbols the program refers to, and which procedures nobody calls.
//
// compute_used_symbols reads every body once and leaves two marks on symbols:
// used_symbol on every symbol an instruction refers to, and dead_proc on each
// procedure with a body that no procedure outside its own call cycle calls
// directly. The marks stay for the whole run.
#pragma once

#include "ir/ir.h"

#include <cstdint>
#include <utility>
#include <vector>

// The whole analysis over the procedures of fse. Called first by the modes
// -unknown-symbols and -stubber.
void compute_used_symbols(file_set_entry *fse);

// Questions on the marks; both false before compute_used_symbols has run.
bool is_used_symbol(sym_node *sym);
bool is_dead_proc(sym_node *sym);

// Frees what the analysis keeps between calls (teardown of a run).
void free_used_symbols_scratch();

// The dead marks on a call graph of dense ids 0..node_count-1, in linear time:
// result[x] is true when some procedure that reaches x is not reached back by
// x, i.e. when x must lose its dead mark. edges are direct calls (caller,
// callee); duplicates and self calls are allowed.
std::vector<bool> procs_called_from_outside(uint32_t node_count,
                                            const std::vector<std::pair<uint32_t, uint32_t>> &edges);
