// Entries that only restate the default: what the stubber would do without
// them. A template read back holds many such lines where the user set a mode
// without changing the range; marking them fully_handled keeps the
// application from making range procedures that add nothing.
//
// The silent pre-binding walks each entry's path with the checks of the real
// binding, warnings off, only to learn the leaf type; the real binding warns
// later, once.
#include "drs/drs_xml.h"
#include "analysis/stub_pragmas.h"
#include "analysis/symbol_collection.h"
#include "drs/drs_bind.h"
#include "drs/drs_values.h"
#include "driver/options.h"
#include "types/type_predicates.h"

#include <cctype>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <unordered_set>

namespace {
// The type that decides an entry's default: a function's type or a variable's.
type_node *symbol_type(sym_node *sym) {
  if (sym->is_proc())
    return ((proc_sym *)sym)->type();
  if (sym->is_var())
    return ((var_sym *)sym)->type();
  return nullptr;
}

// The argument count by which an index "#N" is judged; -1 if unknown.
int argument_count(func_type *type) {
  if (!type->args_known())
    return -1;
  int count = (int)type->num_args();
  return type->has_varargs() ? count - 2 : count;
}

// Walks a function entry's rest ("return..." or "#N...") to its leaf.
bool prebind_function(proc_sym *proc, const char *rest, drs_entry *entry) {
  func_type *type = proc->type();
  const char *tail = nullptr;
  char *head = split_path_head(rest, &tail);
  bool bound = false;
  if (strncmp(rest, "return", 6) == 0) {
    bound = drs_check_path(type->return_type(), tail, entry, DRS_MODE_INIT, false);
  } else if (head[0] == '#') {
    const char *digits = head + 1;
    bool all_digits = true;
    for (const char *p = digits; *p; p++)
      all_digits = all_digits && isdigit((unsigned char)*p);
    long n = all_digits ? strtol(digits, nullptr, 10) : -1;
    int count = argument_count(type);
    if (all_digits && count >= 0 && n + 1 <= count)
      bound = drs_check_path(type->arg_type((unsigned)n), tail, entry, DRS_MODE_INIT, false);
  }
  if (head != rest)
    free(head);
  return bound;
}

// Membership in drs_default_entries, kept beside the list: the pointer rule
// asks it for many entries.
std::unordered_set<drs_entry *> default_set;
const drs_entry_list *default_set_of;

bool is_known_default(drs_entry *e) {
  if (default_set_of != drs_default_entries || default_set.size() != drs_default_entries->size()) {
    default_set.clear();
    default_set.insert(drs_default_entries->begin(), drs_default_entries->end());
    default_set_of = drs_default_entries;
  }
  return default_set.count(e) != 0;
}
} // namespace

void drs_prebind_defaults() {
  bool saved = flag_no_warnings_for_drs;
  flag_no_warnings_for_drs = true;
  original_name_index names(drs_fse);
  for (drs_entry *entry : *drs_read_entries) {
    if (entry->mode == DRS_MODE_GLOBALASSERT)
      continue;
    const char *rest = nullptr;
    char *head = split_path_head(entry->name, &rest);
    sym_node *sym = head ? names.find(head, any_sym_kind) : nullptr;
    if (head && head != entry->name)
      free(head);
    if (!sym)
      continue;
    bool bound = false;
    if (!sym->is_proc())
      bound = symbol_type(sym) && drs_check_path(symbol_type(sym), rest, entry, entry->mode, false);
    else if (rest)
      bound = prebind_function((proc_sym *)sym, rest, entry);
    if (bound)
      entry->symbol = sym;
  }
  for (drs_entry *entry : *drs_read_entries) {
    if (!entry->symbol)
      continue;
    type_node *type = symbol_type(entry->symbol);
    if (!type || !(entry->symbol->is_extern() || any_part_volatile(type)))
      continue;
    if (drs_is_default_entry(entry) && entry->type)
      entry->fully_handled = true;
  }
  flag_no_warnings_for_drs = saved;
}

bool drs_is_default_entry(drs_entry *e) {
  if (!e->type || !e->symbol || is_known_default(e))
    return true;
  drs_entry c = *e;
  type_node *sym_type = symbol_type(c.symbol);
  if (!sym_type)
    return false;
  bool is_proc = c.symbol->is_proc();
  drs_entry d{};
  d.type = c.type;
  d.mode = any_part_volatile(sym_type) || is_proc ? DRS_MODE_PERMANENT : DRS_MODE_INIT;
  bool is_enum = c.type->unqual()->op() == TYPE_ENUM;
  d.min = (char *)(is_enum ? "enum_min" : "min");
  d.max = (char *)(is_enum ? "enum_max" : "max");
  d.pointer_kind = DRS_PTR_MULTI;
  if (is_proc && stub_mode_of(c.symbol) == STUB_PURE && !strstr(c.name, "return"))
    d.pointer_kind = DRS_PTR_NONE;
  drs_normalise_bounds(&c, c.type);
  drs_normalise_bounds(&d, c.type);
  bool is_pointer = c.type->op() == TYPE_PTR;
  // A pointer whose target carries a real range is not default.
  if (is_pointer) {
    size_t length = strlen(c.name);
    for (drs_entry *o : *drs_read_entries) {
      if (o == e || strcmp(o->name, c.name) == 0 || o->mode != c.mode || strncmp(o->name, c.name, length) != 0)
        continue;
      if (!drs_is_default_entry(o))
        return false;
    }
  }
  if (c.mode != d.mode || strcmp(c.min, d.min) != 0 || strcmp(c.max, d.max) != 0)
    return false;
  if (is_pointer && c.pointer_kind != d.pointer_kind)
    return false;
  drs_default_entries->push_back(e);
  default_set.insert(e);
  return true;
}
