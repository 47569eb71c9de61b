// Variable initialisers and the range writer on hand-made ranges: pointer shapes, the guard,
// the order of struct fields, anonymous members, bit-fields; the once-only init function.
#include "maingen/var_init.h"

#include <cstring>

#include "drs/drs_model.h"
#include "ir/knames.h"
#include "stubs/stub_text.h"
#include "stubs/stub_test_util.h"

using strings = std::vector<std::string>;

class range_writer_test : public generator_test {
protected:
  // The n-th temporary from now.
  std::string tmp(int n) const { return "_main_gen_tmp_" + std::to_string(base + n); }
  std::string init_call(const std::string &lvalue, type_node *type) const
  {
    return lvalue + " = _main_gen_init_g" + std::to_string(type->type_id()) + "();\n";
  }
  static subrange *range(const char *path, const char *min, const char *max, int mode = DRS_PTR_MULTI)
  {
    return new subrange{strdup(path), min, max, mode};
  }
  strings write(const char *lvalue, type_node *type, subrange_list ranges, bool others = true,
                bool uncertain = false)
  {
    name_types();
    base = main_gen_tmp_counter;
    return pieces_of(write_range_init(lvalue, type, new subrange_list(ranges), others, lvalue, uncertain));
  }
  int base = 0;
};

TEST_F(range_writer_test, pointer_shapes)
{
  type_node *ip = b->ptr(type_signed);
  const std::string I = "__QVT__SINT32 ";
  // 0..0: null and nothing else; a range only on the target writes nothing.
  EXPECT_EQ(write("p", ip, {range("", "0", "0")}), strings{"p = 0;\n"});
  EXPECT_EQ(write("p", ip, {range("*", "1", "2")}), strings{});

  // 0..1: a null branch, else one static object whose own range bounds it.
  strings single = write("p", ip, {range("", "0", "1"), range("*", "1", "5")});
  EXPECT_EQ(single, (strings{"if (qvt_random_int)\n", "{\n", "p = 0;\n", "}\n", "else\n", "{\n",
                             "static " + I + tmp(0) + ";\n", I + tmp(1) + ";\n",
                             tmp(1) + " = " + rnd(type_signed) + ";\n", "unchecked_assert(" + tmp(1) + " >= 1);\n",
                             "unchecked_assert(" + tmp(1) + " <= 5);\n", tmp(0) + " = " + tmp(1) + ";\n",
                             "p = &(" + tmp(0) + ");\n", "}\n"}));

  // 0..10, every element written: a loop over a static array of ten, the index a long.
  strings multi = write("p", ip, {range("", "0", "10")});
  EXPECT_EQ(multi, (strings{"if (qvt_random_int)\n", "{\n", "p = 0;\n", "}\n", "else\n", "{\n",
                            "static " + I + tmp(0) + "[10];\n", "__QVT__SINT64 " + tmp(1) + ";\n",
                            "for (" + tmp(1) + " = 0; " + tmp(1) + " < 10; " + tmp(1) + "++)\n", "{\n",
                            "/* random */\n", init_call(tmp(0) + "[" + tmp(1) + "]", type_signed), "}\n",
                            "p = &(" + tmp(0) + ")[0];\n", "}\n"}));

  // Not null, and only the first element of the array written.
  strings first = write("p", ip, {range("", "1", "10", DRS_PTR_SINGLE)});
  EXPECT_EQ(first, (strings{"{\n", "static " + I + tmp(0) + "[10];\n", "/* random */\n",
                            init_call(tmp(0) + "[0]", type_signed), "p = &(" + tmp(0) + ")[0];\n", "}\n"}));
}

TEST_F(range_writer_test, pointer_targets_void_function_and_the_guard)
{
  strings v = write("v", b->ptr(type_void), {range("", "1", "1")});
  EXPECT_EQ(v[1], "static " + std::string(type_text(type_signed_char)) + " " + tmp(0) + ";\n");

  func_type *callback = b->func(type_void, {b->ptr(type_signed)});
  strings f = write("f", b->ptr(callback), {range("", "1", "1")});
  ASSERT_EQ(f.size(), 3u);
  EXPECT_EQ(f[0], "{\n");
  EXPECT_EQ(f[1], "f = &_stub_g_" + std::to_string(callback->type_id()) + ";\n");
  EXPECT_EQ(f[2], "}\n");

  // Uncertain writes of a range file that isn't final keep the object under a random guard.
  drs_init_state();
  drs_file_version = 0;
  strings guarded = write("q", b->ptr(type_signed), {range("", "1", "1", DRS_PTR_SINGLE)}, true, true);
  drs_free_state();
  EXPECT_EQ(guarded, (strings{"{\n", "static __QVT__SINT32 " + tmp(0) + ";\n", "if (QVT_TRUE())\n", "{\n",
                              "/* random */\n", init_call(tmp(0), type_signed), "q = &(" + tmp(0) + ");\n", "}\n",
                              "}\n"}));
}

TEST_F(range_writer_test, struct_fields_unnamed_first_then_pointers_aggregates_scalars)
{
  struct_type *inner = b->struct_of("in", {{"z", type_signed}});
  struct_type *s = b->struct_of("s", {{"a", type_signed},
                                      {"f", type_signed, 3},
                                      {"n", type_signed},
                                      {"t", inner},
                                      {"p", b->ptr(type_signed)},
                                      {"c", type_char}});
  strings text = write("g", s, {range("n", "1", "2"), range("p", "0", "0"), range("t.z", "-1", "1")});
  const std::string I = "__QVT__SINT32 ";
  EXPECT_EQ(text, (strings{init_call("g.a", type_signed), "{\n", I + "bitf;\n", init_call("bitf", type_signed),
                           "unchecked_assert(bitf >= -4);\n", "unchecked_assert(bitf <= 3);\n", "g.f = bitf;\n",
                           "}\n", init_call("g.c", type_char),
                           "{\n", "g.p = 0;\n", "}\n",
                           "{\n", "{\n", I + tmp(0) + ";\n", tmp(0) + " = " + rnd(type_signed) + ";\n",
                           "unchecked_assert(" + tmp(0) + " >= -1);\n", "unchecked_assert(" + tmp(0) + " <= 1);\n",
                           "g.t.z = " + tmp(0) + ";\n", "}\n", "}\n",
                           "{\n", I + tmp(1) + ";\n", tmp(1) + " = " + rnd(type_signed) + ";\n",
                           "unchecked_assert(" + tmp(1) + " >= 1);\n", "unchecked_assert(" + tmp(1) + " <= 2);\n",
                           "g.n = " + tmp(1) + ";\n", "}\n"}));
}

TEST_F(range_writer_test, anonymous_members_random_bound_and_arrays)
{
  struct_type *u = b->union_of("", {{"x", type_signed}, {"y", type_float}});
  struct_type *s = b->struct_of("s", {{"k", type_signed}, {"qvtunnsubs0", u}});
  // A field of an anonymous union is reached through the member that holds it; that member
  // counts as named, so no random content is written over the range.
  strings text = write("g", s, {range("x", "0", "1")});
  const std::string I = "__QVT__SINT32 ";
  EXPECT_EQ(text, (strings{init_call("g.k", type_signed), "{\n", I + tmp(0) + ";\n",
                           tmp(0) + " = " + rnd(type_signed) + ";\n", "unchecked_assert(" + tmp(0) + " >= 0);\n",
                           "unchecked_assert(" + tmp(0) + " <= 1);\n", "g.qvtunnsubs0.x = " + tmp(0) + ";\n",
                           "}\n"}));

  // "random" as the minimum asks for random content of the whole object.
  EXPECT_EQ(write("g", s, {range("", "random", "random")}), (strings{"/* random */\n", init_call("g", s)}));

  // An array is one loop whose body is written once, under the same ranges.
  strings array = write("a", b->array(type_signed, 4), {range("", "2", "3")});
  EXPECT_EQ(array, (strings{I + tmp(0) + ";\n", "for (" + tmp(0) + " = 0; " + tmp(0) + " < 4; " + tmp(0) + "++)\n",
                            "{\n", I + tmp(1) + ";\n", tmp(1) + " = " + rnd(type_signed) + ";\n",
                            "unchecked_assert(" + tmp(1) + " >= 2);\n", "unchecked_assert(" + tmp(1) + " <= 3);\n",
                            "a[" + tmp(0) + "] = " + tmp(1) + ";\n", "}\n"}));
}

using var_init_test = generator_test;

// Range marks as the range passes leave them on a variable: mode, name, bounds.
static void add_range_mark(var_sym *var, const char *name, const char *min, const char *max)
{
  immed_list *data = new immed_list;
  data->append(immed("init"));
  data->append(immed(name));
  data->append(immed(min));
  data->append(immed(max));
  var->append_annote(k_drs, data);
}

TEST_F(var_init_test, one_function_per_variable_and_a_call_per_request)
{
  var_sym *g = b->global_var("g", type_signed);
  var_sym *r = b->global_var("r", type_signed);
  var_sym *unread = b->global_var("u", type_signed);
  unread->append_annote(k_never_read);
  add_range_mark(r, "r", "0", "0");
  name_types();
  strings call = {"/* init for variable g */\n", "_main_gen_init_sym_g();\n", "\n"};
  EXPECT_EQ(pieces_of(init_variable(g, true, false)), call);
  EXPECT_EQ(pieces_of(init_variable(g, false, true)), call);
  EXPECT_EQ(pieces_of(init_variable(unread, true, false)),
            strings{"/* init for variable u : useless (never read) */\n\n"});
  int n = main_gen_tmp_counter;
  pieces_of(init_variable(r, true, true));
  std::string t = "_main_gen_tmp_" + std::to_string(n);
  EXPECT_EQ(pieces_of(var_init_proc_texts),
            (strings{"static void _main_gen_init_sym_g(void)\n", "{\n", "extern __QVT__SINT32 g;\n", "\n",
                     "/* initialization with random value */\n", "{\n",
                     "g = _main_gen_init_g" + std::to_string(type_signed->type_id()) + "();\n", "}\n", "}\n\n",
                     "static void _main_gen_init_sym_r(void)\n", "{\n", "extern __QVT__SINT32 r;\n", "\n",
                     "/* initialization with drs range */\n", "{\n", "__QVT__SINT32 " + t + ";\n",
                     t + " = " + rnd(type_signed) + ";\n", "unchecked_assert(" + t + " >= 0);\n",
                     "unchecked_assert(" + t + " <= 0);\n", "r = " + t + ";\n", "}\n", "}\n\n"}));
  var_init_proc_texts = new string_list;
}
