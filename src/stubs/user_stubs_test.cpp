// The signature builder in its forms, and the user skeleton written to a file.
#include "stubs/user_stubs.h"

#include <cstdio>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include "analysis/stub_pragmas.h"
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

TEST_F(user_stubs_test, skeleton_offers_every_undefined_function_without_a_pragma)
{
  char dir[] = "/tmp/qvt_user_stubs_XXXXXX";
  ASSERT_NE(mkdtemp(dir), nullptr);
  stubs_dir = dir;
  proc_sym *open_it = b->extern_proc("open_it", b->func(type_signed, {type_signed}));
  proc_sym *chosen = b->extern_proc("chosen", b->func(type_void, {}));
  b->extern_proc("assert", b->func(type_void, {type_signed}));
  b->extern_proc("unchecked_assert", b->func(type_void, {type_signed}));
  b->defined_proc("body", b->func(type_void, {}));
  set_stub_mode(chosen, STUB_PURE);
  (void)open_it;
  name_types();
  write_user_stubs_file();
  std::string path = std::string(dir) + "/qvt_user_stubs.c";
  std::ifstream in(path);
  std::stringstream text;
  text << in.rdbuf();
  EXPECT_EQ(text.str(), "#include \"qvt_user_stubs.h\"\n\n"
                        "\n// Pragmas for function open_it\n//\n"
                        "// #pragma QUORVANTA_PURE \"open_it\"\n"
                        "// #pragma QUORVANTA_CLEAN \"open_it\"\n"
                        "// #pragma QUORVANTA_WORST \"open_it\"\n//\n"
                        "// __QVT__SINT32 open_it(__QVT__SINT32 P_0)\n// {\n//    ...\n// }\n\n");
  unlink(path.c_str());
  rmdir(dir);
  stubs_dir = nullptr;
}
