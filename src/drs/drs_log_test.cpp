// Names in the log: only the first "#N" is an argument, every "*" a pointer step.
#include "drs/drs_log.h"
#include "driver/options.h"
#include "types/ir_test_fixture.h"

namespace {

class DrsLog : public ir_test {};

TEST_F(DrsLog, NamesAsTheUserKnowsThem) {
  const char *cases[][2] = {
      {"f.#2", "'f.arg3' in [0..1] (init)\n"},
      {"f.#", "'f.arg1' in [0..1] (init)\n"},
      {"f.#0.#1*", "'f.arg1.#1[]' in [0..1] (init)\n"},
      {"t.a*.b**", "'t.a[].b[][]' in [0..1] (init)\n"},
  };
  drs_no_log = false;
  flag_instrum = false;
  for (auto &c : cases) {
    drs_entry *entry = drs_new_entry(DRS_MODE_INIT, c[0], "0", "1", 1, DRS_PTR_MULTI);
    testing::internal::CaptureStderr();
    drs_log_entry(entry);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), std::string("data-range-specifications: ") + c[1]);
  }
}

} // namespace
