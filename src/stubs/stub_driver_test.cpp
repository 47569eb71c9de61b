// The console report of a stub: the words of each kind and the name shown for the fake main.
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

TEST_F(stub_driver_test, each_kind_has_its_words)
{
  proc_sym *f = b->extern_proc("f", b->func(type_void, {b->ptr(type_signed)}));
  name_types();
  EXPECT_EQ(report_of(f, STUB_DEFAULT), "* Function f may write to its arguments and may return random.\n"
                                        "           Does not model pointer effects.\n\n");
  EXPECT_EQ(report_of(f, STUB_PURE), "* Function f is pure.\n\n");
  EXPECT_EQ(report_of(f, STUB_CLEAN), "* Function f is stubbed cleanly.\n\n");
  EXPECT_EQ(report_of(f, STUB_WORST), "* Function f may write to its arguments and may return parts of them.\n"
                                      "           Modelizes pointer effects.\n\n");
  EXPECT_EQ(report_of(f, STUB_NO_INSTRUMENT), "");
}

TEST_F(stub_driver_test, the_fake_main_is_reported_as_main)
{
  proc_sym *fake = b->extern_proc("__quorvanta_fake_main", b->func(type_void, {b->ptr(type_signed)}));
  name_types();
  EXPECT_EQ(report_of(fake, STUB_PURE), "* Function main is pure.\n\n");
}
