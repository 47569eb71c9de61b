// The console report of a stub names the fake main as main (each kind's words are checked end to end).
#include "stubs/stub_driver.h"

#include "analysis/stub_pragmas.h"
#include "stubs/stub_test_util.h"

using stub_driver_test = generator_test;

static std::string report_of(proc_sym *proc, int kind)
{
  testing::internal::CaptureStderr();
  report_stub(proc, kind);
  return testing::internal::GetCapturedStderr();
}

TEST_F(stub_driver_test, the_fake_main_is_reported_as_main)
{
  proc_sym *fake = b->extern_proc("__quorvanta_fake_main", b->func(type_void, {b->ptr(type_signed)}));
  name_types();
  EXPECT_EQ(report_of(fake, STUB_PURE), "* Function main is pure.\n\n");
}
