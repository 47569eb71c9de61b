// The interned names shared by the front end and the passes.
#include "ir/knames.h"

#include "ir/strings.h"

const char *k_source_coordinates = intern("k_source_coordinates");
const char *k_sequence_point = intern("k_sequence_point");
const char *k_extdcl_sc = intern("k_extdcl_sc");
const char *k_pragma = intern("k_pragma");
const char *k_is_a_task = intern("k_is_a_task");
const char *k_static_sym = intern("k_static_sym");
const char *k_inline = intern("k_inline");
const char *k_builtin = intern("k_builtin");
const char *k_never_read = intern("k_never_read");
const char *k_orig_ret_type_name = intern("k_orig_ret_type_name");
const char *k_orig_param_types_names = intern("k_orig_param_types_names");
const char *k_drs_var = intern("k_drs_var");
const char *k_drs = intern("k_drs");
const char *k_no_drs = intern("k_no_drs");
const char *k_drs_instrum = intern("k_drs_instrum");
const char *k_drs_permanent_var = intern("k_drs_permanent_var");
const char *k_drs_range_func = intern("k_drs_range_func");
const char *k_drs_touched = intern("k_drs_touched");
const char *k_sfr_init = intern("k_sfr_init");
const char *k_sbit_init = intern("k_sbit_init");
const char *k_fields = intern("k_fields");
const char *k_enable_exceptions = intern("k_enable_exceptions");
const char *k_max_align = intern("k_max_align");
const char *k_source_tag = intern("k_source_tag");
const char *k_size_t = intern("size_t");
const char *k_ptrdiff_t = intern("ptrdiff_t");
const char *k_wchar_t = intern("wchar_t");
const char *k_wint_t = intern("wint_t");
const char *stringmain = intern("main");
const char *stringassert = intern("assert");
const char *string__QVT__MAIN__ENTRY__POINT__ = intern("__QVT__MAIN__ENTRY__POINT__");
const char *orig_type_name_token = "@@";
bool flag_instrum = false;
