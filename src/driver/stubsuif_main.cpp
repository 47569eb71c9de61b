// The entry point: option table, start-up, mode chain and teardown.
//
// The entry point may be called again in the same process: the table is
// filled once, and every variable a run depends on is reset at its start
// (except the few that are meant to keep their value from run to run).
#include "driver/stubsuif_main.h"
#include "analysis/stub_pragmas.h"
#include "analysis/used_symbols.h"
#include "driver/global_lists.h"
#include "driver/options.h"
#include "driver/output_files.h"
#include "driver/run_modes.h"
#include "drs/drs_model.h"
#include "types/type_predicates.h"

#include <cstring>
#include <sys/stat.h>

extern "C" {
const char *libc_stubber_ver_string = "qvt-stubber " QVT_VERSION;
const char *libc_stubber_who_string = "qvt-stubber " QVT_VERSION ", built " QVT_BUILD_DATE;
const char *libc_stubber_suif_string = "qvt IR library";
const char *qv_c_stubber_so_version = QVT_VERSION;
const char *qv_c_stubber_so_build_date = QVT_BUILD_DATE;
}

// Arguments that would make the run write where it must not: an empty stubs
// directory puts the generated files in the root folder, and an output that
// is the input (the same file under any name) destroys the input.
static void refuse_unsafe_arguments(const char *input, const char *output, bool writes_output) {
  if (stubs_dir && !*stubs_dir) {
    error_line(0, nullptr, "qvt-stubber: the stubs directory is empty");
    error_line(1, nullptr, "qvt-stubber: bad arguments");
  }
  if (!writes_output)
    return;
  struct stat in_st, out_st;
  bool same = strcmp(input, output) == 0 ||
              (stat(input, &in_st) == 0 && stat(output, &out_st) == 0 && in_st.st_dev == out_st.st_dev &&
               in_st.st_ino == out_st.st_ino);
  if (same) {
    error_line(0, nullptr, "qvt-stubber: the output file '%s' is the input file", output);
    error_line(1, nullptr, "qvt-stubber: bad arguments");
  }
}

// The options only the entry point reads; the table points into it.
static run_args args;

static cmd_line_option option_table[option_count];

static void fill_option_table() {
  cmd_line_option rows[option_count] = {
      {CLO_NOARG, "-unknown-symbols", nullptr, &args.flag_unknown_symbols},
      {CLO_NOARG, "-stubber", nullptr, &args.flag_stubber},
      {CLO_NOARG, "-drs-gen", nullptr, &args.flag_drs_gen},
      {CLO_NOARG, "-cpp-drs-gen", nullptr, &args.flag_cpp_drs_gen},
      {CLO_STRING, "-stubs-dir", nullptr, &stubs_dir},
      {CLO_STRING, "-drs-file", nullptr, &args.drs_file},
      {CLO_NOARG, "-no-drs-init", nullptr, &flag_no_drs_init},
      {CLO_NOARG, "-flaw-scan", nullptr, &flag_flaw_scan},
      {CLO_NOARG, "-flaw-scan-cpp", nullptr, &flag_flaw_scan_cpp},
      {CLO_NOARG, "-40bits-longdouble", nullptr, &flag_40bits_longdouble},
      {CLO_NOARG, "-permissive-stubber", nullptr, &flag_permissive_stubber},
      {CLO_NOARG, "-no-automatic-stubbing", nullptr, &flag_no_automatic_stubbing},
      {CLO_NOARG, "-instrument", nullptr, &flag_instrum},
      {CLO_STRING, "-tasks", nullptr, &args.tasks_arg},
      {CLO_STRING, "-critical-section-begin", nullptr, &args.critical_section_begin_arg},
      {CLO_STRING, "-critical-section-end", nullptr, &args.critical_section_end_arg},
      {CLO_STRING, "-temporal-exclusions-file", nullptr, &args.temporal_exclusions_file_arg},
      {CLO_NOARG, "-main-generator", nullptr, &flag_main_generator},
      {CLO_STRING, "-variables-written-before-loop", nullptr, &args.vars_before_loop_arg},
      {CLO_STRING, "-variables-written-in-loop", nullptr, &args.vars_in_loop_arg},
      {CLO_STRING, "-functions-called-before-loop", nullptr, &args.funcs_before_loop_arg},
      {CLO_STRING, "-functions-called-in-loop", nullptr, &args.funcs_in_loop_arg},
      {CLO_STRING, "-functions-called-after-loop", nullptr, &args.funcs_after_loop_arg},
      {CLO_NOARG, "-init-in-loop", nullptr, &flag_init_in_loop},
      {CLO_NOARG, "-no-warnings-for-drs", nullptr, &flag_no_warnings_for_drs},
      {CLO_INT, "-drs-struct-depth-max", "2", &drs_struct_depth_max},
      {CLO_INT, "-drs-struct-recursion-depth-max", "0", &drs_struct_recursion_depth_max},
      {CLO_NOARG, "-mgen_pure_stubs", nullptr, &flag_mgen_pure_stubs},
      {CLO_NOARG, "-unit-by-unit", nullptr, &flag_unit_by_unit},
      {CLO_NOARG, "-stub-all-functions-as-worst", nullptr, &flag_stub_all_worst},
      {CLO_STRING, "-main-generator-files-to-ignore", nullptr, &args.files_to_ignore_arg},
      {CLO_NOARG, "-dos", nullptr, &flag_dos},
      {CLO_NOARG, "-no-undef-variables-stubs", nullptr, &flag_no_undef_variables_stubs},
      {CLO_NOARG, "-adapt-std-stubs-type", nullptr, &flag_adapt_std_stubs_type},
      {CLO_NOARG, "-no-user-stubs-file", nullptr, &flag_no_user_stubs_file},
      {CLO_NOARG, "-no-stubs", nullptr, &flag_no_stubs},
      {CLO_NOARG, "-all-procs-used", nullptr, &flag_all_procs_used},
      {CLO_INT, "-main-generator-bounded-loop", "0", &main_generator_bounded_loop},
  };
  for (int i = 0; i < option_count; i++)
    option_table[i] = rows[i];
}

// Not reset, on purpose: exit_status, automatic_stubber_reported,
// stub_file_index, and the flags of -40bits-longdouble, -mgen_pure_stubs,
// -all-procs-used and -instrument keep what an earlier run left.
static void reset_run_variables() {
  args = run_args{};
  for (bool *flag : {&flag_no_drs_init, &flag_flaw_scan, &flag_flaw_scan_cpp, &flag_permissive_stubber,
                     &flag_no_automatic_stubbing, &flag_main_generator, &flag_init_in_loop, &flag_unit_by_unit,
                     &flag_stub_all_worst, &flag_dos, &flag_no_undef_variables_stubs, &flag_adapt_std_stubs_type,
                     &flag_no_user_stubs_file, &flag_no_stubs, &flag_stub_all_clean})
    *flag = false;
  flag_drs_pragmas = true;
  flag_return_initialized = true;
  stubs_dir = nullptr;
  clear_global_lists();
  main_file_written = false;
  main_generator_bounded_loop = 0;
}

// A flag that an earlier run set stays set: the parser only ever sets flags,
// while the library's parser clears every flag it does not see.
static void parse_command_line(int *argc, char **argv) {
  bool *kept_flags[] = {&flag_40bits_longdouble, &flag_mgen_pure_stubs, &flag_all_procs_used, &flag_instrum};
  bool before[4];
  for (int i = 0; i < 4; i++)
    before[i] = *kept_flags[i];
  c_parse_cmd_line(argc, argv, option_table, option_count, true);
  for (int i = 0; i < 4; i++)
    *kept_flags[i] = *kept_flags[i] || before[i];
}

static void teardown() {
  free_used_symbols_scratch();
  drs_free_state();
  delete_global_lists();
  exit_suif();
}

int stubsuif_main(int argc, char **argv) {
  static bool table_filled = false;
  if (!table_filled) {
    fill_option_table();
    table_filled = true;
  }
  register_library("useful", libuseful_ver_string, libuseful_who_string, init_useful, exit_useful);
  init_suif(argc, argv);
  reset_run_variables();
  forget_generation_marks();
  forget_predicate_marks();
  forget_stub_mode_name();
  drs_init_state();

  parse_command_line(&argc, argv);
  if (argc != 3)
    error_line(1, nullptr, "qvt-stubber: bad arguments");
  args.output_path = argv[2];
  // The IR library writes every output it was given when it closes; only the
  // modes that write the procedures back get one, so that the symbol header
  // mode, the range-only mode and a run without mode leave no output IR.
  bool writes_back = !args.flag_unknown_symbols && (args.flag_stubber || args.flag_cpp_drs_gen);
  refuse_unsafe_arguments(argv[1], argv[2], writes_back || args.flag_unknown_symbols);
  fileset->add_file(argv[1], writes_back ? argv[2] : nullptr);
  fileset->reset_iter();
  current_fse = fileset->next_file();

  if (args.flag_unknown_symbols)
    run_unknown_symbols_mode(args);
  else if (args.flag_stubber)
    run_stub_mode(args);
  else if (args.flag_cpp_drs_gen)
    run_cpp_drs_mode(args);
  else if (args.flag_drs_gen)
    run_drs_only_mode(args);

  teardown();
  return exit_status;
}
