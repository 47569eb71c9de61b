// Binding of range entries to symbols and leaf types.
//
// Entries are grouped by mode and, within a mode, by the symbol part of their names, in order
// of first appearance; the modes are bound in the order init, permanent, globalassert. That
// order is what lets the duplicate rules of drs_accept_entry see, for one name, the earlier
// modes first: only two replacements (a later init or permanent by an earlier permanent or
// globalassert) are then needed to make the first line of the file win. Symbols are found
// through one index of the two symbol tables, built once, so that a file of many lines costs
// one lookup a name rather than one walk of the tables a name.
#include "drs/drs_bind.h"
#include "analysis/symbol_collection.h"
#include "driver/options.h"
#include "drs/drs_log.h"
#include "drs/drs_values.h"
#include "types/type_predicates.h"

#include <algorithm>
#include <cstring>
#include <unordered_set>
#include <vector>

const char *drs_type_word(type_node *type) {
  switch (type ? type->op() : TYPE_NULL) {
  case TYPE_INT: return "integer";
  case TYPE_FLOAT: return "float";
  case TYPE_VOID: return "void";
  case TYPE_PTR: return "pointer";
  case TYPE_ARRAY: return "array";
  case TYPE_FUNC: return "function";
  case TYPE_STRUCT: return "struct";
  case TYPE_UNION: return "union";
  case TYPE_ENUM: return "enum";
  case TYPE_CONST: return "const";
  case TYPE_VOLATILE: return "volatile";
  default: return "";
  }
}

static const char *mode_word(unsigned mode) { return drs_mode_names[mode < 4 ? mode : 0]; }

// A leaf: integer, float or enum, checked against its bounds.
static bool check_leaf(type_node *type, const char *path, drs_entry *entry, unsigned mode) {
  if (path) {
    drs_warn(entry->line, "data-range-specifications: incorrect entry '%s'", entry->name);
    return false;
  }
  entry->type = type;
  unsigned status = 0;
  if (!drs_check_values(type, entry->min, entry->max, &status)) {
    drs_report_status(status, drs_file_path, entry->line, entry->name, entry->min, entry->max, mode);
    return false;
  }
  if (status != 0)
    drs_warn(entry->line, "data-range-specifications: impossible to check validity of '%s'", entry->name);
  return true;
}

bool drs_check_path(type_node *type, const char *path, drs_entry *entry, unsigned mode, bool in_aggregate) {
  for (;;) {
    switch (type->op()) {
    case TYPE_CONST:
    case TYPE_VOLATILE:
      // Any level of the modifier chain makes it volatile: "const volatile" may have const
      // outside, and unqual below strips both at once.
      if (type->is_volatile()) {
        if (mode == DRS_MODE_INIT || mode == DRS_MODE_GLOBALASSERT) {
          drs_warn(entry->line, "data-range-specifications: '%s': volatile variables are not allowed in %s mode",
                   entry->name, mode_word(entry->mode));
          return false;
        }
        type_node *inner = type->unqual();
        if (mode == DRS_MODE_PERMANENT && (in_aggregate || inner->is_array() || inner->is_struct())) {
          drs_warn(entry->line,
                   "data-range-specifications: '%s': volatile fields or array are not yet supported in %s mode",
                   entry->name, mode_word(entry->mode));
          return false;
        }
      }
      type = type->unqual();
      continue;
    case TYPE_ARRAY:
      in_aggregate = true;
      type = static_cast<array_type *>(type)->elem_type();
      continue;
    case TYPE_STRUCT:
    case TYPE_UNION: {
      struct_type *s = static_cast<struct_type *>(type);
      const char *rest = nullptr;
      char *head = split_path_head(path, &rest);
      int index = find_field(head, s);
      if (index < 0 || strncmp(head, "__qvt_unused_field", 18) == 0) {
        drs_warn(entry->line,
                 "data-range-specifications: '%s': specified field '%s' not found in struct (or it is not used in "
                 "the current analysis)",
                 entry->name, head ? head : "");
        return false;
      }
      // An index whose name differs is the anonymous member that holds head: go down to it.
      while (strcmp(s->field_name(index), head) != 0) {
        s = static_cast<struct_type *>(s->field_type(index)->unqual());
        index = find_field(head, s);
      }
      return drs_check_path(s->field_type(index), rest, entry, mode, true);
    }
    case TYPE_PTR:
      if (mode != DRS_MODE_INIT)
        break;
      if (path) {
        // Any first element counts as the step through the pointer.
        const char *rest = nullptr;
        split_path_head(path, &rest);
        type = static_cast<ptr_type *>(type)->ref_type();
        path = rest;
        mode = DRS_MODE_INIT;
        continue;
      } else {
        entry->type = type;
        unsigned status = 0;
        if (drs_check_values(type, entry->min, entry->max, &status))
          return true;
        drs_report_status(status, drs_file_path, entry->line, entry->name, entry->min, entry->max, DRS_MODE_INIT);
        return false;
      }
    case TYPE_INT:
    case TYPE_FLOAT:
    case TYPE_ENUM:
      return check_leaf(type, path, entry, mode);
    default:
      break;
    }
    drs_warn(entry->line, "data-range-specifications: '%s' : wrong type '%s' for %s mode", entry->name,
             drs_type_word(type), mode_word(entry->mode));
    return false;
  }
}

bool drs_is_range_subset(drs_entry *outer, drs_entry *inner) {
  type_node *t = outer->type;
  if (!t || !(t->op() == TYPE_INT || t->op() == TYPE_FLOAT || t->op() == TYPE_VOID || t->op() == TYPE_ENUM))
    return false;
  if (t->op() == TYPE_FLOAT) {
    double omin, omax, imin, imax;
    if (drs_parse_double(outer->min, &omin) || drs_parse_double(outer->max, &omax) ||
        drs_parse_double(inner->min, &imin) || drs_parse_double(inner->max, &imax))
      return false;
    return imin >= omin && omax >= imax;
  }
  i_integer omin = drs_parse_int_bound(outer->min, t, true), omax = drs_parse_int_bound(outer->max, t, false);
  i_integer imin = drs_parse_int_bound(inner->min, t, true), imax = drs_parse_int_bound(inner->max, t, false);
  return !imin.is_less_than(omin) && !omax.is_less_than(imax);
}

static void remove_entry(drs_entry_list *list, drs_entry *entry) {
  auto it = std::find(list->begin(), list->end(), entry);
  if (it != list->end())
    list->erase(it);
}

bool drs_accept_entry(drs_entry *entry) {
  const char *key = intern(entry->name);
  auto found = drs_entry_map->find(key);
  if (found == drs_entry_map->end()) {
    (*drs_entry_map)[key] = entry;
    return true;
  }
  drs_entry *old = found->second;
  if (entry->mode != DRS_MODE_PERMANENT && old->mode != DRS_MODE_PERMANENT && entry->mode != old->mode &&
      !drs_pair_map->count(key)) {
    drs_entry *a = entry->mode == DRS_MODE_GLOBALASSERT ? entry : old;
    drs_entry *i = a == entry ? old : entry;
    if (!drs_is_range_subset(a, i)) {
      drs_warn(a->line,
               "data-range-specifications: %s: range for init mode ([%s..%s]) must be a subset of the globalassert "
               "range ([%s..%s])",
               a->name, i->min, i->max, a->min, a->max);
      if (!i->fully_handled)
        return false;
    }
    (*drs_pair_map)[key] = entry;
    return true;
  }
  if (old->mode == DRS_MODE_PERMANENT && entry->mode == DRS_MODE_GLOBALASSERT && old->line > entry->line) {
    remove_entry(drs_permanent_entries, old);
  } else if (old->mode == DRS_MODE_INIT && entry->mode == DRS_MODE_PERMANENT && old->line > entry->line) {
    remove_entry(drs_init_entries, old);
  } else {
    drs_warn(entry->line, "data-range-specifications: '%s' previously specified in the file, ignoring this line", key);
    return false;
  }
  // The earlier line replaces; the warning names the line that lost.
  drs_entry_map->erase(key);
  (*drs_entry_map)[key] = entry;
  drs_warn(old->line, "data-range-specifications: '%s' previously specified in the file, ignoring this line", key);
  return true;
}

static int first_line(const char *key, const drs_key_map &map) {
  auto found = map.find(key);
  return found == map.end() || found->second.empty() ? 0 : found->second.front()->line;
}

bool drs_reject_variable(sym_node *symbol, const char *key, const drs_key_map &map) {
  if (!symbol) {
    if (!drs_unit_by_unit)
      drs_warn(first_line(key, map),
               "data-range-specifications: global variable/function '%s' does not exist (or it is not used in the "
               "current analysis)",
               key);
    return true;
  }
  if (symbol->is_var())
    if (var_def *def = static_cast<var_sym *>(symbol)->definition())
      if (def->peek_annote(k_sfr_init) || def->peek_annote(k_sbit_init)) {
        drs_warn(first_line(key, map), "data-range-specifications: '%s': variables of type sfr/sbit are not allowed",
                 key);
        return true;
      }
  return false;
}

bool drs_reject_proc_for_assert(sym_node *symbol, const char *key, const drs_key_map &map) {
  if (!symbol || !symbol->is_proc())
    return false;
  auto found = map.find(key);
  unsigned mode = found == map.end() || found->second.empty() ? DRS_MODE_GLOBALASSERT : found->second.front()->mode;
  drs_warn(first_line(key, map), "data-range-specifications: function '%s' is not supported for %s mode", key,
           mode_word(mode));
  return true;
}

namespace {

// What one binding run shares between its keys: the functions the main generator calls.
struct bind_run {
  std::unordered_set<sym_node *> main_procs;
};

} // namespace

static void accept_into(drs_entry *entry, sym_node *symbol, drs_entry_list *list) {
  entry->symbol = symbol;
  if (drs_accept_entry(entry)) {
    drs_normalise_bounds(entry, entry->type);
    list->push_back(entry);
  }
}

// "#N" of an argument: N in *index when the text after "#" is all digits and N names one of the
// arguments the caller can pass (the two hidden ones of a variadic function don't count).
static bool argument_index(const char *head, proc_sym *proc, unsigned *index) {
  const char *digits = head + 1;
  size_t n = strlen(digits);
  if (strspn(digits, "0123456789") != n || n > 9)
    return false;
  unsigned value = (unsigned)strtoul(digits, nullptr, 10);
  func_type *type = proc->type();
  long count = (long)type->num_args() - (type->has_varargs() ? 2 : 0);
  if (!type->args_known() || (long)value + 1 > count)
    return false;
  *index = value;
  return true;
}

// The entries of a key that names a variable, in mode; accepted ones go to list.
static void bind_variable_key(sym_node *symbol, const char *key, const drs_key_map &map, drs_entry_list *list) {
  if (drs_reject_variable(symbol, key, map))
    return;
  if (!symbol->is_var())
    return;
  for (drs_entry *entry : map.at(key)) {
    const char *rest = nullptr;
    split_path_head(entry->name, &rest);
    if (drs_check_path(static_cast<var_sym *>(symbol)->type(), rest, entry, entry->mode, false))
      accept_into(entry, symbol, list);
  }
}

static void bind_init_proc(bind_run &run, proc_sym *proc, const drs_entry_list &entries) {
  for (drs_entry *entry : entries) {
    if (!flag_flaw_scan && !run.main_procs.count(proc)) {
      drs_warn(entry->line, "data-range-specifications: expected a function called by main-generator");
      return;
    }
    const char *rest = nullptr;
    split_path_head(entry->name, &rest);
    if (!rest || rest[0] != '#') {
      drs_warn(entry->line, rest && strncmp(rest, "return", 6) == 0
                                ? "data-range-specifications: return of userdef function is not allowed"
                                : "data-range-specifications: function is not allowed");
      continue;
    }
    const char *tail = nullptr;
    char *head = split_path_head(rest, &tail);
    unsigned index = 0;
    if (!argument_index(head, proc, &index)) {
      drs_warn(entry->line, "data-range-specifications: bad argument number");
      continue;
    }
    type_node *arg = proc->type()->arg_type(index);
    if (!drs_check_path(arg, tail, entry, DRS_MODE_INIT, false))
      continue;
    if (proc->src_lang() == 0 && is_const_param(arg)) {
      drs_warn(entry->line, "data-range-specifications: constant parameter not allowed");
      continue;
    }
    accept_into(entry, proc, drs_init_entries);
  }
}

// A permanent range on a function is a stub's promise: it takes the road of init.
static void bind_permanent_proc(proc_sym *proc, const drs_entry_list &entries) {
  for (drs_entry *entry : entries) {
    if (proc->src_lang() != 0) {
      drs_warn(entry->line, "data-range-specifications: expected a stubbed function");
      return;
    }
    const char *rest = nullptr;
    split_path_head(entry->name, &rest);
    if (!rest) {
      drs_warn(entry->line, "data-range-specifications: function is not allowed");
      continue;
    }
    const char *tail = nullptr;
    char *head = split_path_head(rest, &tail);
    if (strncmp(rest, "return", 6) == 0) {
      if (drs_check_path(proc->type()->return_type(), tail, entry, DRS_MODE_INIT, false))
        accept_into(entry, proc, drs_init_entries);
      continue;
    }
    unsigned index = 0;
    if (rest[0] != '#') {
      drs_warn(entry->line, "data-range-specifications: function is not allowed");
      continue;
    }
    if (!argument_index(head, proc, &index)) {
      drs_warn(entry->line, "data-range-specifications: bad argument number");
      continue;
    }
    type_node *arg = proc->type()->arg_type(index);
    bool path_ok = drs_check_path(arg, tail, entry, DRS_MODE_INIT, false);
    // A stub can't write through a constant parameter, whatever the path said.
    if (is_const_param(arg)) {
      drs_warn(entry->line, "data-range-specifications: constant parameter not allowed");
      continue;
    }
    if (path_ok)
      accept_into(entry, proc, drs_init_entries);
  }
}

void drs_bind_entries() {
  // Maps from head name to entries, and the keys in order of first appearance, per mode.
  drs_key_map maps[4];
  std::vector<const char *> keys[4];
  for (drs_entry *entry : *drs_read_entries) {
    if (entry->mode < DRS_MODE_INIT || entry->mode > DRS_MODE_GLOBALASSERT)
      continue;
    char *head = split_path_head(entry->name, nullptr);
    const char *key = intern(head);
    drs_entry_list &list = maps[entry->mode][key];
    if (list.empty())
      keys[entry->mode].push_back(key);
    list.push_back(entry);
  }

  original_name_index names(drs_fse);
  bind_run run;
  if (drs_main_procs)
    for (sym_node_list_e *e = drs_main_procs->head(); e; e = e->next())
      run.main_procs.insert(e->contents);

  for (const char *key : keys[DRS_MODE_INIT]) {
    sym_node *symbol = names.find(key, any_sym_kind);
    if (symbol && symbol->is_proc())
      bind_init_proc(run, static_cast<proc_sym *>(symbol), maps[DRS_MODE_INIT][key]);
    else
      bind_variable_key(symbol, key, maps[DRS_MODE_INIT], drs_init_entries);
  }
  maps[DRS_MODE_INIT].clear();

  for (const char *key : keys[DRS_MODE_PERMANENT]) {
    sym_node *symbol = names.find(key, any_sym_kind);
    if (symbol && symbol->is_proc())
      bind_permanent_proc(static_cast<proc_sym *>(symbol), maps[DRS_MODE_PERMANENT][key]);
    else
      bind_variable_key(symbol, key, maps[DRS_MODE_PERMANENT], drs_permanent_entries);
  }

  for (const char *key : keys[DRS_MODE_GLOBALASSERT]) {
    sym_node *symbol = names.find(key, any_sym_kind);
    if (drs_reject_proc_for_assert(symbol, key, maps[DRS_MODE_GLOBALASSERT]))
      continue;
    bind_variable_key(symbol, key, maps[DRS_MODE_GLOBALASSERT], drs_assert_entries);
  }
}
