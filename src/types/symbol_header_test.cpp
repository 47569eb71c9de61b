// The symbol header of -unknown-symbols: the macros of used symbols, the unsigned char limit,
// and the fundamental types, customer-defined or from the target. Expected texts are built
// from the header's literals; only the C words of a type come from the IR's own table.
#include "types/fundamental_types_header.h"

#include <unistd.h>

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "analysis/used_symbols.h"
#include "driver/options.h"
#include "types/ir_test_fixture.h"
#include "types/standard_function_macros.h"

namespace {

std::string upper(std::string s) {
  for (char &c : s) c = (char)toupper((unsigned char)c);
  return s;
}

// The lines of one fundamental type, from their literals.
std::string fundamental(const std::string &name, const std::string &t, const std::string &origin) {
  std::string up = upper(name), s;
  if (name == "wchar_t") s += "#ifndef __cplusplus\n";
  s += "#define __" + up + "YPE__ " + t + "\n";
  s += "#if defined(__QUORVANTA_NEED_" + up + "_) && !defined(__QUORVANTA_NEED_" + up + "_DONE_) && !defined(_" + up +
       "_DEFINED) && !defined(__" + name + "_defined) && !defined(_" + up + ") && !defined(__" + up + ")\n";
  s += "#define __QUORVANTA_NEED_" + up + "_DONE_\n";
  s += "typedef " + t + " " + name + "; /*" + origin + "*/ \n#define _" + up + "_DEFINED\n#define __" + name +
       "_defined\n#define _" + up + "\n#define __" + up + "\n";
  s += "#define __" + up + "YPE__ " + t + "\n";
  s += "#endif /*__QUORVANTA_NEED_" + up + "_*/\n";
  if (name == "wchar_t") s += "#endif /*__cplusplus*/\n";
  return s;
}

std::string target_type(F_types k) {
  return fundamental(fundamental_type_c_name[k], c_type_to_string(target.fundamental_type[k], fundamental_type_is_sign[k]),
                     "Target defined");
}

// What follows the symbol macros on the default target (unsigned char of 8 bits).
std::string tail() {
  return std::string("#undef QVT_BUILTIN_TARGET_UCHAR_MAX\n") + "#define QVT_BUILTIN_TARGET_UCHAR_MAX 255\n" + "#define NO_NEED_FUNDAMENTAL_TYPES /* To avoid including fundamental types in stddef.h */\n";
}

class symbol_header_test : public ir_test {
protected:
  void SetUp() override {
    ir_test::SetUp();
    for (auto &seen : fundamental_type_seen) seen = 0;
    std::string tmpl = ::testing::TempDir() + "qvt_symbol_header_XXXXXX";
    dir = mkdtemp(tmpl.data());
    path = dir + "/h.h";
    exit_status = 0;
    flag_flaw_scan = false;
    flag_adapt_std_stubs_type = false;
    current_fse = b->fse();
    main_proc = b->defined_proc("main", b->func(type_signed, {}));
  }
  void TearDown() override {
    std::string cmd = "rm -rf '" + dir + "'";
    EXPECT_EQ(system(cmd.c_str()), 0);
    current_fse = nullptr;
    exit_status = 0;
    flag_flaw_scan = false;
    flag_adapt_std_stubs_type = false;
    free_used_symbols_scratch();
    ir_test::TearDown();
  }
  std::string write() {
    compute_used_symbols(b->fse());
    write_fundamental_types_header(path.c_str());
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
  }
  std::string all_target_types() {
    return target_type(F_size_t) + target_type(F_ptrdiff_t) + target_type(F_wchar_t) + target_type(F_wint_t);
  }
  std::string dir, path;
  proc_sym *main_proc = nullptr;
};

TEST_F(symbol_header_test, customer_types_replace_the_target_ones) {
  b->annotate(global_st, k_pragma, {immed("pack")});
  b->annotate(global_st, k_size_t, {immed(0), immed((int)C_int)});
  b->annotate(global_st, k_wint_t, {immed(1)});
  std::string want = std::string("#define __quorvanta_static_types_for_stubs\n") + tail();
  want += fundamental("size_t", c_type_to_string(C_int, false), "Customer defined");
  // One immed only: the C type is the one of value 0.
  want += fundamental("wint_t", c_type_to_string((C_types)0, true), "Customer defined");
  want += target_type(F_ptrdiff_t) + target_type(F_wchar_t);
  EXPECT_EQ(write(), want);
}

// The forms that the end-to-end tests can't reach from C: an annotation listing no parameter,
// and parameters annotated without a return type (no known_type then).
TEST_F(symbol_header_test, partly_annotated_functions) {
  proc_sym *put = b->extern_proc("put", b->func(type_void, {}));
  b->annotate(put, k_orig_ret_type_name, {immed("void @@")});
  b->annotate(put, k_orig_param_types_names, {});
  proc_sym *half = b->extern_proc("half", b->func(type_void, {type_signed}));
  b->annotate(half, k_orig_param_types_names, {immed("long @@")});
  b->add_call(main_proc, put, {});
  b->add_call(main_proc, half, {operand()});
  std::string put_macros =
      "#define __quorvanta_put\n"
      "#ifndef __quorvanta_put_ret_t_typedef\n"
      "#define __quorvanta_put_ret_t_typedef typedef void __quorvanta_put_ret_t;\n"
      "#endif /* __quorvanta_put_ret_t_typedef */\n"
      "#ifndef __quorvanta_put_return\n"
      "#define __quorvanta_put_return(__x) do { (void)(__x); return; } while(0) \n"
      "#endif /* __quorvanta_put_return */\n"
      "#define __quorvanta_put_nb_args 0\n"
      "#define __quorvanta_put_known_type\n"
      "\n";
  std::string half_macros =
      "#define __quorvanta_half\n"
      "#ifndef __quorvanta_half_ret_t_typedef\n"
      "#define __quorvanta_half_ret_t_typedef /* no return type annotated */\n\n"
      "#endif /* __quorvanta_half_ret_t_typedef */\n"
      "#ifndef __quorvanta_half_return\n"
      "#define __quorvanta_half_return(__x) do { (void)(__x); return; } while(0) \n"
      "#endif /* __quorvanta_half_return */\n"
      "#define __quorvanta_half_nb_args 1\n"
      "#ifndef __quorvanta_half_arg0_t_typedef\n"
      "#define __quorvanta_half_arg0_t_typedef typedef long __quorvanta_half_arg0_t;\n"
      "#endif /* __quorvanta_half_arg0_t_typedef */\n"
      "\n";
  EXPECT_EQ(write(), std::string("#define __quorvanta_static_types_for_stubs\n") + put_macros + half_macros + tail() +
                         all_target_types());
}

TEST_F(symbol_header_test, make_orig_typedef) {
  EXPECT_STREQ(make_orig_typedef("void (*@@)(int)", "T"), "typedef void (*T)(int);");
  EXPECT_STREQ(make_orig_typedef("char @@[8]", "A"), "typedef char A[8];");
}

TEST_F(symbol_header_test, macro_without_value_is_a_comment) {
  std::string file = dir + "/m.h";
  out_file = fopen(file.c_str(), "wb");
  write_macro_default("NAME", false, "", "");
  write_macro_default("F", true, "a, b", "a + b");
  fclose(out_file);
  std::ifstream in(file);
  std::stringstream ss;
  ss << in.rdbuf();
  EXPECT_EQ(ss.str(), "/* no value for NAME */\n#ifndef F\n#define F(a, b) a + b\n#endif /* F */\n");
}

}  // namespace
