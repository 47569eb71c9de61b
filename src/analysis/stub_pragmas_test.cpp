// The pragma table: words, their order of precedence, and what is passed
// over without a word.
#include "analysis/stub_pragmas.h"
#include "driver/options.h"
#include "drs/drs_model.h"
#include "ir/builder.h"

#include <gtest/gtest.h>

namespace {

class Pragmas : public testing::Test {
protected:
  void SetUp() override {
    int argc = 1;
    char name[] = "stub_pragmas_test";
    char *argv[] = {name, nullptr};
    init_suif(argc, argv);
    drs_init_state();
    forget_stub_mode_name();
    flag_instrum = false;
    flag_drs_pragmas = true;
    b = new program_builder(nullptr);
    current_fse = b->fse();
    fn = b->func(type_signed, {b->ptr(type_signed)});
  }
  void TearDown() override {
    flag_instrum = false;
    delete b;
    drs_free_state();
    exit_suif();
  }
  void pragma(std::initializer_list<immed> words) { b->annotate(b->fse(), k_pragma, words); }

  program_builder *b = nullptr;
  func_type *fn = nullptr;
};

TEST_F(Pragmas, WordsGiveKinds) {
  proc_sym *pure = b->extern_proc("pure_f", fn), *clean = b->extern_proc("clean_f", fn);
  proc_sym *worst = b->extern_proc("worst_f", fn), *nowrite = b->extern_proc("nowrite_f", fn);
  proc_sym *defined = b->defined_proc("defined_f", fn);
  pragma({"QUORVANTA_PURE", "pure_f"});
  pragma({"QUORVANTA_CLEAN", "clean_f"});
  pragma({"QUORVANTA_WORST", "worst_f", "clean_f"}); // one function a pragma
  pragma({"__QUORVANTA_NO_WRITE", "nowrite_f"});
  pragma({"QUORVANTA_WORST", "defined_f"});
  read_pragmas();
  EXPECT_EQ(stub_mode_of(pure), STUB_PURE);
  EXPECT_EQ(stub_mode_of(clean), STUB_CLEAN);
  EXPECT_EQ(stub_mode_of(worst), STUB_WORST);
  EXPECT_EQ(stub_mode_of(nowrite), STUB_PURE);
  EXPECT_EQ(stub_mode_of(defined), STUB_WORST);
}

TEST_F(Pragmas, NoInstrumentNeedsInstrumentingMode) {
  proc_sym *f = b->extern_proc("f", fn);
  pragma({"QUORVANTA_NO_INSTRUMENT", "f"});
  read_pragmas();
  EXPECT_EQ(stub_mode_of(f), STUB_DEFAULT);
  flag_instrum = true;
  read_pragmas();
  EXPECT_EQ(stub_mode_of(f), STUB_NO_INSTRUMENT);
}

TEST_F(Pragmas, RangePragmaNeedsFourArguments) {
  pragma({"QUORVANTA_DRS", "init", "v", "0"});
  pragma({"QUORVANTA_DRS", "init", "v", "0", "10"});
  pragma({"QUORVANTA_DRS", "permanent", "w", "1", "2", "single", "ignored"});
  read_pragmas();
  ASSERT_EQ(drs_pragma_entries->size(), 2u);
  EXPECT_STREQ(drs_pragma_entries->front()->max, "10");
  EXPECT_EQ(drs_pragma_entries->front()->pointer_kind, DRS_PTR_MULTI);
  EXPECT_EQ(drs_pragma_entries->back()->pointer_kind, DRS_PTR_SINGLE);
}

TEST_F(Pragmas, RangePragmaIgnoredWhenNotHonoured) {
  flag_drs_pragmas = false;
  pragma({"QUORVANTA_DRS", "init", "v", "0", "10"});
  read_pragmas();
  EXPECT_TRUE(drs_pragma_entries->empty());
  flag_drs_pragmas = true;
}

} // namespace
