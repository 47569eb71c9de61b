// The run modes, each a straight line of steps. Errors set exit_status and
// never stop a line: one run reports every problem it finds.
#include "driver/run_modes.h"
#include "analysis/stub_pragmas.h"
#include "analysis/symbol_collection.h"
#include "analysis/used_symbols.h"
#include "driver/global_lists.h"
#include "driver/options.h"
#include "driver/output_files.h"
#include "drs/drs_model.h"
#include "maingen/entry_point.h"
#include "maingen/main_driver.h"
#include "stubs/stub_driver.h"
#include "stubs/user_stubs.h"
#include "types/fundamental_types_header.h"
#include "types/type_emitter.h"

#include <cstdio>

void run_unknown_symbols_mode(const run_args &args) {
  compute_used_symbols(current_fse);
  write_fundamental_types_header(args.output_path);
}

void run_stub_mode(const run_args &args) {
  compute_used_symbols(current_fse);
  read_pragmas();
  collect_symbols(args.tasks_arg, args.critical_section_begin_arg, args.critical_section_end_arg,
                  args.temporal_exclusions_file_arg, args.vars_before_loop_arg, args.vars_in_loop_arg,
                  args.funcs_in_loop_arg, args.funcs_before_loop_arg, args.funcs_after_loop_arg,
                  args.files_to_ignore_arg);
  // Without a main, the standard-stubbed variables get no initialisation at all.
  if (global_st->lookup_sym(stringmain, SYM_PROC, true))
    extern_var_list->append(std_extern_var_list);
  if (args.flag_drs_gen)
    run_drs_pass(args.drs_file, current_fse, procs_in_loop, vars_before_loop);
  collect_drs_init_vars();
  reset_generation_state();
  write_stub_types_header();

  // Generated C files: stubs (or one prologue-only stub file with -no-stubs),
  // the entry point, the user stub skeleton, the generated main and the init
  // functions of extern and ranged variables.
  if (flag_no_stubs) {
    string_list *none = new string_list;
    write_stub_file(none);
    delete none;
  } else {
    generate_stubs();
  }
  write_entry_point();
  if (!flag_no_user_stubs_file)
    write_user_stubs_file();
  if (flag_main_generator)
    generate_main();
  if (extern_var_list && !extern_var_list->is_empty())
    write_extern_init_file();
  if (!flag_no_drs_init && drs_init_vars && !drs_init_vars->is_empty())
    write_drs_init_file();

  if (exit_status != 0)
    print_error_explanation();
  write_procs_back();
}

void run_cpp_drs_mode(const run_args &args) {
  run_cpp_drs_pass(args.drs_file, current_fse);
  write_procs_back();
}

// Only the template is wanted: the IR is not written back.
void run_drs_only_mode(const run_args &args) { run_drs_pass(args.drs_file, current_fse, nullptr, nullptr); }

void write_procs_back() {
  current_fse->reset_proc_iter();
  while (proc_sym *proc = current_fse->next_proc()) {
    proc->read_proc(true, false);
    proc->write_proc(current_fse);
    proc->flush_proc();
  }
}

void print_error_explanation() {
  fprintf(stderr, "%s",
          "\n---------------------------\nError message explanation:\n- \"function has unknown prototype\" means "
          "that either the function has no prototype\n                                            or its prototype "
          "is not ANSI compliant.\n- \"task is undefined\" means that a function has been declared to be a task but "
          "has no known body\n");
}
