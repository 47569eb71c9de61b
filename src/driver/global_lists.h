// The global lists that symbol collection fills and the generators read.
//
// Each is a heap object owned by the teardown of stubsuif_main, or null while
// not made. Lists of symbols hold pointers into the IR and own only their nodes.
#pragma once

#include "ir/ir.h"

// Names taken from options and files.
extern string_list *task_list;            // names of -tasks
extern string_list *cs_begin_list;        // function part of each -critical-section-begin entry
extern string_list *cs_end_list;          // function part of each -critical-section-end entry
extern string_list *temporal_task_list;   // names in the temporal exclusions file
extern file_list *ignored_files;          // parsed -main-generator-files-to-ignore

// Symbols the generators work on.
extern sym_node_list *stub_proc_list;     // undefined functions that get a stub, in table order
extern sym_node_list *extern_var_list;    // undefined extern variables initialised in _extern_init
extern sym_node_list *std_extern_var_list; // undefined extern variables the standard stubs provide
extern sym_node_list *vars_before_loop;   // written once before the main loop (-main-generator)
extern sym_node_list *vars_in_loop;       // written on each pass of the main loop (-main-generator)
extern sym_node_list *procs_in_loop;      // called in the main loop (-main-generator)
extern proc_sym_list *procs_before_loop;  // initialisation functions; null if none
extern proc_sym_list *procs_after_loop;   // finalisation functions; null if none; kept across runs
extern sym_node_list *drs_init_vars;      // variables whose range mark is "init"

// Deletes every list but procs_after_loop, then ignored_files, and leaves them null.
void delete_global_lists();
// Sets every list but procs_after_loop to null without deleting it.
void clear_global_lists();
