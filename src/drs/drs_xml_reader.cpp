// Reading the XML range file through the flat cursor of the range-file
// library: each element comes with its full name, and becomes at most one
// entry. Elements switched off, and functions marked as called or not, edit
// the main generator's lists instead of making entries.
//
// A template names every function and variable of the program, so symbols
// are looked up through one index of the symbol tables, and the two lists
// through a map from symbol to list element, built on first need: the read
// stays linear in the size of the file. The lists hold each symbol once.
#include "drs/drs_xml.h"
#include "analysis/symbol_collection.h"
#include "driver/options.h"
#include "drsxml/drs_parser.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <unordered_map>

namespace {
const int buffer_size = 1024;

// Where each symbol stands in one of the main generator's lists.
struct list_index {
  sym_node_list *list;
  std::unordered_map<sym_node *, sym_node_list_e *> where;
  bool built = false;

  void build() {
    if (built || !list)
      return;
    built = true;
    for (sym_node_list_e *e = list->head(); e; e = e->next())
      where.emplace(e->contents, e);
  }
  void remove(sym_node *sym) {
    build();
    auto it = where.find(sym);
    if (it == where.end())
      return;
    delete list->remove(it->second);
    where.erase(it);
  }
  void add(sym_node *sym) {
    build();
    if (list && !where.count(sym))
      where.emplace(sym, list->append(sym));
  }
};

std::unique_ptr<original_name_index> names;

sym_node *find_symbol(const char *name, unsigned kind) {
  if (!names)
    names = std::make_unique<original_name_index>(drs_fse);
  return names->find(name, kind);
}

bool known_pointer_kind(int kind) { return kind == 0 || kind == 1 || kind == 2 || kind == 5 || kind == 6; }

void add_entry(unsigned mode, const char *name, const char *min, const char *max, int line, unsigned kind) {
  drs_read_entries->push_back(drs_new_entry(mode, name, min, max, line, kind));
}
} // namespace

void drs_read_xml_file() {
  drs_set_warnings(flag_no_warnings_for_drs ? 0 : 1);
  drs_set_output_buffer_size(buffer_size);
  drs_read_init(drs_file_path);
  char name[buffer_size], file[buffer_size], min[buffer_size], max[buffer_size];
  char full[2 * buffer_size + 2];
  list_index vars{drs_main_vars, {}};
  list_index procs{drs_main_procs, {}};
  int kind;
  while ((kind = drs_get_next_element() & 0xff) != 0) {
    name[0] = file[0] = min[0] = max[0] = '\0';
    int unused = 0, is_static = 0, line = 0;
    drs_get_element_coordinates(name, 0, file, 0, &unused, &is_static, &line);
    const char *entry_name = name;
    if (is_static) {
      snprintf(full, sizeof full, "%s:%s", generic_basename(file, nullptr), name);
      entry_name = full;
    }
    if (kind == 1) {
      int sign = 0, size = 0;
      int status = drs_get_scalar(&sign, &size, min, 0, max, 0);
      // Switched off: the generated main leaves the variable alone.
      if (status == 0 && drs_main_vars) {
        if (sym_node *var = find_symbol(entry_name, SYM_VAR))
          vars.remove(var);
      } else if (status == 1 || status == 2 || status == 7)
        add_entry(status == 1 ? DRS_MODE_INIT : status == 2 ? DRS_MODE_PERMANENT : DRS_MODE_GLOBALASSERT,
                  entry_name, min, max, line, DRS_PTR_MULTI);
    } else if (kind == 2) {
      int raw = 0;
      int status = drs_get_pointer(min, 0, max, 0, &raw);
      unsigned pointer_kind = known_pointer_kind(raw) ? (unsigned)raw : (unsigned)DRS_PTR_MULTI;
      if (status == 0 && drs_main_vars) {
        if (sym_node *var = find_symbol(entry_name, SYM_VAR))
          vars.remove(var);
      } else if (status == 1 || status == 2)
        add_entry(status == 1 ? DRS_MODE_INIT : DRS_MODE_PERMANENT, entry_name, min, max, line, pointer_kind);
      else if (status == 4 && known_pointer_kind(raw))
        add_entry(DRS_MODE_PERMANENT, entry_name, "min", "max", line, pointer_kind);
    } else if (kind == 3) {
      int status = 3;
      drs_get_function(&status, 0);
      if (!drs_main_procs || (status != 0 && status != 1))
        continue;
      sym_node *proc = find_symbol(entry_name, SYM_PROC);
      if (proc && status == 0)
        procs.remove(proc);
      else if (proc)
        procs.add(proc);
    }
  }
  names.reset();
}
