// The signature builder in its forms: with and without parameter names, no parameters,
// no prototype, and variable arguments with and without the hidden parameters shown.
#include "stubs/user_stubs.h"

#include "stubs/stub_test_util.h"

using user_stubs_test = generator_test;

TEST_F(user_stubs_test, signatures)
{
  ptr_type *text = b->ptr(type_char);
  proc_sym *f = b->extern_proc("f", b->func(type_signed, {text, type_double}));
  proc_sym *nothing = b->extern_proc("n", b->func(type_void, {}));
  proc_sym *old_style = b->extern_proc("g", b->func_noproto(type_signed));
  proc_sym *some = b->extern_proc("some", b->func(type_signed, {text}, true));
  proc_sym *none = b->extern_proc("none", b->func(type_signed, {}, true));
  name_types();
  const struct {
    proc_sym *proc;
    bool with_names;
    std::string want;
  } cases[] = {
      {f, true, "__QVT__SINT32 f(" + gname(text) + " P_0, __QVT__FLOAT64 P_1)"},
      {f, false, "__QVT__SINT32 f(" + gname(text) + ", __QVT__FLOAT64);"},
      {nothing, true, "__QVT__VOID n(__QVT__VOID)"},
      {old_style, false, "__QVT__SINT32 g(__QVT__VOID);"},
      {some, true, "__QVT__SINT32 some(" + gname(text) + " P_0, ... )"},
      {none, true, "__QVT__SINT32 none( ... )"},
      {none, false, "__QVT__SINT32 none( ... );"},
  };
  for (auto &c : cases)
    EXPECT_STREQ(stub_signature(c.proc, c.with_names), c.want.c_str());
  flag_instrum = true;
  EXPECT_STREQ(stub_signature(none, false),
               ("__QVT__SINT32 none(__QVT__SINT32, " + gname(none->type()->arg_type(1)) + ", ... );").c_str());
}
