// Output files: how every generated C file is opened, indented, prefixed and closed.
//
// Generators never write: they return text as string_lists (one piece per line) and leave
// helper definitions in the text lists below. A writer opens its file only when all its text
// is built, so the helper text collected during that build goes into its prologue, ahead of
// the code that uses it. Files are always appended to (mode "ab"): a second run into the same
// directory extends what is there.
#include "driver/output_files.h"

#include <cerrno>
#include <cstring>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "driver/options.h"
#include "types/type_emitter.h"

FILE *out_file = nullptr;
int indent_level = 0;
int stub_file_index = 0;
bool main_file_written = false;

string_list *fptr_stub_texts = nullptr;
string_list *init_proc_texts = nullptr;
string_list *var_init_proc_texts = nullptr;
string_list *function_texts = nullptr;
type_node_list *random_type_list = nullptr;

const char *k_type_defined = nullptr;
const char *k_type_name = nullptr;
const char *k_init_proc = nullptr;
const char *k_init_proc_decl = nullptr;
const char *k_already_init_sym = nullptr;
const char *k_calling_proc = nullptr;
const char *k_fct_stub = nullptr;
const char *k_fct_stub_pure = nullptr;
const char *k_fct_stub_worst = nullptr;

// Stub files are most of the output, one call here per line: the indentation goes out in one
// write, and the stream is only ever used by this thread, so the unlocked calls serve.
void emit_indent() {
  static const char blanks[] = "                                                                ";
  size_t n = indent_level > 0 ? (size_t)indent_level * 4 : 0;
  while (n > 0) {
    size_t k = n < sizeof blanks - 1 ? n : sizeof blanks - 1;
    fwrite_unlocked(blanks, 1, k, out_file);
    n -= k;
  }
}

void emit_line(const char *text) {
  if (text && text[0] == '}') indent_level--;
  emit_indent();
  if (text && text[0] == '{') indent_level++;
  if (text) fputs_unlocked(text, out_file);
}

char *stubs_dir_path(const char *name) {
  return bufprintf("%s/%s", stubs_dir, name);
}

// A generated file is hundreds of kilobytes: a buffer larger than the default one saves
// system calls. Only one output file is ever open; should a second be, it keeps the default.
static char out_buffer[1 << 16];
static FILE *out_buffer_owner = nullptr;

// The open file's path, and its size before this writer appended (-1: the file is new), so
// that a write that fails takes back what it appended rather than leave a cut file behind.
static std::string out_path;
static long out_start = -1;

FILE *open_output_file(const char *path) {
  struct stat st;
  out_start = stat(path, &st) == 0 ? (long)st.st_size : -1;
  out_path = path;
  out_file = fopen(path, "ab");
  if (!out_file) error_line(1, nullptr, "qvt-stubber: file '%s' access fails", path);
  if (!out_buffer_owner) {
    setvbuf(out_file, out_buffer, _IOFBF, sizeof out_buffer);
    out_buffer_owner = out_file;
  }
  return out_file;
}

// A full disk or a device that takes nothing (/dev/full) shows in the stream's error flag or
// in the last flush. The run can't deliver what it was asked for: it ends, as when the file
// can't be opened, without writing the output IR.
void close_output_file() {
  if (out_file == out_buffer_owner) out_buffer_owner = nullptr;
  bool failed = ferror(out_file) || fflush(out_file) != 0;
  int saved = errno ? errno : EIO;
  if (!failed) {
    if (checked_fclose(out_file) == 0) return;
    saved = errno ? errno : EIO;
  } else {
    fclose(out_file);
  }
  struct stat st;
  if (stat(out_path.c_str(), &st) == 0 && S_ISREG(st.st_mode)) {
    if (out_start < 0) unlink(out_path.c_str());
    else if (truncate(out_path.c_str(), out_start) != 0) { /* the message below still says it */ }
  }
  error_line(1, nullptr, "qvt-stubber: file '%s' write fails: %s", out_path.c_str(), strerror(saved));
}

// Moves every piece of from to the end of into; from ends empty.
static void move_pieces(string_list *into, string_list *from) {
  if (from) into->append(from);
}

string_list *build_prologue(const char *header_name) {
  string_list *r = new string_list;
  r->append(bufprintf("#include \"%s\"\n\n", header_name));
  r->append("extern void assert(int);\n\n");
  r->append(flag_instrum ? "extern long long __qvt_i64_rand_range(long long min, long long max); extern unsigned long long __qvt_u64_rand_range(unsigned long long min, unsigned long long max); extern int __qvt_i32_rand_range(int min, int max); extern unsigned int __qvt_u32_rand_range(unsigned int min, unsigned int max); extern int __qvt_i8_rand_range(int min, int max); extern unsigned int __qvt_u8_rand_range(unsigned int min, unsigned int max); extern int __qvt_i16_rand_range(int min, int max); extern unsigned int __qvt_u16_rand_range(unsigned int min, unsigned int max); extern double __qvt_f32_rand_range(double min, double max); extern double __qvt_f64_rand_range(double min, double max); extern long double __qvt_f128_rand_range(long double min, long double max);\n" : "\n");
  r->append(flag_instrum ? "#define QVT_TRUE() (qvt_random_int % 2 != 0)\n\n" : "#define QVT_TRUE() qvt_random_int\n\n");
  r->append("/* Definition of max array size */\n\n");
  r->append("/* Number of bits of 1 byte and addressable unit size */\n\n");
  r->append(bufprintf("#define QVT_SIZE_CHAR_IN_BITS %d\n\n", target.addressable_size));
  r->append("/* Memory zone addressable according to the target and the pointer configuration */\n\n");
  bool big_zone = type_ptr->size() >= 32 && !flag_instrum;
  r->append(bufprintf("#define ARRAY_SIZE %s\n", big_zone ? "(2147483647 / QVT_SIZE_CHAR_IN_BITS)" : "(65535)"));
  r->append("#define ARRAY_NBELEM_0(TY) (((ARRAY_SIZE / 2) - 1) / sizeof (TY))\n");
  r->append(bufprintf("#define ARRAY_NBELEM(TY) %s\n\n", flag_instrum ? "(ARRAY_NBELEM_0(TY) > 32 ? 32 : (ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY)))" : "(ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY))"));
  if (flag_instrum) {
    r->append("extern void **__quorvanta_vararg; ");
    r->append("extern int __quorvanta_nb_varargs;\n");
  } else {
    r->append("\n");
  }
  r->append("/* Declaration of random variables */\n\n");
  r->append("static volatile __QVT__CHAR qvt_random_char;\n\n");
  r->append(flag_instrum ? "static volatile unsigned int qvt_random_int;\n\n" : "static volatile int qvt_random_int;\n\n");
  if (random_type_list && !random_type_list->is_empty()) {
    for (type_node_list_e *e = random_type_list->head(); e; e = e->next())
      r->append(bufprintf("static volatile %s qvt_random_g_%d;\n", get_type_name(e->contents), (int)e->contents->type_id()));
    r->append("\n");
  }
  r->append("\n/* Definition of needed stubs for function pointers */\n\n");
  move_pieces(r, fptr_stub_texts);
  r->append("\n/* Definition of init procedures */\n\n");
  move_pieces(r, init_proc_texts);
  r->append("\n/* Definition of variables init procedures */\n\n");
  move_pieces(r, var_init_proc_texts);
  r->append("\n/* Definition of functions */\n\n");
  move_pieces(r, function_texts);
  reset_generation_state();
  return r;
}

// Registers one of this module's marks (not written to the output IR).
static const char *register_mark(const char *name) {
  return register_annote(new annote_def(name, false));
}

static bool is_per_file_mark(const char *name) {
  return name == k_init_proc_decl || name == k_fct_stub || name == k_fct_stub_pure || name == k_fct_stub_worst;
}

// Deletes the per-file marks of t in one walk of its annotations. Marks of other names keep
// their order; which mark name goes first doesn't show in what remains.
static void strip_per_file_marks(type_node *t) {
  annote_list *al = t->annotes_if_any();
  if (!al) return;
  for (annote_list_e *e = al->head(); e;) {
    annote_list_e *next = e->next();
    if (is_per_file_mark(e->contents->name())) {
      delete al->remove(e)->contents;
      delete e;
    }
    e = next;
  }
}

// The global types that may carry a per-file mark, once per mark put (a type may stand here
// more than once; stripping is idempotent). A run makes one stub file per 200 stubs, so
// walking every global type after each file would cost files times types; the marks of a file
// are few.
static std::vector<type_node *> marked_types;

static bool is_global_type(const type_node *t) {
  return fileset && fileset->globals && t->parent() == fileset->globals;
}

void add_per_file_mark(type_node *t, const char *mark) {
  t->append_annote(mark);
  if (is_global_type(t)) marked_types.push_back(t);
}

// An input file may already carry marks of these names; the first reset remembers the global
// types that do, so that the next one strips them like those marked here.
static void remember_input_marks() {
  marked_types.clear();
  if (!fileset || !fileset->globals) return;
  for (type_node_list_e *e = fileset->globals->types()->head(); e; e = e->next()) {
    annote_list *al = e->contents->annotes_if_any();
    if (!al) continue;
    for (annote_list_e *a = al->head(); a; a = a->next())
      if (is_per_file_mark(a->contents->name())) {
        marked_types.push_back(e->contents);
        break;
      }
  }
}

void reset_generation_state() {
  if (!k_type_defined) {
    k_type_defined = register_mark("type_defined");
    k_type_name = register_mark("type_name");
    k_init_proc = register_mark("init_proc");
    k_init_proc_decl = register_mark("init_proc_decl");
    k_already_init_sym = register_mark("already_init_sym");
    k_calling_proc = register_mark("calling_proc");
    k_fct_stub = register_mark("k_fct_stub");
    k_fct_stub_pure = register_mark("fct_stub_pure");
    k_fct_stub_worst = register_mark("fct_stub_worst");
    target_long_is_24_bits = type_signed_long->size() == 24;
    remember_input_marks();
  } else {
    // Types in a file's own table keep their marks; a type that left the global table since
    // its mark is no longer one of the global types either.
    for (type_node *t : marked_types)
      if (is_global_type(t)) strip_per_file_marks(t);
    marked_types.clear();
  }
  // The old lists are abandoned, not deleted: a caller may still hold one.
  init_proc_texts = new string_list;
  var_init_proc_texts = new string_list;
  function_texts = new string_list;
  random_type_list = new type_node_list;
  fptr_stub_texts = new string_list;
}

void forget_generation_marks() {
  marked_types.clear(); // the types go with the run
  k_type_defined = k_type_name = k_init_proc = k_init_proc_decl = nullptr;
  k_already_init_sym = k_calling_proc = k_fct_stub = k_fct_stub_pure = k_fct_stub_worst = nullptr;
}

void write_stub_file(string_list *lines) {
  open_output_file(bufprintf("%s/%s_%d.c", stubs_dir, "qvt_stubs", stub_file_index));
  string_list *prologue = build_prologue("qvt_stub_types.h");
  for (string_list_e *e = prologue->head(); e; e = e->next()) emit_line(e->contents);
  delete prologue;
  for (string_list_e *e = lines->head(); e; e = e->next()) emit_line(e->contents);
  close_output_file();
  lines->erase();
}
