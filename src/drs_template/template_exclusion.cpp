// Which symbols stay out of the template: the stubber's own and the analyser's
// names, allocation and assertion functions, special function registers,
// symbols of generated files, static locals, and with -flaw-scan a static of
// a header that several files include, kept once.
#include "drs_template/template_export.h"
#include "driver/options.h"

#include <cstring>
#include <map>
#include <tuple>
#include <unordered_map>

namespace {
bool starts_with_any(const char *text, std::initializer_list<const char *> prefixes) {
  for (const char *p : prefixes)
    if (strncmp(text, p, strlen(p)) == 0)
      return true;
  return false;
}

// The name of the struct, union or enum at the end of a chain of pointers,
// arrays, function returns and modifiers; "" if there is none.
const char *named_type_at_end(type_node *type) {
  while (type) {
    switch (type->op()) {
    case TYPE_PTR: type = ((ptr_type *)type)->ref_type(); break;
    case TYPE_ARRAY: type = ((array_type *)type)->elem_type(); break;
    case TYPE_FUNC: type = ((func_type *)type)->return_type(); break;
    case TYPE_CONST:
    case TYPE_VOLATILE:
    case TYPE_CALL_BY_REF:
    case TYPE_NULL: type = type->unqual(); break;
    case TYPE_GROUP:
    case TYPE_STRUCT:
    case TYPE_UNION: return ((struct_type *)type)->name() ? ((struct_type *)type)->name() : "";
    case TYPE_ENUM: return ((enum_type *)type)->name() ? ((enum_type *)type)->name() : "";
    default: return "";
    }
  }
  return "";
}

// With -flaw-scan-cpp, a function whose parameters are all pointers and that
// returns nothing of value (or a pointer) has nothing to range.
bool flaw_scan_cpp_exports(proc_sym *proc) {
  if (!flag_flaw_scan_cpp)
    return true;
  if (is_memory_function(proc->name()))
    return false;
  func_type *type = proc->type();
  int count = (int)type->num_args() - (type->has_varargs() ? 2 : 0);
  for (int i = 0; i < count; i++)
    if (type->arg_type(i)->unqual()->op() != TYPE_PTR)
      return true;
  type_ops ret = type->return_type()->op();
  return ret != TYPE_VOID && ret != TYPE_PTR;
}

// With -flaw-scan, the first userdef symbol of each table by source name,
// declaration file and line; built once a table.
using place = std::tuple<const char *, const char *, int>;
std::unordered_map<base_symtab *, std::map<place, sym_node *>> first_at_place;

bool is_repeated_static(sym_node *sym) {
  base_symtab *table = sym->parent();
  if (!table)
    return false;
  auto found = first_at_place.find(table);
  if (found == first_at_place.end()) {
    found = first_at_place.emplace(table, std::map<place, sym_node *>()).first;
    for (sym_node_list_e *e = table->symbols()->head(); e; e = e->next()) {
      if (!e->contents->is_userdef())
        continue;
      const char *prefix;
      int line = 0;
      const char *name = intern(drs_original_sym_name(e->contents, &prefix));
      const char *file = intern(template_coordinates(e->contents, &line));
      found->second.emplace(place(name, file, line), e->contents);
    }
  }
  const char *prefix;
  int line = 0;
  const char *name = intern(drs_original_sym_name(sym, &prefix));
  const char *file = intern(template_coordinates(sym, &line));
  auto first = found->second.find(place(name, file, line));
  return first != found->second.end() && first->second != sym;
}
} // namespace

// Tables of an earlier run may stand at the same addresses as new ones.
void template_exclusion_reset() { first_at_place.clear(); }

bool is_excluded_from_template(sym_node *sym) {
  // The mark says "not this time": it is taken off as it is read.
  if (annote *mark = sym->get_annote(k_no_drs)) {
    delete mark;
    return true;
  }
  if (sym->is_proc() && !flaw_scan_cpp_exports((proc_sym *)sym))
    return true;
  if (starts_with_any(sym->name(), {"__quorvanta_", "_quorvanta_", "assert", "malloc", "calloc", "realloc",
                                     "valloc", "alloca", "__builtin_alloca"}))
    return true;
  type_node *type = sym->is_var() ? ((var_sym *)sym)->type() : sym->is_proc() ? ((proc_sym *)sym)->type() : nullptr;
  if (type && starts_with_any(named_type_at_end(type), {"__quorvanta_", "_quorvanta_", "_IO_FILE"}))
    return true;
  const char *prefix = nullptr;
  const char *name = drs_original_sym_name(sym, &prefix);
  if (prefix && strchr(prefix, ':'))
    return true;
  if (prefix && strncmp(prefix, "__quorvanta_main.c", 18) == 0 && starts_with_any(name, {"qvt_random", "main"}))
    return true;
  int line = 0;
  const char *file = template_coordinates(sym, &line);
  if (file && (strstr(file, "__quorvanta__stdstubs.c") || strstr(file, "qvt_stubs_")))
    return true;
  if (sym->is_var() && ((var_sym *)sym)->has_var_def()) {
    var_def *def = ((var_sym *)sym)->definition();
    if (def->peek_annote(k_sfr_init) || def->peek_annote(k_sbit_init))
      return true;
  }
  return flag_flaw_scan && prefix && is_repeated_static(sym);
}
