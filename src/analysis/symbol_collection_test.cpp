// Symbol collection on builder-made programs: which undefined functions are
// stubbed or refused (with the exact diagnosis, its position and the status),
// which variables the main writes, and the name lists of the options.
#include "analysis/stub_pragmas.h"
#include "analysis/symbol_collection.h"
#include "analysis/used_symbols.h"
#include "driver/global_lists.h"
#include "driver/options.h"
#include "types/ir_test_fixture.h"

#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace {

template <class List> std::vector<std::string> names_of(List *list) {
  std::vector<std::string> out;
  if (list)
    for (auto *e = list->head(); e; e = e->next())
      out.push_back(e->contents->name());
  return out;
}

using names = std::vector<std::string>;

class Collection : public ir_test {
protected:
  void SetUp() override {
    ir_test::SetUp();
    forget_stub_mode_name();
    current_fse = b->fse();
    exit_status = 0;
    automatic_stubber_reported = false;
    flag_permissive_stubber = flag_no_automatic_stubbing = flag_main_generator = false;
    flag_no_undef_variables_stubs = flag_stub_all_worst = flag_instrum = false;
    int_fn = b->func(type_signed, {type_signed});
  }
  void TearDown() override {
    delete_global_lists();
    delete procs_after_loop;
    procs_after_loop = nullptr;
    free_used_symbols_scratch();
    ir_test::TearDown();
    exit_status = 0;
    automatic_stubber_reported = false;
    flag_instrum = flag_main_generator = false;
  }
  // Runs the pass and returns what it printed on stderr.
  std::string collect(const char *tasks = nullptr, const char *cs_begin = nullptr, const char *temporal = nullptr,
                      const char *vars_before = nullptr, const char *vars_in = nullptr,
                      const char *funcs_in = nullptr, const char *funcs_before = nullptr,
                      const char *funcs_after = nullptr) {
    compute_used_symbols(b->fse());
    testing::internal::CaptureStderr();
    collect_symbols(tasks, cs_begin, nullptr, temporal, vars_before, vars_in, funcs_in, funcs_before, funcs_after,
                    nullptr);
    return testing::internal::GetCapturedStderr();
  }
  proc_sym *undefined(const char *name, func_type *type, int line) {
    b->set_line(line);
    return b->extern_proc(name, type);
  }

  func_type *int_fn = nullptr;
};

TEST_F(Collection, StubKinds) {
  proc_sym *nothing = undefined("nothing", b->func(type_void, {}), 1);
  proc_sym *writer = undefined("writer", b->func(type_void, {b->ptr(type_signed)}), 2);
  proc_sym *variadic =
      undefined("variadic", b->func(type_void, {b->const_of(type_signed)}, true), 3);
  set_stub_mode(nothing, STUB_WORST);
  EXPECT_EQ(stub_kind_of(nothing), STUB_PURE);
  EXPECT_EQ(stub_kind_of(writer), STUB_DEFAULT);
  EXPECT_EQ(stub_kind_of(variadic), STUB_DEFAULT);
  set_stub_mode(writer, STUB_CLEAN);
  set_stub_mode(writer, STUB_WORST);
  EXPECT_EQ(stub_kind_of(writer), STUB_CLEAN);
  flag_stub_all_worst = true;
  EXPECT_EQ(stub_kind_of(variadic), STUB_WORST);
  flag_stub_all_worst = false;
  set_stub_mode(nothing, STUB_NO_INSTRUMENT); // the first mark still wins
  EXPECT_EQ(stub_kind_of(nothing), STUB_PURE);
}

TEST_F(Collection, FunctionsThatAreNotStubbed) {
  flag_instrum = true;
  set_stub_mode(undefined("skipped", b->func(type_void, {}), 1), STUB_NO_INSTRUMENT);
  undefined("assert", int_fn, 2);
  undefined("unchecked_assert", int_fn, 3);
  b->annotate(undefined("__builtin_thing", int_fn, 4), k_builtin);
  undefined("kept", int_fn, 5);
  EXPECT_EQ(collect(), "");
  EXPECT_EQ(names_of(stub_proc_list), names{"kept"});
}

TEST_F(Collection, FakeMainIsShownAsMain) {
  proc_sym *fake = undefined("__quorvanta_fake_main", b->func_noproto(type_signed), 4);
  EXPECT_STREQ(display_name(fake), "main");
  EXPECT_NE(collect().find("function 'main' has unknown prototype"), std::string::npos);
}

TEST_F(Collection, TemporalFile) {
  EXPECT_EQ(collect(nullptr, nullptr, "no/such/file"), ""); // a missing file is silent
  EXPECT_TRUE(temporal_task_list->is_empty());
  EXPECT_EQ(exit_status, 0);
  TearDown();
  SetUp();
  b->annotate(b->defined_proc("task_a", b->func(type_void, {})), k_is_a_task);
  b->defined_proc("plain", b->func(type_void, {}));
  std::string path = testing::TempDir() + "qvt_temporal_XXXXXX";
  int fd = mkstemp(path.data());
  ASSERT_GE(fd, 0);
  FILE *f = fdopen(fd, "w");
  fputs("task_a plain\r\n\tghost\n", f); // a tab is part of a name, a carriage return is not
  fclose(f);
  std::string err = collect(nullptr, nullptr, path.c_str());
  remove(path.c_str());
  EXPECT_EQ(err, "error: Verifier found an error in parameter -temporal-exclusions: module \"plain\" must be a "
                 "task\n"
                 "error: Verifier found an error in parameter -temporal-exclusions: module \"\tghost\" must be "
                 "userdef\n");
}

TEST_F(Collection, UndefinedVariables) {
  b->global_var("defined_v", type_signed, true);
  b->global_var("ext_v", type_signed, false);
  b->global_var("std_v", type_signed, false)->set_flag(SYMFLAG_STANDARD_STUBBED);
  b->global_var("hidden", type_signed, false)->reset_userdef();
  collect();
  EXPECT_EQ(names_of(extern_var_list), names{"ext_v"});
  EXPECT_EQ(names_of(std_extern_var_list), names{"std_v"});
  EXPECT_EQ(vars_before_loop, nullptr);
}

TEST_F(Collection, MainVariables) {
  const struct {
    const char *before, *in;
    names want_before, want_in, want_extern;
  } cases[] = {
      {nullptr, "all", {"g1", "ext_v"}, {"g1", "ext_v", "file_v"}, {}},
      {"publicity", "all ", {}, {}, {"ext_v"}}, // words are compared whole
      {"custom=ext_v,nope,ext_v", nullptr, {"ext_v"}, {}, {}},
  };
  for (auto &c : cases) {
    TearDown();
    SetUp();
    flag_main_generator = true;
    b->global_var("g1", type_signed, true);
    b->global_var("ext_v", type_signed, false);
    b->global_var("konst", b->const_of(type_signed), true);
    b->static_var("file_v", type_signed);
    collect(nullptr, nullptr, nullptr, c.before, c.in);
    EXPECT_EQ(names_of(vars_before_loop), c.want_before) << c.before;
    EXPECT_EQ(names_of(vars_in_loop), c.want_in) << c.in;
    EXPECT_EQ(names_of(extern_var_list), c.want_extern); // those the main writes are not stubbed
    EXPECT_EQ(exit_status, 0);
  }
}

TEST_F(Collection, LoopFunctions) {
  const struct {
    const char *in, *before, *after;
    names want_in, want_before;
  } cases[] = {
      {nullptr, "init,ghost", "work", {"init", "work"}, {"init"}},
      {"unused", "init,ghost", nullptr, {"work"}, {"init"}},       // init functions leave the loop
      {"custom=init,init,none", "init", nullptr, {"init"}, {"init"}}, // but not a custom loop
  };
  for (auto &c : cases) {
    TearDown();
    SetUp();
    flag_main_generator = true;
    b->defined_proc("init", b->func(type_void, {}));
    b->defined_proc("work", b->func(type_void, {}));
    collect(nullptr, nullptr, nullptr, nullptr, nullptr, c.in, c.before, c.after);
    EXPECT_EQ(names_of(procs_in_loop), c.want_in) << c.in;
    EXPECT_EQ(names_of(procs_before_loop), c.want_before) << c.in;
    if (c.after) {
      EXPECT_EQ(names_of(procs_after_loop), names{c.after});
    }
  }
}

TEST_F(Collection, FilePrefixFindsOnlyThatOrigin) {
  b->global_var("count", type_signed, true);
  b->set_source_file("other.c");
  var_sym *in_other = b->static_var("count", type_signed);
  EXPECT_EQ(find_original_symbol(b->fse(), "OTHER.C:count", SYM_VAR), in_other);
  EXPECT_EQ(find_original_symbol(b->fse(), "other.c:count.field", SYM_VAR), in_other);
  EXPECT_EQ(find_original_symbol(b->fse(), "test.c:count", SYM_VAR), nullptr);
  EXPECT_EQ(find_original_symbol(b->fse(), "count", SYM_PROC), nullptr);
  // Without a prefix, a symbol without origin wins over a static one.
  EXPECT_EQ(find_original_symbol(b->fse(), "count", any_sym_kind), global_st->lookup_sym("count", SYM_VAR, false));
}

TEST_F(Collection, SplitNamesCutsInPlace) {
  char text[] = "a,,b,c,";
  string_list *parts = split_names(text, ",");
  std::vector<std::string> got;
  for (string_list_e *e = parts->head(); e; e = e->next())
    got.push_back(e->contents);
  EXPECT_EQ(got, (names{"a", "b", "c"}));
  delete parts;
  string_list *none = split_names(nullptr, ",");
  EXPECT_TRUE(none->is_empty());
  delete none;
}

// The index against the direct search of both tables, on random programs
// where names repeat across kinds, files and linkage.
TEST_F(Collection, NameIndexMatchesDirectSearch) {
  const char *pool[] = {"a", "b", "c", "d"};
  const char *files[] = {"one.c", "two.c", "Three.c"};
  std::mt19937 rng(99);
  int hits = 0;
  for (int round = 0; round < 30; round++) {
    if (round) {
      TearDown();
      SetUp();
    }
    for (int i = rng() % 12; i > 0; i--) {
      const char *name = pool[rng() % 4];
      b->set_source_file(files[rng() % 3]);
      switch (rng() % 4) {
      case 0:
        if (!global_st->lookup_sym(name, SYM_VAR, false) && !global_st->lookup_sym(name, SYM_PROC, false))
          b->global_var(name, type_signed, rng() % 2);
        break;
      case 1:
        if (!global_st->lookup_sym(name, SYM_VAR, false) && !global_st->lookup_sym(name, SYM_PROC, false))
          b->defined_proc(name, int_fn);
        break;
      case 2:
        b->static_var(name, type_signed);
        break;
      case 3:
        b->static_proc(name, int_fn);
        break;
      }
    }
    original_name_index index(b->fse());
    const char *queries[] = {"a", "b", "c", "d", "e", "one.c:a", "ONE.C:b", "two.c:c.x", "Three.c:d*", "three.c:a",
                             "x.c:a", "two.c:", ":a", "a.field"};
    for (const char *q : queries)
      for (unsigned kind : {unsigned(SYM_VAR), unsigned(SYM_PROC), any_sym_kind}) {
        sym_node *direct = find_original_symbol(b->fse(), q, kind);
        ASSERT_EQ(index.find(q, kind), direct) << "round " << round << ", name " << q << ", kind " << kind;
        hits += direct != nullptr;
      }
  }
  EXPECT_GT(hits, 200); // the programs do answer most questions
}

} // namespace
