// Used and dead marks on programs made with the builder: the cases a call graph can take.
// The linear algorithm itself is compared with the closure on random graphs in call_graph_test.
#include "analysis/used_symbols.h"
#include "driver/options.h"
#include "types/ir_test_fixture.h"

#include <string>

namespace {

class UsedSymbols : public ir_test {
protected:
  void SetUp() override {
    ir_test::SetUp();
    flag_all_procs_used = false;
    void_fn = b->func(type_void, {});
  }
  void TearDown() override {
    free_used_symbols_scratch();
    ir_test::TearDown();
  }
  proc_sym *defined(const char *name) { return b->defined_proc(name, void_fn); }

  func_type *void_fn = nullptr;
};

// A procedure stays dead unless something outside its own cycle calls it.
TEST_F(UsedSymbols, DeadMarksOnSmallCallGraphs) {
  const struct {
    const char *what;
    std::vector<std::pair<int, int>> calls; // caller, callee among p0..p2
    std::vector<bool> dead;
  } cases[] = {
      {"no calls", {}, {true, true, true}},
      {"one call", {{0, 1}}, {true, false, true}},
      {"self call", {{0, 0}}, {true, true, true}},
      {"a cycle alone", {{0, 1}, {1, 0}}, {true, true, true}},
      {"a cycle called from outside", {{0, 1}, {1, 0}, {2, 0}}, {false, false, true}},
  };
  for (auto &c : cases) {
    TearDown();
    SetUp();
    proc_sym *p[] = {defined("p0"), defined("p1"), defined("p2")};
    for (auto [from, to] : c.calls)
      b->add_call(p[from], p[to], {});
    compute_used_symbols(b->fse());
    for (int i = 0; i < 3; i++) {
      bool called = false;
      for (auto [from, to] : c.calls)
        called |= to == i;
      EXPECT_EQ(is_dead_proc(p[i]), c.dead[i]) << c.what << ", p" << i;
      EXPECT_EQ(is_used_symbol(p[i]), called) << c.what << ", p" << i;
    }
  }
}

// One program for the other edges: taking an address uses without calling, an undefined
// callee is never dead, an indirect call makes no edge, and other annotations survive the marks.
TEST_F(UsedSymbols, AddressesUndefinedCalleesAndIndirectCalls) {
  proc_sym *handler = defined("handler"), *setup = defined("setup"), *g = defined("g");
  proc_sym *ext = b->extern_proc("ext", void_fn);
  var_sym *table = b->global_var("table", b->ptr(void_fn));
  b->add_addr_of(setup, handler);
  b->add_use(setup, table);
  b->add_indirect_call(setup, table, {});
  b->add_call(setup, ext, {});
  b->annotate(g, "note", {immed(7)});
  b->add_call(setup, g, {});
  compute_used_symbols(b->fse());
  EXPECT_TRUE(is_used_symbol(handler));
  EXPECT_TRUE(is_dead_proc(handler));
  EXPECT_TRUE(is_used_symbol(table));
  EXPECT_TRUE(is_used_symbol(ext));
  EXPECT_FALSE(is_dead_proc(ext));
  EXPECT_FALSE(is_dead_proc(g));
  EXPECT_NE(g->peek_annote(intern("note")), nullptr);
}

// Locals go with their body; under the address sanitizer this catches any
// mark left for after the body is freed.
TEST_F(UsedSymbols, LocalsOfABodyAreMarkedWhileItLives) {
  proc_sym *f = defined("f");
  var_sym *global = b->global_var("global", type_signed);
  var_sym *local = b->add_block(f, type_signed);
  b->add_use(f, local);
  b->add_use(f, global);
  b->add_if(f, global);
  compute_used_symbols(b->fse());
  EXPECT_TRUE(is_used_symbol(global));
}

TEST_F(UsedSymbols, AllProcsUsedKeepsEveryDeadMark) {
  flag_all_procs_used = true;
  proc_sym *f = defined("f"), *g = defined("g");
  b->add_call(f, g, {});
  compute_used_symbols(b->fse());
  EXPECT_TRUE(is_dead_proc(g));
  EXPECT_TRUE(is_used_symbol(g));
  flag_all_procs_used = false;
}

} // namespace
