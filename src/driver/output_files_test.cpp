// Output files: the line writer's indentation, the text lists that the prologue consumes, the
// per-file marks, and the stub file (appended, its lines emptied).
#include "driver/output_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <random>
#include <vector>
#include <fstream>
#include <sstream>

#include "driver/options.h"
#include "types/ir_test_fixture.h"
#include "types/type_emitter.h"

namespace {

// The prologue as it must read on a 64-bit target without -instrument, written from its
// literals (the other forms are checked end to end); random_vars stands where the random
// variables of the types go.
std::string expected_prologue(const std::string &random_vars) {
  return "#include \"qvt_stub_types.h\"\n\n"
         "extern void assert(int);\n\n"
         "\n"
         "#define QVT_TRUE() qvt_random_int\n\n"
         "/* Definition of max array size */\n\n"
         "/* Number of bits of 1 byte and addressable unit size */\n\n"
         "#define QVT_SIZE_CHAR_IN_BITS 8\n\n"
         "/* Memory zone addressable according to the target and the pointer configuration */\n\n"
         "#define ARRAY_SIZE (2147483647 / QVT_SIZE_CHAR_IN_BITS)\n"
         "#define ARRAY_NBELEM_0(TY) (((ARRAY_SIZE / 2) - 1) / sizeof (TY))\n"
         "#define ARRAY_NBELEM(TY) (ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY))\n\n"
         "\n"
         "/* Declaration of random variables */\n\n"
         "static volatile __QVT__CHAR qvt_random_char;\n\n"
         "static volatile int qvt_random_int;\n\n" +
         random_vars +
         "\n/* Definition of needed stubs for function pointers */\n\n"
         "\n/* Definition of init procedures */\n\n"
         "\n/* Definition of variables init procedures */\n\n"
         "\n/* Definition of functions */\n\n";
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
    std::string tmpl = ::testing::TempDir() + "qvt_output_files_XXXXXX";
    dir = mkdtemp(tmpl.data());
    stubs_dir = const_cast<char *>(dir.c_str());
    saved_instrum = flag_instrum;
    flag_instrum = false;
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
  std::string want = expected_prologue(vars);
  want.insert(want.find("\n/* Definition of init procedures */"), "F1\n");
  want.insert(want.find("\n/* Definition of variables init procedures */"), "I1\nI2\n");
  want.insert(want.find("\n/* Definition of functions */"), "V1\n");
  want += "X1\n";
  EXPECT_EQ(text, want);
  // The lists are new and empty: the next file gets none of this text.
  EXPECT_NE(function_texts, old);
  EXPECT_TRUE(function_texts->is_empty() && init_proc_texts->is_empty() && random_type_list->is_empty());
  EXPECT_EQ(prologue_text(), expected_prologue(""));
}

TEST_F(output_files_test, reset_strips_per_file_marks_of_global_types_only) {
  type_node *global_int = type_signed;
  struct_type *s = b->struct_of("s", {{"x", type_signed}});
  set_type_name(s, "struct s");
  s->append_annote(k_type_defined);
  for (const char *k : {k_init_proc_decl, k_fct_stub, k_fct_stub_pure, k_fct_stub_worst}) {
    add_per_file_mark(s, k);
    add_per_file_mark(global_int, k);
  }
  s->append_annote(k_init_proc);
  global_int->append_annote(k_init_proc);
  add_per_file_mark(s, k_fct_stub);
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

// The reset as first written: every type of the global table, each per-file mark name in turn,
// every annotation of that name removed.
void strip_by_walking_every_global_type() {
  for (type_node_list_e *e = fileset->globals->types()->head(); e; e = e->next())
    for (const char *k : {k_init_proc_decl, k_fct_stub, k_fct_stub_pure, k_fct_stub_worst})
      while (annote *a = e->contents->get_annote(k)) delete a;
}

// The annotations of every type, in creation order, as "name:value" lines; a type's table
// is part of the text.
std::string annotations_of(const std::vector<type_node *> &types) {
  std::string s;
  for (type_node *t : types) {
    s += t->parent() == fileset->globals ? "G" : "F";
    if (annote_list *al = t->annotes_if_any())
      for (annote_list_e *e = al->head(); e; e = e->next()) {
        s += " ";
        s += e->contents->name();
        if (immed_list *l = e->contents->immeds()) s += ":" + std::to_string(l->head()->contents.integer());
      }
    s += "\n";
  }
  return s;
}

// One random program, files after files: random marks on random types of the global table
// and of the file's own table, some arriving with the program before the first reset, some
// global types moved to the file table on the way. Returns the annotations after each
// file's reset, made by reset_generation_state() (fast) or by the walk above.
std::vector<std::string> marks_after_each_file(program_builder *b, unsigned seed, bool fast) {
  std::mt19937 rng(seed);
  auto below = [&](unsigned n) { return (unsigned)(rng() % n); };
  forget_generation_marks();
  std::vector<type_node *> types = {type_signed, type_char, type_double};
  unsigned globals = 2 + below(30), locals = below(10);
  for (unsigned i = 0; i < globals; i++) {
    std::string tag = "g" + std::to_string(i);
    types.push_back(below(2) ? static_cast<type_node *>(b->struct_of(tag.c_str(), {{"x", type_signed}}))
                             : b->func(type_signed, {b->ptr(types[below((unsigned)types.size())])}));
  }
  for (unsigned i = 0; i < locals; i++) {
    std::string tag = "f" + std::to_string(i);
    types.push_back(b->file_table()->install_type(new struct_type(TYPE_STRUCT, 0, tag.c_str(), 0)));
  }
  const char *names[] = {"init_proc_decl", "k_fct_stub", "fct_stub_pure", "fct_stub_worst",
                         "type_defined",   "type_name",  "init_proc",     "other"};
  int value = 0;
  auto annotate = [&](type_node *t, const char *name) {
    immed_list *l = new immed_list;
    l->append(immed(value++));
    t->append_annote(name, l);
  };
  for (unsigned n = below(20); n > 0; n--) annotate(types[below((unsigned)types.size())], names[below(8)]);
  reset_generation_state(); // first of the run: registers the marks, strips nothing
  std::vector<std::string> after;
  for (unsigned file = 0, files = 1 + below(6); file < files; file++) {
    for (unsigned n = below(40); n > 0; n--) {
      type_node *t = types[below((unsigned)types.size())];
      unsigned name = below(8);
      if (name < 4) {
        const char *marks[] = {k_init_proc_decl, k_fct_stub, k_fct_stub_pure, k_fct_stub_worst};
        if (fast) add_per_file_mark(t, marks[name]);
        else t->append_annote(marks[name]);
      } else {
        annotate(t, names[name]);
      }
    }
    if (below(4) == 0) {
      type_node *t = types[3 + below(globals)];
      if (t->parent() == fileset->globals) {
        fileset->globals->remove_type(t);
        b->file_table()->add_type(t);
      }
    }
    if (fast) reset_generation_state();
    else strip_by_walking_every_global_type();
    after.push_back(annotations_of(types));
  }
  return after;
}

TEST_F(output_files_test, reset_strips_the_same_marks_as_a_walk_over_every_global_type) {
  for (unsigned seed = 1; seed <= 300; seed++) {
    std::vector<std::string> fast = marks_after_each_file(b, seed, true);
    ir_test::TearDown();
    ir_test::SetUp();
    std::vector<std::string> walked = marks_after_each_file(b, seed, false);
    ir_test::TearDown();
    ir_test::SetUp();
    ASSERT_EQ(fast, walked) << "seed " << seed;
  }
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
  std::string one = expected_prologue("") + "int f(void)\n{\n    return 0;\n}\n";
  EXPECT_EQ(read_file(path), one);
  // A second write appends: nothing is cut.
  write_stub_file(&lines);
  EXPECT_EQ(read_file(path), one + expected_prologue(""));
}

}  // namespace

// A write that fails at close (the disk filled up under the stream) ends the run and takes
// back what the writer appended: an existing file keeps its old text, a new one goes.
TEST_F(output_files_test, failed_write_leaves_no_cut_file) {
  std::string old_file = dir + "/old.c", new_file = dir + "/new.c";
  { std::ofstream(old_file) << "/* before */\n"; }
  for (const std::string &path : {old_file, new_file}) {
    EXPECT_EXIT(
        {
          open_output_file(path.c_str());
          emit_line("int x;\n");
          dup2(open("/dev/full", O_WRONLY), fileno(out_file));
          close_output_file();
        },
        ::testing::ExitedWithCode(1), "file '" + path + "' write fails: No space left on device");
  }
  EXPECT_EQ(read_file(old_file), "/* before */\n");
  EXPECT_NE(access(new_file.c_str(), F_OK), 0);
}
