// The symbol header of the -unknown-symbols mode.
//
// Every line is a preprocessor line, so that the target's standard headers, compiled after
// it, adapt to the program: the symbols it uses, its unsigned char limit, and the fundamental
// library types, each behind guards that let a standard header ask for a type once. A type
// that the user's code defines replaces the target's own.
#include "types/fundamental_types_header.h"

#include <cctype>
#include <cstring>

#include "driver/options.h"
#include "driver/output_files.h"
#include "types/standard_function_macros.h"
#include "types/type_emitter.h"

unsigned char fundamental_type_seen[4];

void write_fundamental_type(C_types type, bool is_signed, const char *name, const char *origin) {
  char *up = strdup(name);
  for (char *p = up; *p; p++) *p = (char)toupper((unsigned char)*p);
  const char *t = c_type_to_string(type, is_signed);
  bool is_wchar = strcmp(name, "wchar_t") == 0;
  if (is_wchar) emit_line("#ifndef __cplusplus\n");
  emit_line(bufprintf("#define __%sYPE__ %s\n", up, t));
  emit_line(bufprintf("#if defined(__QUORVANTA_NEED_%s_) && !defined(__QUORVANTA_NEED_%s_DONE_) && !defined(_%s_DEFINED) && !defined(__%s_defined) && !defined(_%s) && !defined(__%s)\n", up, up, up, name, up, up));
  emit_line(bufprintf("#define __QUORVANTA_NEED_%s_DONE_\n", up));
  emit_line(bufprintf("typedef %s %s; /*%s*/ \n#define _%s_DEFINED\n#define __%s_defined\n#define _%s\n#define __%s\n", t, name, origin, up, name, up, up));
  emit_line(bufprintf("#define __%sYPE__ %s\n", up, t));
  emit_line(bufprintf("#endif /*__QUORVANTA_NEED_%s_*/\n", up));
  if (is_wchar) emit_line("#endif /*__cplusplus*/\n");
  free(up);
}

// The integer of the n-th immed of a, or 0 when the list is shorter or holds no integer there.
static long long nth_integer(annote *a, int n) {
  if (!a->immeds()) return 0;
  immed_list_e *e = a->immeds()->head();
  for (int i = 0; e && i < n; i++) e = e->next();
  return e && e->contents.is_integer() ? e->contents.integer() : 0;
}

void write_customer_fundamental_types(global_symtab *symtab) {
  if (!symtab || !symtab->annotes_if_any()) return;
  for (annote_list_e *e = symtab->annotes_if_any()->head(); e; e = e->next()) {
    annote *a = e->contents;
    F_types kind;
    if (!is_fundamental_type_annote(a->name(), &kind, true)) continue;
    fundamental_type_seen[kind] = 1;
    bool is_signed = nth_integer(a, 0) != 0;
    C_types type = (C_types)nth_integer(a, 1);
    write_fundamental_type(type, is_signed, a->name(), "Customer defined");
  }
}

void write_target_fundamental_types() {
  for (int k = 0; k < num_F_types; k++) {
    if (fundamental_type_seen[k]) continue;
    write_fundamental_type(target.fundamental_type[k], fundamental_type_is_sign[k], fundamental_type_c_name[k],
                           "Target defined");
  }
}

void write_fundamental_types_header(const char *path) {
  open_output_file(path);
  if (!flag_adapt_std_stubs_type) emit_line("#define __quorvanta_static_types_for_stubs\n");
  for (sym_node_list_e *e = global_st->symbols()->head(); e; e = e->next()) write_symbol_macros(e->contents);
  if (current_fse)
    for (sym_node_list_e *e = current_fse->symtab()->symbols()->head(); e; e = e->next())
      write_symbol_macros(e->contents);
  const char *uchar_max = enum_value_text(inttype_max(type_unsigned_char), type_unsigned_char);
  emit_line("#undef QVT_BUILTIN_TARGET_UCHAR_MAX\n");
  emit_line(bufprintf("#define QVT_BUILTIN_TARGET_UCHAR_MAX %s\n", uchar_max));
  emit_line("#define NO_NEED_FUNDAMENTAL_TYPES /* To avoid including fundamental types in stddef.h */\n");
  write_customer_fundamental_types(global_st);
  write_target_fundamental_types();
  close_output_file();
}
