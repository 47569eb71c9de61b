// The range writer on hand-made ranges, for the paths that no range file of the end-to-end
// tests reaches: the random guard of uncertain writes, a pointer whose array gets only its
// first element, a range only on a pointer's target, "random" as a bound, arrays.
#include "maingen/var_init.h"

#include <cstring>

#include "drs/drs_model.h"
#include "stubs/stub_test_util.h"

using strings = std::vector<std::string>;

class range_writer_test : public generator_test {
protected:
  // The n-th temporary from now.
  std::string tmp(int n) const { return "_main_gen_tmp_" + std::to_string(base + n); }
  static std::string init_call(const std::string &lvalue, type_node *type)
  {
    return lvalue + " = _main_gen_init_g" + std::to_string(type->type_id()) + "();\n";
  }
  static subrange *range(const char *path, const char *min, const char *max, int mode = DRS_PTR_MULTI)
  {
    return new subrange{strdup(path), min, max, mode};
  }
  strings write(const char *lvalue, type_node *type, subrange_list ranges, bool uncertain = false)
  {
    name_types();
    base = main_gen_tmp_counter;
    return pieces_of(write_range_init(lvalue, type, new subrange_list(ranges), true, lvalue, uncertain));
  }
  int base = 0;
};

TEST_F(range_writer_test, pointers)
{
  type_node *ip = b->ptr(type_signed);
  // No record of the pointer's own: nothing at all.
  EXPECT_EQ(write("p", ip, {range("*", "1", "2")}), strings{});

  // Not null, and of the array only the first element written.
  EXPECT_EQ(write("p", ip, {range("", "1", "10", DRS_PTR_SINGLE)}),
            (strings{"{\n", "static __QVT__SINT32 " + tmp(0) + "[10];\n", "/* random */\n",
                     init_call(tmp(0) + "[0]", type_signed), "p = &(" + tmp(0) + ")[0];\n", "}\n"}));

  // Uncertain writes of a range file that isn't final keep the object under a random guard.
  drs_init_state();
  drs_file_version = 0;
  strings guarded = write("q", ip, {range("", "1", "1", DRS_PTR_SINGLE)}, true);
  drs_free_state();
  EXPECT_EQ(guarded, (strings{"{\n", "static __QVT__SINT32 " + tmp(0) + ";\n", "if (QVT_TRUE())\n", "{\n",
                              "/* random */\n", init_call(tmp(0), type_signed), "q = &(" + tmp(0) + ");\n", "}\n",
                              "}\n"}));
}

TEST_F(range_writer_test, random_bound_and_arrays)
{
  struct_type *s = b->struct_of("s", {{"k", type_signed}});
  EXPECT_EQ(write("g", s, {range("", "random", "random")}), (strings{"/* random */\n", init_call("g", s)}));

  // One loop whose body is written once, under the same ranges.
  strings array = write("a", b->array(type_signed, 4), {range("", "2", "3")});
  EXPECT_EQ(array, (strings{"__QVT__SINT32 " + tmp(0) + ";\n",
                            "for (" + tmp(0) + " = 0; " + tmp(0) + " < 4; " + tmp(0) + "++)\n", "{\n",
                            "__QVT__SINT32 " + tmp(1) + ";\n", tmp(1) + " = " + rnd(type_signed) + ";\n",
                            "unchecked_assert(" + tmp(1) + " >= 2);\n", "unchecked_assert(" + tmp(1) + " <= 3);\n",
                            "a[" + tmp(0) + "] = " + tmp(1) + ";\n", "}\n"}));
}
