// The console report of a stub, line by line.
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

TEST_F(stub_driver_test, constant_parameters_are_counted_from_one_with_parentheses_for_several)
{
  ptr_type *text = b->ptr(b->const_of(type_char));
  proc_sym *one = b->extern_proc("one", b->func(type_void, {b->ptr(type_signed), type_signed}));
  proc_sym *two = b->extern_proc("two", b->func(type_signed, {type_signed, b->ptr(type_signed), text}));
  name_types();
  EXPECT_EQ(report_of(one, STUB_DEFAULT), "* Function one may write to its arguments and may return random.\n"
                                          "           Does not model pointer effects.\n"
                                          "           Const parameters (nb params=2): #2.\n\n");
  EXPECT_EQ(report_of(two, STUB_CLEAN), "* Function two is stubbed cleanly.\n"
                                        "           Returns an initialized value.\n"
                                        "           Const parameters (nb params=3): (#1, #3).\n\n");
}

TEST_F(stub_driver_test, variadic_functions_count_the_hidden_parameters_in_the_total_only)
{
  ptr_type *text = b->ptr(b->const_of(type_char));
  proc_sym *say = b->extern_proc("say", b->func(type_signed, {text}, true));
  name_types();
  EXPECT_EQ(report_of(say, STUB_WORST), "* Function say may write to its arguments and may return parts of them.\n"
                                        "           Modelizes pointer effects.\n"
                                        "           It may write in the variable arguments.\n"
                                        "           Returns an initialized value.\n"
                                        "           Const parameters (nb params=3): #1.\n\n");
  // A pure stub says nothing of the variable arguments.
  EXPECT_EQ(report_of(say, STUB_PURE), "* Function say is pure.\n"
                                       "           Returns an initialized value.\n"
                                       "           Const parameters (nb params=3): #1.\n\n");
}

TEST_F(stub_driver_test, the_fake_main_is_reported_as_main)
{
  proc_sym *fake = b->extern_proc("__quorvanta_fake_main", b->func(type_void, {b->ptr(type_signed)}));
  name_types();
  EXPECT_EQ(report_of(fake, STUB_PURE), "* Function main is pure.\n\n");
}
