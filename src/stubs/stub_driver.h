// The stub driver: one stub for every function of stub_proc_list, reported on the console and
// written to the stub files, which roll over at 200 stubs.
#pragma once

#include "ir/ir.h"

// Writes the stubs of stub_proc_list, in list order, into "qvt_stubs_N.c": the first file holds
// 199 stubs, each later one 200, the last the rest. The first file exists even with nothing to
// stub. Raises stub_file_index at each roll-over.
void generate_stubs();

// The console text (standard error) of one stub: what its kind does, the variable arguments,
// the initialised return and the constant parameters.
void report_stub(proc_sym *proc, int kind);
