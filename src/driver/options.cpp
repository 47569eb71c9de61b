// The option variables and the state of the run.
#include "driver/options.h"

char *stubs_dir;
bool flag_no_drs_init;
bool flag_flaw_scan;
bool flag_flaw_scan_cpp;
bool flag_40bits_longdouble;
bool flag_permissive_stubber;
bool flag_no_automatic_stubbing;
bool flag_main_generator;
bool flag_init_in_loop;
bool flag_no_warnings_for_drs;
int32_t drs_struct_depth_max = 2;
int32_t drs_struct_recursion_depth_max = 0;
bool flag_mgen_pure_stubs;
bool flag_unit_by_unit;
bool flag_stub_all_worst;
bool flag_dos;
bool flag_no_undef_variables_stubs;
bool flag_adapt_std_stubs_type;
bool flag_no_user_stubs_file;
bool flag_no_stubs;
bool flag_all_procs_used;
int32_t main_generator_bounded_loop;

bool flag_drs_pragmas = true;
bool flag_return_initialized = true;
bool flag_stub_all_clean;

file_set_entry *current_fse;
int exit_status;
bool automatic_stubber_reported;
