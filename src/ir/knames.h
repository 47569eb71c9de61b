// Interned names: the annotation names the front end and the passes share,
// and a few interned texts the stubber compares by pointer. All are set
// before main() runs.
#pragma once

// Places of a symbol (coordinate annotations, see coords.h).
extern const char *k_source_coordinates;
extern const char *k_sequence_point;
extern const char *k_extdcl_sc;

// Pragmas of the file set entry: strings, the pragma's words.
extern const char *k_pragma;

// Marks on symbols set by the front end.
extern const char *k_is_a_task;
extern const char *k_static_sym;
extern const char *k_inline;
extern const char *k_builtin;
extern const char *k_never_read;
extern const char *k_orig_ret_type_name;
extern const char *k_orig_param_types_names;

// Marks of the data range machinery.
extern const char *k_drs_var;
extern const char *k_drs;
extern const char *k_no_drs;
extern const char *k_drs_instrum;
extern const char *k_drs_permanent_var;
extern const char *k_drs_range_func;
extern const char *k_drs_touched;
extern const char *k_sfr_init;
extern const char *k_sbit_init;
extern const char *k_fields;
extern const char *k_enable_exceptions;

// On a struct type: the packing in bytes (first immed, integer).
extern const char *k_max_align;
// On a struct, union or enum type whose tag the front end made unique (a
// second, different type of one tag): the tag of the source (string).
extern const char *k_source_tag;

// User definitions of the fundamental types, on the global symbol table:
// the annotation is named by the type ("size_t", ...), immeds: signedness
// (integer, non-zero for signed), then its C_types value (integer).
extern const char *k_size_t;
extern const char *k_ptrdiff_t;
extern const char *k_wchar_t;
extern const char *k_wint_t;

// Interned texts: "main", "assert", and the name of the analysis entry point.
extern const char *stringmain;
extern const char *stringassert;
extern const char *string__QVT__MAIN__ENTRY__POINT__;

// Stands where the declared name goes in a type text of
// k_orig_ret_type_name / k_orig_param_types_names ("@@").
extern const char *orig_type_name_token;

// Instrumenting mode: variadic functions carry no hidden parameters.
extern bool flag_instrum;
