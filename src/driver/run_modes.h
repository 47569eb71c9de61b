// The four run modes of the stubber and the write-back of the IR.
//
// stubsuif_main parses the command line into a run_args, picks the first mode
// whose flag is set, and calls the function of that mode.
#pragma once

// Options that only the entry point reads: the mode flags, the range file and
// the list texts. One object per call of stubsuif_main, cleared each time.
struct run_args {
  bool flag_unknown_symbols = false;            // -unknown-symbols
  bool flag_stubber = false;                    // -stubber
  bool flag_drs_gen = false;                    // -drs-gen
  bool flag_cpp_drs_gen = false;                // -cpp-drs-gen
  char *drs_file = nullptr;                     // -drs-file
  char *tasks_arg = nullptr;                    // -tasks
  char *critical_section_begin_arg = nullptr;   // -critical-section-begin
  char *critical_section_end_arg = nullptr;     // -critical-section-end
  char *temporal_exclusions_file_arg = nullptr; // -temporal-exclusions-file
  char *vars_before_loop_arg = nullptr;         // -variables-written-before-loop
  char *vars_in_loop_arg = nullptr;             // -variables-written-in-loop
  char *funcs_before_loop_arg = nullptr;        // -functions-called-before-loop
  char *funcs_in_loop_arg = nullptr;            // -functions-called-in-loop
  char *funcs_after_loop_arg = nullptr;         // -functions-called-after-loop
  char *files_to_ignore_arg = nullptr;          // -main-generator-files-to-ignore
  const char *output_path = nullptr;            // second positional argument
};

// The modes, each on current_fse. Errors set exit_status; none returns early.
void run_unknown_symbols_mode(const run_args &args); // writes the symbol header at output_path
void run_stub_mode(const run_args &args);            // the whole generation, then write-back
void run_cpp_drs_mode(const run_args &args);         // silent range pass, then write-back
void run_drs_only_mode(const run_args &args);        // range pass and template; no write-back

// Reads, writes and flushes every procedure of current_fse, so that the output
// IR holds what the run added.
void write_procs_back();

// The closing text printed on stderr when a run diagnosed errors.
void print_error_explanation();
