// The stub mode's own step on the standard-stubbed variables: they join the
// extern variables, after all of them, only when the program has a main.
#include "driver/global_lists.h"
#include "driver/options.h"
#include "driver/run_modes.h"
#include "drs/drs_model.h"
#include "analysis/used_symbols.h"
#include "types/ir_test_fixture.h"

#include <string>
#include <vector>

namespace {

class StubMode : public ir_test {
protected:
  void SetUp() override {
    std::string templ = testing::TempDir() + "qvt_stub_mode_XXXXXX";
    ASSERT_NE(mkdtemp(templ.data()), nullptr);
    dir = templ;
    ir_test::SetUp();
    drs_init_state();
    current_fse = b->fse();
    stubs_dir = dir.data();
    exit_status = 0;
    b->global_var("ext_a", type_signed, false);
    b->global_var("std_v", type_signed, false)->set_flag(SYMFLAG_STANDARD_STUBBED);
    b->global_var("ext_b", type_signed, false);
  }
  void TearDown() override {
    delete_global_lists();
    free_used_symbols_scratch();
    drs_free_state();
    ir_test::TearDown();
    stubs_dir = nullptr;
    ASSERT_EQ(system(("rm -rf '" + dir + "'").c_str()), 0);
  }
  std::vector<std::string> externs() {
    std::vector<std::string> out;
    for (sym_node_list_e *e = extern_var_list->head(); e; e = e->next())
      out.push_back(e->contents->name());
    return out;
  }
  void run() {
    testing::internal::CaptureStderr();
    run_stub_mode(run_args{});
    testing::internal::GetCapturedStderr();
  }

  std::string dir;
};

TEST_F(StubMode, StandardStubbedVariablesNeedAMain) {
  run();
  EXPECT_EQ(externs(), (std::vector<std::string>{"ext_a", "ext_b"}));
}

TEST_F(StubMode, WithMainTheyComeLast) {
  b->defined_proc("main", b->func(type_signed, {}));
  run();
  EXPECT_EQ(externs(), (std::vector<std::string>{"ext_a", "ext_b", "std_v"}));
  EXPECT_TRUE(std_extern_var_list->is_empty());
}

} // namespace
