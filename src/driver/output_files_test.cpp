// Output files: the line writer's indentation, the prologue in its four forms, the text lists
// that the prologue consumes, the per-file marks, and the stub file (append mode, fatal open).
#include "driver/output_files.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "driver/options.h"
#include "types/ir_test_fixture.h"
#include "types/type_emitter.h"

namespace {

// The prologue as it must read, written from its literals (the header is "qvt_stub_types.h").
std::string expected_prologue(bool instrum, bool big_zone, const std::string &random_vars) {
  std::string s;
  s += "#include \"qvt_stub_types.h\"\n\n";
  s += "extern void assert(int);\n\n";
  s += instrum ? "extern long long __qvt_i64_rand_range(long long min, long long max); extern unsigned long long __qvt_u64_rand_range(unsigned long long min, unsigned long long max); extern int __qvt_i32_rand_range(int min, int max); extern unsigned int __qvt_u32_rand_range(unsigned int min, unsigned int max); extern int __qvt_i8_rand_range(int min, int max); extern unsigned int __qvt_u8_rand_range(unsigned int min, unsigned int max); extern int __qvt_i16_rand_range(int min, int max); extern unsigned int __qvt_u16_rand_range(unsigned int min, unsigned int max); extern double __qvt_f32_rand_range(double min, double max); extern double __qvt_f64_rand_range(double min, double max); extern long double __qvt_f128_rand_range(long double min, long double max);\n" : "\n";
  s += instrum ? "#define QVT_TRUE() (qvt_random_int % 2 != 0)\n\n" : "#define QVT_TRUE() qvt_random_int\n\n";
  s += "/* Definition of max array size */\n\n";
  s += "/* Number of bits of 1 byte and addressable unit size */\n\n";
  s += "#define QVT_SIZE_CHAR_IN_BITS 8\n\n";
  s += "/* Memory zone addressable according to the target and the pointer configuration */\n\n";
  s += big_zone ? "#define ARRAY_SIZE (2147483647 / QVT_SIZE_CHAR_IN_BITS)\n" : "#define ARRAY_SIZE (65535)\n";
  s += "#define ARRAY_NBELEM_0(TY) (((ARRAY_SIZE / 2) - 1) / sizeof (TY))\n";
  s += instrum ? "#define ARRAY_NBELEM(TY) " "(ARRAY_NBELEM_0(TY) > 32 ? 32 : (ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY)))" "\n\n" : "#define ARRAY_NBELEM(TY) " "(ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY))" "\n\n";
  s += instrum ? "extern void **__quorvanta_vararg; " "extern int __quorvanta_nb_varargs;\n" : "\n";
  s += "/* Declaration of random variables */\n\n";
  s += "static volatile __QVT__CHAR qvt_random_char;\n\n";
  s += instrum ? "static volatile unsigned int qvt_random_int;\n\n" : "static volatile int qvt_random_int;\n\n";
  s += random_vars;
  s += "\n/* Definition of needed stubs for function pointers */\n\n";
  s += "\n/* Definition of init procedures */\n\n";
  s += "\n/* Definition of variables init procedures */\n\n";
  s += "\n/* Definition of functions */\n\n";
  return s;
}

std::string read_file(const std::string &path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream ss;
  ss << in.rdbuf();
  return ss.str();
}

class output_files_test : public ir_test {
protected:
  void SetUp() override {
    ir_test::SetUp();
    char tmpl[] = "/tmp/qvt_output_files_XXXXXX";
    dir = mkdtemp(tmpl);
    stubs_dir = const_cast<char *>(dir.c_str());
    saved_instrum = flag_instrum;
    stub_file_index = 0;
    indent_level = 0;
  }
  void TearDown() override {
    flag_instrum = saved_instrum;
    stubs_dir = nullptr;
    std::string cmd = "rm -rf '" + dir + "'";
    EXPECT_EQ(system(cmd.c_str()), 0);
    ir_test::TearDown();
  }
  std::string prologue_text() {
    string_list *l = build_prologue("qvt_stub_types.h");
    std::string s = text_of(l);
    delete l;
    return s;
  }
  std::string dir;
  bool saved_instrum = false;
};

TEST_F(output_files_test, emit_line_indents_by_the_first_character) {
  std::string path = dir + "/lines.c";
  out_file = fopen(path.c_str(), "wb");
  ASSERT_NE(out_file, nullptr);
  emit_line("void f(void)\n");
  emit_line("{\n");
  emit_line("x = { 1 };\n");  // a brace inside a line changes nothing
  emit_line("{\n");
  emit_line("y;\n");
  emit_line("}\n");
  emit_line("}\n");
  emit_line("z;\n");
  fclose(out_file);
  EXPECT_EQ(read_file(path), "void f(void)\n{\n    x = { 1 };\n    {\n        y;\n    }\n}\nz;\n");
  EXPECT_EQ(indent_level, 0);
}

TEST_F(output_files_test, prologue_plain_with_64_bit_pointers) {
  flag_instrum = false;
  EXPECT_EQ(prologue_text(), expected_prologue(false, true, ""));
}

TEST_F(output_files_test, prologue_instrumenting_always_takes_the_small_zone) {
  flag_instrum = true;
  EXPECT_EQ(prologue_text(), expected_prologue(true, false, ""));
}

TEST_F(output_files_test, prologue_plain_with_16_bit_pointers) {
  exit_suif();
  static char name[] = "stubber_tests";
  static char *argv[] = {name, nullptr};
  int argc = 1;
  init_suif(argc, argv);
  target.size[C_ptr] = 16;
  make_predefined_types();
  forget_generation_marks();
  reset_generation_state();
  flag_instrum = false;
  std::string text = prologue_text();
  set_default_target();
  EXPECT_EQ(text, expected_prologue(false, false, ""));
  delete b;
  b = new program_builder(nullptr);
}

TEST_F(output_files_test, prologue_moves_the_text_lists_in_their_sections) {
  define_type(type_signed, false);
  define_type(type_double, false);
  random_type_list->append(type_signed);
  random_type_list->append(type_double);
  fptr_stub_texts->append("F1\n");
  init_proc_texts->append("I1\n");
  init_proc_texts->append("I2\n");
  var_init_proc_texts->append("V1\n");
  function_texts->append("X1\n");
  string_list *old = function_texts;
  std::string text = prologue_text();
  std::string vars = "static volatile __QVT__SINT32 qvt_random_g_" + std::to_string(type_signed->type_id()) +
                     ";\nstatic volatile __QVT__FLOAT64 qvt_random_g_" + std::to_string(type_double->type_id()) +
                     ";\n\n";
  std::string want = expected_prologue(false, true, vars);
  want.insert(want.find("\n/* Definition of init procedures */"), "F1\n");
  want.insert(want.find("\n/* Definition of variables init procedures */"), "I1\nI2\n");
  want.insert(want.find("\n/* Definition of functions */"), "V1\n");
  want += "X1\n";
  EXPECT_EQ(text, want);
  // The lists are new and empty: the next file gets none of this text.
  EXPECT_NE(function_texts, old);
  EXPECT_TRUE(function_texts->is_empty() && init_proc_texts->is_empty() && random_type_list->is_empty());
  EXPECT_EQ(prologue_text(), expected_prologue(false, true, ""));
}

TEST_F(output_files_test, reset_strips_per_file_marks_of_global_types_only) {
  type_node *global_int = type_signed;
  struct_type *s = b->struct_of("s", {{"x", type_signed}});
  set_type_name(s, "struct s");
  s->append_annote(k_type_defined);
  for (const char *k : {k_init_proc_decl, k_fct_stub, k_fct_stub_pure, k_fct_stub_worst, k_init_proc}) {
    s->append_annote(k);
    global_int->append_annote(k);
  }
  s->append_annote(k_fct_stub);
  reset_generation_state();
  for (type_node *t : {static_cast<type_node *>(s), global_int}) {
    EXPECT_EQ(t->peek_annote(k_init_proc_decl), nullptr);
    EXPECT_EQ(t->peek_annote(k_fct_stub), nullptr);
    EXPECT_EQ(t->peek_annote(k_fct_stub_pure), nullptr);
    EXPECT_EQ(t->peek_annote(k_fct_stub_worst), nullptr);
    EXPECT_NE(t->peek_annote(k_init_proc), nullptr);
  }
  EXPECT_NE(s->peek_annote(k_type_defined), nullptr);
  EXPECT_STREQ(get_type_name(s), "struct s");
}

TEST_F(output_files_test, marks_are_registered_once_per_run) {
  const char *first = k_type_defined;
  ASSERT_NE(first, nullptr);
  EXPECT_STREQ(first, "type_defined");
  EXPECT_STREQ(k_fct_stub, "k_fct_stub");
  EXPECT_STREQ(k_fct_stub_worst, "fct_stub_worst");
  EXPECT_FALSE(target_long_is_24_bits);
  forget_generation_marks();
  EXPECT_EQ(k_type_name, nullptr);
  reset_generation_state();
  EXPECT_STREQ(k_type_name, "type_name");
}

TEST_F(output_files_test, stub_file_is_appended_and_lines_emptied) {
  string_list lines;
  lines.append("int f(void)\n");
  lines.append("{\n");
  lines.append("return 0;\n");
  lines.append("}\n");
  stub_file_index = 3;
  write_stub_file(&lines);
  EXPECT_TRUE(lines.is_empty());
  EXPECT_EQ(stub_file_index, 3);
  std::string path = dir + "/qvt_stubs_3.c";
  std::string one = expected_prologue(false, true, "") + "int f(void)\n{\n    return 0;\n}\n";
  EXPECT_EQ(read_file(path), one);
  // A second write appends: nothing is cut.
  write_stub_file(&lines);
  EXPECT_EQ(read_file(path), one + expected_prologue(false, true, ""));
}

TEST_F(output_files_test, type_header_starts_with_the_byte_type_and_appends) {
  write_stub_types_header();
  std::string text = read_file(dir + "/qvt_stub_types.h");
  EXPECT_EQ(text.rfind("typedef char __QVT__CHAR;\n", 0), 0u) << text;
  EXPECT_NE(text.find("typedef signed int __QVT__SINT32;\n"), std::string::npos);
  write_stub_types_header();
  // Every type is already defined: the second run adds only the byte type.
  EXPECT_EQ(read_file(dir + "/qvt_stub_types.h"), text + "typedef char __QVT__CHAR;\n");
}

TEST_F(output_files_test, unopenable_file_ends_the_process) {
  std::string missing = dir + "/no/such/dir";
  stubs_dir = const_cast<char *>(missing.c_str());
  string_list lines;
  EXPECT_EXIT(write_stub_file(&lines), ::testing::ExitedWithCode(1),
              "qvt-stubber: file '" + missing + "/qvt_stubs_0.c' access fails");
  EXPECT_EXIT(write_stub_types_header(), ::testing::ExitedWithCode(1),
              "qvt-stubber: file '" + missing + "/qvt_stub_types.h' access fails");
}

}  // namespace
