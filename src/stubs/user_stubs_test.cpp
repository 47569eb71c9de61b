// The signature builder in its forms.
#include "stubs/user_stubs.h"


#include "stubs/stub_test_util.h"

using user_stubs_test = generator_test;

TEST_F(user_stubs_test, signature_with_and_without_names)
{
  ptr_type *text = b->ptr(type_char);
  proc_sym *f = b->extern_proc("f", b->func(type_signed, {text, type_double}));
  name_types();
  EXPECT_STREQ(stub_signature(f, true), ("__QVT__SINT32 f(" + gname(text) + " P_0, __QVT__FLOAT64 P_1)").c_str());
  EXPECT_STREQ(stub_signature(f, false), ("__QVT__SINT32 f(" + gname(text) + ", __QVT__FLOAT64);").c_str());
}

TEST_F(user_stubs_test, signature_without_parameters_reads_the_generated_void)
{
  proc_sym *f = b->extern_proc("f", b->func(type_void, {}));
  proc_sym *old_style = b->extern_proc("g", b->func_noproto(type_signed));
  name_types();
  EXPECT_STREQ(stub_signature(f, true), "__QVT__VOID f(__QVT__VOID)");
  EXPECT_STREQ(stub_signature(old_style, false), "__QVT__SINT32 g(__QVT__VOID);");
}

TEST_F(user_stubs_test, variadic_signatures_end_in_the_ellipsis_and_a_blank)
{
  ptr_type *text = b->ptr(type_char);
  proc_sym *some = b->extern_proc("some", b->func(type_signed, {text}, true));
  proc_sym *none = b->extern_proc("none", b->func(type_signed, {}, true));
  name_types();
  EXPECT_STREQ(stub_signature(some, true), ("__QVT__SINT32 some(" + gname(text) + " P_0, ... )").c_str());
  EXPECT_STREQ(stub_signature(none, true), "__QVT__SINT32 none( ... )");
  EXPECT_STREQ(stub_signature(none, false), "__QVT__SINT32 none( ... );");
  flag_instrum = true;
  EXPECT_STREQ(stub_signature(none, false),
               ("__QVT__SINT32 none(__QVT__SINT32, " + gname(none->type()->arg_type(1)) + ", ... );").c_str());
}
