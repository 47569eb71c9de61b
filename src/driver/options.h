// The option variables of the stubber, the fixed flags and the state of one run.
//
// Every variable here is set by the command line (through the option table of
// stubsuif_main) or by the run itself; nothing else configures the stubber.
// Options that only the entry point reads (the mode flags, the range file path
// and the list texts) are not here: they live in run_args (driver/run_modes.h).
#pragma once

#include <cstdint>

class file_set_entry;

// Options read by the generators. Flags are false and texts null until given;
// integers take the default of their row.
extern char *stubs_dir;                       // -stubs-dir: directory of every generated file
extern bool flag_no_drs_init;                 // -no-drs-init
extern bool flag_flaw_scan;                   // -flaw-scan
extern bool flag_flaw_scan_cpp;               // -flaw-scan-cpp
extern bool flag_40bits_longdouble;           // -40bits-longdouble
extern bool flag_permissive_stubber;          // -permissive-stubber
extern bool flag_no_automatic_stubbing;       // -no-automatic-stubbing
extern bool flag_main_generator;              // -main-generator
extern bool flag_init_in_loop;                // -init-in-loop
extern bool flag_no_warnings_for_drs;         // -no-warnings-for-drs
extern int32_t drs_struct_depth_max;          // -drs-struct-depth-max, default 2
extern int32_t drs_struct_recursion_depth_max; // -drs-struct-recursion-depth-max, default 0
extern bool flag_mgen_pure_stubs;             // -mgen_pure_stubs
extern bool flag_unit_by_unit;                // -unit-by-unit
extern bool flag_stub_all_worst;              // -stub-all-functions-as-worst
extern bool flag_dos;                         // -dos: accepted, without effect
extern bool flag_no_undef_variables_stubs;    // -no-undef-variables-stubs
extern bool flag_adapt_std_stubs_type;        // -adapt-std-stubs-type
extern bool flag_no_user_stubs_file;          // -no-user-stubs-file
extern bool flag_no_stubs;                    // -no-stubs
extern bool flag_all_procs_used;              // -all-procs-used
extern int32_t main_generator_bounded_loop;   // -main-generator-bounded-loop, default 0 (unbounded)
// -instrument writes flag_instrum, which belongs to the IR library (ir/ir.h).

// Flags without an option: they keep these values on every run.
extern bool flag_drs_pragmas;                 // true: the range pragma is honoured
extern bool flag_return_initialized;          // true: the stub report notes initialised returns
extern bool flag_stub_all_clean;              // false: third branch of the stub-kind rule

// State of the run.
extern file_set_entry *current_fse;           // entry of the one input file; null if none
extern int exit_status;                       // 0, or 1 once an error was diagnosed; never set back
extern bool automatic_stubber_reported;       // latch of the -no-automatic-stubbing message

// Number of rows of the option table.
constexpr int option_count = 38;
