// Fuzz target of the XML range file: any bytes as a range file, read through
// the cursor into entries against a small program, whose main generator lists
// the file may edit; then the silent pre-binding with its default test and the
// binding itself. Last, the writer gets a name made of the raw input bytes and
// what it writes must load again: whatever it is handed, its output is valid.
// Warnings and the log go to /dev/null.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

#include "drs/drs_bind.h"
#include "drs/drs_xml.h"
#include "drsxml/drs_parser.h"
#include "ir/builder.h"

static program_builder *program;
static sym_node *vars[3];
static sym_node *procs[2];
static FILE *null_stream;

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  int argc = 1;
  static char name[] = "fuzz";
  static char *argv[] = {name, nullptr};
  init_suif(argc, argv);
  program = new program_builder(nullptr, "dir/a.c");
  program_builder &b = *program;
  struct_type *node = b.struct_of("node", {{"x", type_signed}, {"e", b.enum_of("e", {{"E0", 0}, {"E9", 9}})}});
  vars[0] = b.global_var("g", type_signed);
  vars[1] = b.global_var("v", b.volatile_of(type_unsigned));
  vars[2] = b.global_var("p", b.ptr(node));
  b.global_var("u", b.union_of("u", {{"f", type_float}, {"d", type_double}}));
  b.global_var("a", b.array(b.ptr(type_char), 4), false);
  b.static_var("s", type_signed);
  procs[0] = b.defined_proc("f", b.func(type_signed, {type_signed, b.ptr(type_signed)}));
  procs[1] = b.extern_proc("h", b.func(b.ptr(node), {b.ptr(node), type_char}, true));
  b.extern_proc("k", b.func_noproto(type_void));
  null_stream = fopen("/dev/null", "w");
  return 0;
}

// The writer's side: raw bytes as the name and bounds of elements of each kind.
static void write_and_reload(const uint8_t *data, size_t size, const std::string &path) {
  std::string raw(reinterpret_cast<const char *>(data), size < 64 ? size : 64);
  drs_write_init();
  drs_set_file(raw.c_str());
  drs_add_element(DRS_ELEMENT_POINTER, raw.c_str(), -1, 1, 0);
  drs_set_pointer(2, raw.c_str(), raw.c_str(), "", (int)size, 0);
  drs_add_element(DRS_ELEMENT_SCALAR, raw.c_str(), 7, 0, 0);
  drs_set_scalar((int)size % 5 - 1, 8, raw.c_str(), (int)size % 4, raw.c_str(), "1", 7, "", raw.c_str(), 0);
  drs_set_file(nullptr);
  drs_add_element((int)size % 9, "", 0, 0, 0);
  drs_write_end(path.c_str());
  drs_set_warnings(1);
  drs_read_init(path.c_str());
  int count = 0;
  while (drs_get_next_element())
    count++;
  if (count != 4)
    abort();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  static std::string path = "/tmp/fuzz_drs_xml_reader_" + std::to_string(getpid()) + ".xml";
  static std::string out = "/tmp/fuzz_drs_xml_writer_" + std::to_string(getpid()) + ".xml";
  FILE *f = fopen(path.c_str(), "wb");
  if (!f)
    return 0;
  fwrite(data, 1, size, f);
  fclose(f);

  FILE *saved_stderr = stderr;
  stderr = null_stream;
  drs_init_state();
  sym_node_list main_vars, main_procs;
  for (sym_node *v : vars)
    main_vars.append(v);
  main_procs.append(procs[0]);
  drs_fse = program->fse();
  drs_main_vars = &main_vars;
  drs_main_procs = &main_procs;
  drs_file_path = path.c_str();
  drs_file_version = drs_get_file_version(path.c_str());
  if (drs_file_version != 0) {
    drs_read_xml_file();
    if (main_vars.count() > 3 || main_procs.count() > 2)
      abort();
    drs_prebind_defaults();
    drs_bind_entries();
  }
  drs_free_state();
  write_and_reload(data, size, out);
  stderr = saved_stderr;
  return 0;
}
