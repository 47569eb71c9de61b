// The walk of the template export: symbols of the global table, then of the
// file's table, then the entries of the range file that no symbol took.
//
// A function's element is left open (the next drs_set_file starts again at
// the file's level), as are the chains rebuilt from leftover entries.
#include "drs_template/template_export.h"
#include "analysis/stub_pragmas.h"
#include "analysis/used_symbols.h"
#include "driver/options.h"
#include "drsxml/drs_parser.h"
#include "types/type_predicates.h"

#include <cstdio>
#include <cstring>
#include <unordered_set>

int32_t template_version;
sym_node_list *template_main_procs;
drs_entry_list *template_entries;
const char *k_type_exported;

namespace {
sym_node_list *template_main_vars;  // kept, read by nobody
std::unordered_set<sym_node *> main_proc_set;

const char *symbol_path(sym_node *sym, const char **name, const char **prefix) {
  *name = drs_original_sym_name(sym, prefix);
  return *prefix ? bufprintf("%s:%s", *prefix, *name) : *name;
}

void export_variable(var_sym *var) {
  int line = 0;
  const char *file = template_coordinates(var, &line);
  const char *name, *prefix;
  const char *path = symbol_path(var, &name, &prefix);
  drs_set_file(file);
  template_context ctx{};
  ctx.is_static = prefix != nullptr;
  ctx.is_extern = var->is_extern();
  ctx.line = line;
  ctx.pointer_depth = flag_flaw_scan ? -1 : 0;
  export_type(var->type(), name, path, &ctx);
}

void export_function(proc_sym *proc) {
  bool defined = !proc->is_extern();
  int line = 0;
  const char *file = template_coordinates(proc, &line);
  const char *name, *prefix;
  const char *path = symbol_path(proc, &name, &prefix);
  bool dead = is_dead_proc(proc);
  drs_set_file(file);
  drs_add_element(DRS_ELEMENT_FUNCTION, name, line, 0, 0);
  drs_set_element_qualifiers(0, !defined, prefix != nullptr, 0, !prefix && dead);
  drs_set_function(defined && main_proc_set.count(proc) ? 1 : 0, 1);

  func_type *type = proc->type();
  template_context ctx{};
  ctx.is_static = prefix != nullptr;
  ctx.in_function = true;
  ctx.of_defined_function = defined;
  ctx.of_pure_stub = stub_mode_of(proc) == STUB_PURE;
  ctx.line = line;
  int count = (int)type->num_args() - (type->has_varargs() ? 2 : 0);
  for (int i = 0; i < count; i++) {
    const char *arg = bufprintf("#%d", i);
    export_type(type->arg_type(i), arg, bufprintf("%s.%s", path, arg), &ctx);
  }
  if (type->return_type()->op() != TYPE_VOID) {
    ctx.of_pure_stub = false;
    export_type(type->return_type(), "return", bufprintf("%s.return", path), &ctx);
  }
}

void export_symbols(base_symtab *table) {
  for (sym_node_list_e *e = table->symbols()->head(); e; e = e->next()) {
    sym_node *sym = e->contents;
    if (!sym->is_userdef() || is_excluded_from_template(sym))
      continue;
    if (sym->is_var())
      export_variable((var_sym *)sym);
    else if (sym->is_proc())
      export_function((proc_sym *)sym);
  }
}

bool known_pointer_kind(unsigned kind) { return kind == 0 || kind == 1 || kind == 2 || kind == 5 || kind == 6; }
unsigned range_status(unsigned mode) { return mode == DRS_MODE_INIT ? 1 : mode == DRS_MODE_PERMANENT ? 2 : 3; }

// The last element of a leftover's chain when it is no pointer: the entry and
// every other one of its name give its range and its assert range.
void leftover_scalar(drs_entry *entry, const char *name, bool has_file) {
  int status = 3, assert_status = 6;
  const char *min = "min", *max = "max", *assert_min = "min", *assert_max = "max";
  bool has_range = false, has_assert = false;
  for (drs_entry *e = entry; e; e = take_template_entry(entry->name)) {
    if ((e->mode == DRS_MODE_INIT || e->mode == DRS_MODE_PERMANENT) && !has_range) {
      has_range = true;
      status = range_status(e->mode);
      min = e->min;
      max = e->max;
    } else if (e->mode == DRS_MODE_GLOBALASSERT && !has_assert) {
      has_assert = true;
      assert_status = 7;
      assert_min = e->min;
      assert_max = e->max;
    }
  }
  drs_add_element(DRS_ELEMENT_SCALAR, name, 0, 1, 0);
  if (has_file)
    drs_set_element_qualifiers(0, 0, 1, 0, 0);
  drs_set_scalar(3, 0, "", status, min, max, assert_status, assert_min, assert_max, 0);
}

// An entry that no symbol took, rebuilt as a chain of elements from its name,
// each marked as having no counterpart in the program.
void export_leftover_entry(drs_entry *entry) {
  const char *text = entry->name;
  const char *colon = strchr(text, ':');
  const char *file = nullptr;
  if (colon) {
    file = bufprintf("%.*s", (int)(colon - text), text);
    text = colon + 1;
  }
  bool has_file = file != nullptr;
  drs_set_file(file);
  drs_entry *pe = first_template_target(entry->name);
  while (text) {
    const char *rest = nullptr;
    const char *head = split_path_head(text, &rest);
    const char *name = head[0] == '*' ? "" : head;
    if ((rest && rest[0] == '*') || (!rest && pe)) {
      unsigned kind = known_pointer_kind(entry->pointer_kind) ? entry->pointer_kind : DRS_PTR_MULTI;
      drs_add_element(DRS_ELEMENT_POINTER, name, 0, 1, 0);
      if (has_file)
        drs_set_element_qualifiers(0, 0, 1, 0, 0);
      if (!rest) {
        drs_set_pointer(range_status(entry->mode), "", entry->min, entry->max, kind, 0);
        pe->template_pointer_done = true;
      } else if (!entry->template_pointer_done) {
        drs_set_pointer(3, "", "min", "max", 3, 0);
      }
    } else if (!rest) {
      leftover_scalar(entry, name, has_file);
    } else {
      bool function = strncmp(rest, "return", 6) == 0 || rest[0] == '#';
      drs_add_element(function ? DRS_ELEMENT_FUNCTION : DRS_ELEMENT_STRUCT, name, 0, 1, 0);
      if (has_file)
        drs_set_element_qualifiers(0, 0, 1, 0, 0);
    }
    text = rest;
  }
}
} // namespace

const char *template_coordinates(sym_node *sym, int *line) {
  coord c;
  bool found = false;
  if (sym->is_var() && ((var_sym *)sym)->definition())
    found = find_coordinate(((var_sym *)sym)->definition(), &c);
  if (!found)
    found = find_coordinate(sym, &c);
  *line = found ? c.line : 0;
  return found ? c.file : nullptr;
}

void export_drs_template(int version, file_set_entry *fse, sym_node_list *main_procs, sym_node_list *main_vars,
                         drs_entry_list *entries) {
  k_type_exported = register_annote(new annote_def(lexicon->enter("type_exported")->sp, false));
  template_version = version;
  template_main_procs = main_procs;
  template_main_vars = main_vars;
  template_entries = entries;
  template_entries_index();
  template_exclusion_reset();
  main_proc_set.clear();
  if (main_procs)
    for (sym_node_list_e *e = main_procs->head(); e; e = e->next())
      main_proc_set.insert(e->contents);
  drs_write_init();
  drs_set_decode_func(get_file_name_from_text_buffer);
  export_symbols(fileset->globals);
  export_symbols(fse->symtab());
  while (drs_entry *entry = pop_template_entry())
    export_leftover_entry(entry);
  drs_write_end("drs-template.xml");
  (void)template_main_vars;
}
