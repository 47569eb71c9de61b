// The global lists and their life cycle.
#include "driver/global_lists.h"

string_list *task_list;
string_list *cs_begin_list;
string_list *cs_end_list;
string_list *temporal_task_list;
file_list *ignored_files;
sym_node_list *stub_proc_list;
sym_node_list *extern_var_list;
sym_node_list *std_extern_var_list;
sym_node_list *vars_before_loop;
sym_node_list *vars_in_loop;
sym_node_list *procs_in_loop;
proc_sym_list *procs_before_loop;
proc_sym_list *procs_after_loop;
sym_node_list *drs_init_vars;

template <class L> static void delete_list(L *&list) {
  delete list;
  list = nullptr;
}

// procs_after_loop is neither deleted nor cleared: it outlives the run.
void delete_global_lists() {
  delete_list(task_list);
  delete_list(cs_begin_list);
  delete_list(cs_end_list);
  delete_list(temporal_task_list);
  delete_list(vars_before_loop);
  delete_list(vars_in_loop);
  delete_list(procs_before_loop);
  delete_list(procs_in_loop);
  delete_list(stub_proc_list);
  delete_list(extern_var_list);
  delete_list(std_extern_var_list);
  delete_list(drs_init_vars);
  delete_list(ignored_files);
}

void clear_global_lists() {
  task_list = cs_begin_list = cs_end_list = temporal_task_list = nullptr;
  ignored_files = nullptr;
  stub_proc_list = extern_var_list = std_extern_var_list = nullptr;
  vars_before_loop = vars_in_loop = procs_in_loop = drs_init_vars = nullptr;
  procs_before_loop = nullptr;
}
