// The two range passes: -drs-gen (alone, or inside the stub mode) and -cpp-drs-gen.
//
// Both keep their fixed order of steps: reading, binding, application; the -drs-gen pass also
// exports the template, last, whatever was read.
#include "drs/drs_apply.h"
#include "drs/drs_bind.h"
#include "drs/drs_model.h"
#include "drs/drs_xml.h"
#include "driver/options.h"
#include "drs_template/template_export.h"
#include "drsxml/drs_parser.h"

void run_drs_pass(const char *path, file_set_entry *fse, sym_node_list *procs, sym_node_list *vars) {
  drs_fse = fse;
  drs_main_procs = procs;
  drs_main_vars = vars;
  drs_unit_by_unit = flag_unit_by_unit;
  drs_file_version = 0;

  if (path) {
    drs_file_path = path;
    // Reading: an XML file by its version, anything else as text.
    drs_file_version = drs_get_file_version(path);
    if (drs_file_version == 0) {
      drs_read_text_file();
      drs_file_version = -1;
    } else {
      drs_read_xml_file();
    }
  }

  // Pragma entries always come after the file's.
  drs_read_entries->splice(drs_read_entries->end(), *drs_pragma_entries);

  if (!drs_read_entries->empty()) {
    drs_prebind_defaults();
    drs_bind_entries();
    drs_annotate_init_entries();
    drs_apply_assert_entries();
    drs_apply_permanent_entries();
    // The application may have made symbols.
    fse->parent()->globals->number_globals();
  }

  // The template export runs last, also when nothing was read.
  export_drs_template(drs_file_version, fse, procs, vars, drs_template_entries);
}

// Speaks no word: no warnings and no log, whatever the options say. init entries are bound
// and then have no effect.
void run_cpp_drs_pass(const char *path, file_set_entry *fse) {
  drs_file_path = path;
  drs_fse = fse;
  flag_no_warnings_for_drs = true;
  drs_no_log = true;
  drs_read_text_file();
  drs_bind_entries();
  drs_apply_assert_entries();
  drs_apply_permanent_entries();
}
