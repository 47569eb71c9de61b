// Fuzz target of the range text reader: any bytes as a range file, then every
// entry read checked against each kind of leaf type, normalised when accepted,
// and logged. A bad file must give warnings, never a crash or a read past a
// line. The log and the warnings are sent to /dev/null.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>
#include <vector>

#include "driver/options.h"
#include "drs/drs_log.h"
#include "drs/drs_values.h"
#include "ir/builder.h"

static std::vector<type_node *> leaf_types;
static FILE *null_stream;

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  int argc = 1;
  static char name[] = "fuzz";
  static char *argv[] = {name, nullptr};
  init_suif(argc, argv);
  static program_builder builder(nullptr);
  leaf_types = {type_signed_char,
                type_unsigned,
                builder.int_of(128, true),
                builder.enum_of("e", {{"E_LOW", -3}, {"E_HIGH", 9}}),
                type_float,
                type_double,
                type_longdouble,
                builder.ptr(type_char),
                builder.ptr(builder.array(type_signed, -1)),
                builder.ptr(builder.func(type_void, {})),
                builder.struct_of("s", {{"x", type_signed}})};
  null_stream = fopen("/dev/null", "w");
  return 0;
}

static void free_entry(drs_entry *entry) {
  free(entry->name);
  free(entry->min);
  free(entry->max);
  free(entry);
}

// Normalising replaces a bound by a heap text, except for the constant
// keyword texts of floats and the "0" of a pointer's "min".
static void check_entry(const drs_entry *read, type_node *type, bool as_instrum) {
  unsigned status = 0;
  if (!drs_check_values(type, read->min, read->max, &status))
    return;
  flag_instrum = as_instrum;
  drs_entry *entry = drs_new_entry(read->mode, read->name, read->min, read->max, read->line, read->pointer_kind);
  char *min = entry->min, *max = entry->max;
  drs_normalise_bounds(entry, type);
  drs_normalise_bounds(entry, type);
  entry->type = type;
  drs_log_entry(entry);
  type_ops op = type->unqual()->op();
  if (op == TYPE_INT || op == TYPE_ENUM || (op == TYPE_PTR && !strcmp(min, "max")))
    free(entry->min);
  if (op == TYPE_INT || op == TYPE_ENUM || (op == TYPE_PTR && !strcmp(max, "max")))
    free(entry->max);
  entry->min = min;
  entry->max = max;
  free_entry(entry);
  flag_instrum = false;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  static std::string path = "/tmp/fuzz_drs_text_reader_" + std::to_string(getpid()) + ".txt";
  FILE *f = fopen(path.c_str(), "wb");
  if (!f)
    return 0;
  fwrite(data, 1, size, f);
  fclose(f);

  FILE *saved_stderr = stderr;
  stderr = null_stream;
  drs_init_state();
  drs_file_path = path.c_str();
  drs_read_text_file();
  if (drs_read_entries->size() != drs_template_entries->size())
    abort();
  unsigned checked = 0;
  for (drs_entry *entry : *drs_read_entries) {
    if (entry->line < 1 || entry->mode < DRS_MODE_INIT || entry->mode > DRS_MODE_GLOBALASSERT)
      abort();
    // A few entries an input are enough to reach every check.
    if (checked++ < 16)
      for (type_node *type : leaf_types)
        check_entry(entry, type, checked % 2 == 0);
  }
  for (drs_entry_list *list : {drs_read_entries, drs_template_entries})
    for (drs_entry *entry : *list)
      free_entry(entry);
  drs_free_state();
  stderr = saved_stderr;
  return 0;
}
