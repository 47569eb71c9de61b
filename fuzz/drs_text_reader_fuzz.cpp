// Fuzz target of the range text reader: any bytes as a range file; every
// entry read is checked against each kind of leaf type, normalised when
// accepted and logged, then the whole file is bound to a small program and the
// bound entries are logged. A bad file must give warnings, never a crash or a
// read past a line. The log and the warnings are sent to /dev/null.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>
#include <vector>

#include "driver/options.h"
#include "drs/drs_bind.h"
#include "drs/drs_log.h"
#include "drs/drs_values.h"
#include "ir/builder.h"

static std::vector<type_node *> leaf_types;
static FILE *null_stream;
static file_set_entry *program;

// Globals and functions of every kind that a range can name.
static void make_program(program_builder &b) {
  struct_type *anonymous = b.union_of("1", {{"a", type_signed_short}, {"b", type_unsigned_char}});
  struct_type *point = b.struct_of("point", {{"x", type_signed}, {"qvtunnsubs0", anonymous}});
  b.global_var("a", type_signed);
  b.global_var("u", type_unsigned_char);
  b.global_var("big", b.int_of(128, true));
  b.global_var("col", b.enum_of("color", {{"RED", -1}, {"BLUE", 5}}));
  b.global_var("f", type_float);
  b.global_var("d", type_double);
  b.global_var("ld", type_longdouble);
  b.global_var("p", b.ptr(type_char));
  b.global_var("pp", b.ptr(b.ptr(type_signed)));
  b.global_var("fp", b.ptr(b.func(type_void, {})));
  b.global_var("s", point);
  b.global_var("arr", b.array(point, 4));
  b.global_var("vv", b.volatile_of(type_signed));
  b.static_var("st", type_signed);
  b.defined_proc("fun", b.func(type_signed, {type_signed, b.ptr(type_signed)}));
  b.extern_proc("stub", b.func(type_signed, {b.ptr(type_signed), type_signed}, true));
}

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
  make_program(builder);
  program = builder.fse();
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

  // Binding replaces the bounds of the entries it accepts, which are then left
  // to the end of the process like the run's own; the texts of the reader are freed.
  struct texts {
    drs_entry *entry;
    char *min, *max;
  };
  std::vector<texts> read;
  for (drs_entry *entry : *drs_read_entries)
    read.push_back({entry, entry->min, entry->max});
  drs_fse = program;
  flag_flaw_scan = size % 2 == 0;
  drs_bind_entries();
  for (drs_entry_list *list : {drs_init_entries, drs_permanent_entries, drs_assert_entries})
    for (drs_entry *entry : *list)
      drs_log_entry(entry);
  flag_flaw_scan = false;
  for (texts &t : read) {
    t.entry->min = t.min;
    t.entry->max = t.max;
    free_entry(t.entry);
  }
  for (drs_entry *entry : *drs_template_entries)
    free_entry(entry);
  drs_free_state();
  stderr = saved_stderr;
  return 0;
}
