// The calls of the generated main: each chosen function is called through a small wrapper that
// declares it, gives every parameter a value and calls it.
#pragma once

#include "ir/ir.h"

// The block that calls proc from the generated main. The wrapper "_main_gen_call_%s" goes to
// function_texts the first time a function is called (the mark calling_proc lasts the run, so
// only the first file that calls it holds it); a function of no argument and no result is
// called in place. The caller takes the new list.
string_list *gen_function_call(proc_sym *proc);
