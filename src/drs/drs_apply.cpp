// The three application passes over the result lists of binding.
//
// Each entry is logged first, so that a user sees every range that took effect, also one that
// only restates the default (fully handled), which then leaves no mark. The marks on a symbol
// say that it has a user range (k_drs_touched, once) and, for a permanent variable, that it is
// written permanently (k_drs_permanent_var, once an entry); k_drs carries the range itself to
// the generators, under the symbol's own name.
#include "drs/drs_apply.h"
#include "driver/options.h"
#include "drs/drs_log.h"
#include "drs/drs_range_procs.h"
#include "types/type_predicates.h"

#include <cstring>

// The code of a pointer kind in a k_drs annotation; the default kind has none.
static int pointer_kind_code(unsigned kind) {
  switch (kind) {
  case DRS_PTR_NONE: return 2;
  case DRS_PTR_SINGLE: return 1;
  case DRS_PTR_SINGLE_CERTAIN_WRITE: return 4;
  case DRS_PTR_MULTI_CERTAIN_WRITE: return 3;
  default: return 0;
  }
}

static void touch(sym_node *symbol) {
  if (!symbol->peek_annote(k_drs_touched))
    symbol->append_annote(k_drs_touched);
}

void drs_annotate_init_entries() {
  for (drs_entry *entry : *drs_init_entries) {
    drs_log_entry(entry);
    if (entry->fully_handled)
      continue;
    sym_node *symbol = entry->symbol;
    if (symbol) {
      // The generators know the symbol by its own name: "file.c:v.x" becomes "v.x".
      const char *rest = nullptr;
      char *head = split_path_head(entry->name, &rest);
      entry->name = rest && *rest ? bufprintf("%s%s", symbol->name(), entry->name + strlen(head))
                                  : bufprintf("%s", symbol->name());
    }
    drs_record_instrum(entry);
    if (!symbol)
      continue;
    touch(symbol);
    if (flag_instrum && symbol->is_extern())
      continue;
    if (flag_no_drs_init)
      continue;
    immed_list *list = new immed_list;
    list->append(immed("init"));
    list->append(immed(entry->name));
    list->append(immed(entry->min));
    list->append(immed(entry->max));
    if (entry->pointer_kind != DRS_PTR_MULTI)
      list->append(immed(pointer_kind_code(entry->pointer_kind)));
    symbol->append_annote(k_drs, list);
  }
}

void drs_apply_assert_entries() {
  for (drs_entry *entry : *drs_assert_entries) {
    drs_log_entry(entry);
    drs_record_instrum(entry);
    if (flag_instrum || !entry->symbol || !entry->symbol->is_var())
      continue;
    const char *rest = nullptr;
    split_path_head(entry->name, &rest);
    // Phase 3 makes procedures, not nodes.
    drs_walk_operand(nullptr, operand(static_cast<var_sym *>(entry->symbol)), entry, rest, DRS_PHASE_ASSERT,
                     false);
  }
}

void drs_apply_permanent_entries() {
  for (drs_entry *entry : *drs_permanent_entries) {
    drs_log_entry(entry);
    if (entry->fully_handled)
      continue;
    if (entry->symbol) {
      entry->symbol->append_annote(k_drs_permanent_var);
      touch(entry->symbol);
    }
    drs_record_instrum(entry);
    drs_build_permanent_proc(entry);
  }
}

void drs_build_permanent_proc(drs_entry *entry) {
  if (flag_instrum || !entry->symbol || !entry->symbol->is_var())
    return;
  var_sym *variable = static_cast<var_sym *>(entry->symbol);
  const char *rest = nullptr;
  split_path_head(entry->name, &rest);
  proc_symtab *symtab = new proc_symtab("");
  tree_node_list *stores = drs_walk_operand(symtab, operand(variable), entry, rest, DRS_PHASE_WRITE, false);
  if (!stores) {
    // A plain scalar: the walker has made its range procedure, and the table stays unused.
    delete symtab;
    return;
  }
  // The reads make locals: under the global table, so that they don't take the names of the
  // globals that the writes made.
  drs_fse->parent()->globals->add_child(symtab);
  if (tree_node_list *reads = drs_walk_operand(symtab, operand(variable), entry, rest, DRS_PHASE_TOUCH, false)) {
    stores->append(reads);
    delete reads;
  }
  drs_make_list_proc(symtab, stores);
}
