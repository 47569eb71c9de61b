// The standard function macros of the symbol header.
//
// The target's ready-made stubs of standard functions are written against macros, so that a
// stub of f can declare "__quorvanta_f_ret_t" and return whatever the user's f returns. Here
// each used symbol gets its "__quorvanta_%s" macro, and each used function without a body the
// typedefs of its return and parameter types, spelled as the sources spelled them (the front
// end leaves the token orig_type_name_token where the declared name goes).
#include "types/standard_function_macros.h"

#include <cstring>
#include <string>

#include "analysis/used_symbols.h"
#include "driver/options.h"
#include "driver/output_files.h"

char *make_orig_typedef(const char *text, const char *name) {
  if (!text) text = "";
  const char *at = orig_type_name_token ? strstr(text, orig_type_name_token) : nullptr;
  // Without the token (a front end fault) the name simply follows the type.
  if (!at) return bufprintf("typedef %s %s;", text, name);
  return bufprintf("typedef %.*s%s%s;", (int)(at - text), text, name, at + strlen(orig_type_name_token));
}

void write_macro_default(const char *name, bool has_params, const char *params, const char *value) {
  if (!value || !*value) {
    emit_line(bufprintf("/* no value for %s */\n", name));
    return;
  }
  emit_line(bufprintf("#ifndef %s\n", name));
  if (has_params) emit_line(bufprintf("#define %s(%s) %s\n", name, params, value));
  else emit_line(bufprintf("#define %s %s\n", name, value));
  emit_line(bufprintf("#endif /* %s */\n", name));
}

// The first string immed of the annotation called name on s, or null.
static annote *find_annote(suif_object *s, const char *name) {
  return s->peek_annote(name);
}

void write_special_function_macros(proc_sym *proc) {
  std::string prefix = std::string("__quorvanta_") + proc->name() + "_";
  bool known_type = true;

  const char *ret_value;
  annote *ret = find_annote(proc, k_orig_ret_type_name);
  if (ret && ret->immeds() && !ret->immeds()->is_empty() && ret->immeds()->head()->contents.is_string()) {
    ret_value = make_orig_typedef(ret->immeds()->head()->contents.string(), (prefix + "ret_t").c_str());
  } else {
    ret_value = "/* no return type annotated */\n";
    known_type = false;
  }
  write_macro_default((prefix + "ret_t_typedef").c_str(), false, "", ret_value);

  std::string ret_stmt;
  if (proc->type()->return_type()->op() != TYPE_VOID)
    ret_stmt = std::string("return (") + prefix + "ret_t)(" + "__x" + ")";
  else
    ret_stmt = std::string("do { (void)(") + "__x" + "); return; } while(0) ";
  write_macro_default((prefix + "return").c_str(), true, "__x", ret_stmt.c_str());

  annote *params = find_annote(proc, k_orig_param_types_names);
  // An annotation without immeds is a list of no parameter: the IR file keeps no empty lists.
  if (params) {
    int count = params->immeds() ? params->immeds()->count() : 0;
    emit_line(bufprintf("#define %snb_args %d\n", prefix.c_str(), count));
    int i = 0;
    for (immed_list_e *e = params->immeds() ? params->immeds()->head() : nullptr; e; e = e->next(), i++) {
      std::string macro = prefix + "arg" + std::to_string(i) + "_t_typedef";
      std::string type_name = prefix + "arg" + std::to_string(i) + "_t";
      const char *value = e->contents.is_string() ? make_orig_typedef(e->contents.string(), type_name.c_str()) : "";
      write_macro_default(macro.c_str(), false, "", value);
    }
    if (known_type) emit_line(bufprintf("#define %sknown_type\n", prefix.c_str()));
  } else {
    emit_line("/* no arguments types annotated */\n");
  }
  emit_line("\n");
}

// A user's definition of a function that the target's stubs treat as special.
static bool is_special_function(const char *name) {
  return is_alloc_function(name) || lexicon_strcmp_with_cheks(name, stringassert) == 0 ||
         strcmp(name, "unchecked_assert") == 0;
}

static void report_redefinition(sym_node *sym) {
  coord c;
  for (const char *k : {k_source_coordinates, k_sequence_point, k_extdcl_sc}) {
    annote *a = sym->peek_annote(k);
    if (!a) continue;
    if (annote_to_coordinate(a, &c)) fprint_localization(stderr, c.file, c.line, -1, true);
    break;
  }
  error_line(0, nullptr, "special function '%s' is redefined.", sym->true_name());
  exit_status = 1;
}

void write_symbol_macros(sym_node *symbol) {
  if (!is_used_symbol(symbol)) return;
  if (symbol->kind() == SYM_VAR) {
    var_sym *v = static_cast<var_sym *>(symbol);
    if (v->is_extern()) emit_line(bufprintf("#define __quorvanta_%s\n", v->name()));
    if (!v->is_tentative_definition_array()) return;
    if (!v->is_extern()) emit_line(bufprintf("#define __quorvanta_%s\n", v->name()));
    emit_line(bufprintf("#define __quorvanta_%s_array_size_d%d_needed\n", v->name(), 1));
    return;
  }
  if (symbol->kind() != SYM_PROC) return;
  proc_sym *p = static_cast<proc_sym *>(symbol);
  if (p->src_lang() == 0) {
    emit_line(bufprintf("#define __quorvanta_%s\n", p->name()));
    write_special_function_macros(p);
    return;
  }
  if (flag_flaw_scan) return;
  if (!is_special_function(p->name())) return;
  report_redefinition(p);
}
