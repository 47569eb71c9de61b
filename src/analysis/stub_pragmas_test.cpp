// The pragma table: a name a pragma, defined functions, and range pragmas.
#include "analysis/stub_pragmas.h"
#include "driver/options.h"
#include "drs/drs_model.h"
#include "types/ir_test_fixture.h"

namespace {

class Pragmas : public ir_test {
protected:
  void SetUp() override {
    ir_test::SetUp();
    drs_init_state();
    forget_stub_mode_name();
    flag_instrum = false;
    flag_drs_pragmas = true;
    current_fse = b->fse();
    fn = b->func(type_signed, {b->ptr(type_signed)});
  }
  void TearDown() override {
    flag_instrum = false;
    drs_free_state();
    ir_test::TearDown();
  }
  void pragma(std::initializer_list<immed> words) { b->annotate(b->fse(), k_pragma, words); }

  func_type *fn = nullptr;
};

// Kinds from the words, first pragma wins and no-instrument mode are checked end to end;
// here what C sources can't easily show.
TEST_F(Pragmas, OneFunctionAPragmaAndDefinedFunctionsToo) {
  proc_sym *worst = b->extern_proc("worst_f", fn), *clean = b->extern_proc("clean_f", fn);
  proc_sym *defined = b->defined_proc("defined_f", fn);
  pragma({"QUORVANTA_WORST", "worst_f", "clean_f"});
  pragma({"QUORVANTA_WORST", "defined_f"});
  read_pragmas();
  EXPECT_EQ(stub_mode_of(worst), STUB_WORST);
  EXPECT_EQ(stub_mode_of(clean), STUB_DEFAULT);
  EXPECT_EQ(stub_mode_of(defined), STUB_WORST);
}

TEST_F(Pragmas, RangePragmas) {
  pragma({"QUORVANTA_DRS", "init", "v", "0"}); // needs four arguments
  pragma({"QUORVANTA_DRS", "init", "v", "0", "10"});
  pragma({"QUORVANTA_DRS", "permanent", "w", "1", "2", "single", "ignored"});
  flag_drs_pragmas = false;
  read_pragmas();
  EXPECT_TRUE(drs_pragma_entries->empty()); // not honoured
  flag_drs_pragmas = true;
  read_pragmas();
  ASSERT_EQ(drs_pragma_entries->size(), 2u);
  EXPECT_STREQ(drs_pragma_entries->front()->max, "10");
  EXPECT_EQ(drs_pragma_entries->front()->pointer_kind, DRS_PTR_MULTI);
  EXPECT_EQ(drs_pragma_entries->back()->pointer_kind, DRS_PTR_SINGLE);
}

} // namespace
