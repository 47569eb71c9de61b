// The tables and run state of the range code, and its one reporting rule.
#include "drs/drs_model.h"
#include "driver/options.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

const char *const drs_mode_names[4] = {"unknown", "init", "permanent", "globalassert"};

drs_entry_list *drs_read_entries;
drs_entry_list *drs_template_entries;
drs_entry_list *drs_pragma_entries;
drs_entry_list *drs_init_entries;
drs_entry_list *drs_permanent_entries;
drs_entry_list *drs_assert_entries;
drs_entry_list *drs_default_entries;
drs_name_map *drs_entry_map;
drs_name_map *drs_pair_map;

const char *drs_file_path;
int32_t drs_file_version;
file_set_entry *drs_fse;
sym_node_list *drs_main_procs;
sym_node_list *drs_main_vars;
bool drs_unit_by_unit;
bool drs_no_log;

void drs_init_state() {
  drs_file_path = nullptr;
  drs_file_version = 0;
  drs_fse = nullptr;
  drs_main_procs = nullptr;
  drs_main_vars = nullptr;
  drs_unit_by_unit = false;
  flag_no_warnings_for_drs = false;
  drs_no_log = false;
  drs_read_entries = new drs_entry_list;
  drs_template_entries = new drs_entry_list;
  drs_pragma_entries = new drs_entry_list;
  drs_init_entries = new drs_entry_list;
  drs_permanent_entries = new drs_entry_list;
  drs_assert_entries = new drs_entry_list;
  drs_default_entries = new drs_entry_list;
  drs_entry_map = new drs_name_map;
  drs_pair_map = new drs_name_map;
}

// The entries themselves are not freed: annotations and generated text may
// still point at their strings until the process ends.
void drs_free_state() {
  for (drs_entry_list **list : {&drs_read_entries, &drs_template_entries, &drs_pragma_entries, &drs_init_entries,
                                &drs_permanent_entries, &drs_assert_entries, &drs_default_entries}) {
    delete *list;
    *list = nullptr;
  }
  delete drs_entry_map;
  drs_entry_map = nullptr;
  delete drs_pair_map;
  drs_pair_map = nullptr;
}

void drs_warn(int line, const char *format, ...) {
  if (flag_no_warnings_for_drs)
    return;
  if (drs_file_path)
    fprint_localization(stderr, drs_file_path, line, -1, false);
  va_list args;
  va_start(args, format);
  char *text = nullptr;
  if (vasprintf(&text, format, args) < 0)
    text = nullptr;
  va_end(args);
  warning_line(nullptr, "%s", text ? text : format);
  free(text);
  checked_fflush(stderr);
}
