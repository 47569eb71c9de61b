// Used and dead marks on programs made with the builder: the cases a call
// graph can take, and random programs checked against the closure algorithm.
#include "analysis/used_symbols.h"
#include "driver/options.h"
#include "types/ir_test_fixture.h"

#include <random>
#include <string>

#include "analysis/call_closure_test_util.h"

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

TEST_F(UsedSymbols, AddressTakenIsUsedAndStaysDead) {
  proc_sym *handler = defined("handler"), *setup = defined("setup");
  var_sym *table = b->global_var("table", b->ptr(void_fn));
  b->add_addr_of(setup, handler);
  b->add_use(setup, table);
  compute_used_symbols(b->fse());
  EXPECT_TRUE(is_used_symbol(handler));
  EXPECT_TRUE(is_dead_proc(handler));
  EXPECT_TRUE(is_used_symbol(table));
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

TEST_F(UsedSymbols, UndefinedCalleeIsUsedNeverDead) {
  proc_sym *ext = b->extern_proc("ext", void_fn), *f = defined("f");
  b->add_call(f, ext, {});
  compute_used_symbols(b->fse());
  EXPECT_TRUE(is_used_symbol(ext));
  EXPECT_FALSE(is_dead_proc(ext));
}

TEST_F(UsedSymbols, IndirectCallMakesNoEdge) {
  proc_sym *f = defined("f"), *g = defined("g");
  var_sym *fp = b->global_var("fp", b->ptr(void_fn));
  b->add_indirect_call(f, fp, {});
  b->add_addr_of(f, g);
  compute_used_symbols(b->fse());
  EXPECT_TRUE(is_used_symbol(fp));
  EXPECT_TRUE(is_dead_proc(g));
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

TEST_F(UsedSymbols, DeadMarkIsRemovedOnceAndOtherAnnotationsStay) {
  proc_sym *f = defined("f"), *g = defined("g");
  b->annotate(g, "note", {immed(7)});
  b->add_call(f, g, {});
  compute_used_symbols(b->fse());
  EXPECT_FALSE(is_dead_proc(g));
  EXPECT_NE(g->peek_annote(intern("note")), nullptr);
}

TEST_F(UsedSymbols, RandomProgramsMatchClosure) {
  std::mt19937 rng(77);
  for (int round = 0; round < 60; round++) {
    if (round) {
      TearDown();
      SetUp();
    }
    int n = 1 + rng() % 14;
    std::vector<proc_sym *> procs;
    for (int i = 0; i < n; i++)
      procs.push_back(defined(("p" + std::to_string(i)).c_str()));
    edge_list calls;
    for (int e = rng() % (2 * n + 1); e > 0; e--) {
      uint32_t c = rng() % n, x = rng() % n;
      calls.push_back({c, x});
      b->add_call(procs[c], procs[x], {});
    }
    compute_used_symbols(b->fse());
    std::vector<bool> loses = losers_by_closure(n, calls);
    for (int i = 0; i < n; i++)
      ASSERT_EQ(is_dead_proc(procs[i]), !loses[i]) << "round " << round << ", p" << i;
  }
}

} // namespace
