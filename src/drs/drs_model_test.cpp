// The range state across a run: the reporting rule, the pragma entries and
// the two passes over empty tables.
#include "drs/drs_model.h"
#include "driver/options.h"
#include "types/ir_test_fixture.h"

namespace {

class DrsState : public ir_test {
protected:
  void SetUp() override {
    ir_test::SetUp();
    drs_init_state();
    flag_unit_by_unit = false;
  }
  void TearDown() override {
    drs_free_state();
    ir_test::TearDown();
  }
};

TEST_F(DrsState, WarningsCarryTheFileLocationOrNothing) {
  testing::internal::CaptureStderr();
  drs_warn(3, "data-range-specifications: %d", 5);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "warning: data-range-specifications: 5\n");
  drs_file_path = "ranges.txt";
  testing::internal::CaptureStderr();
  drs_warn(7, "data-range-specifications: unknown mode '%s'", "Init");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "ranges.txt:7: warning: data-range-specifications: unknown mode 'Init'\n");
  flag_no_warnings_for_drs = true;
  testing::internal::CaptureStderr();
  drs_warn(3, "data-range-specifications: anything");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(DrsState, PragmaEntries) {
  drs_add_pragma("init", "v.x", "0", "10", nullptr);
  drs_add_pragma("Init", "w", "0", "1", nullptr); // case counts: dropped
  drs_add_pragma("globalassert", "p", "1", "2", "single");
  drs_add_pragma("permanent", "q", "1", "2", "5");
  ASSERT_EQ(drs_pragma_entries->size(), 3u);
  drs_entry *first = drs_pragma_entries->front();
  EXPECT_EQ(first->mode, DRS_MODE_INIT);
  EXPECT_STREQ(first->name, "v.x");
  EXPECT_STREQ(first->max, "10");
  EXPECT_EQ(first->pointer_kind, DRS_PTR_MULTI);
  EXPECT_EQ((*std::next(drs_pragma_entries->begin()))->pointer_kind, DRS_PTR_SINGLE);
  EXPECT_EQ(drs_pragma_entries->back()->pointer_kind, DRS_PTR_MULTI);
}

TEST_F(DrsState, PassMovesPragmaEntriesAfterTheFile) {
  drs_add_pragma("init", "v", "0", "10", nullptr);
  flag_unit_by_unit = true;
  run_drs_pass(nullptr, b->fse(), nullptr, nullptr);
  EXPECT_TRUE(drs_pragma_entries->empty());
  ASSERT_EQ(drs_read_entries->size(), 1u);
  EXPECT_STREQ(drs_read_entries->front()->name, "v");
  flag_unit_by_unit = false;
}

TEST_F(DrsState, CppPassIsSilentAndLeavesPragmasAlone) {
  drs_add_pragma("init", "v", "0", "10", nullptr);
  run_cpp_drs_pass(nullptr, b->fse());
  EXPECT_TRUE(flag_no_warnings_for_drs);
  EXPECT_EQ(drs_pragma_entries->size(), 1u);
  EXPECT_TRUE(drs_read_entries->empty());
}

} // namespace
