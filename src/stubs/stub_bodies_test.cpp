// Stub bodies: the frame, each kind on the parameter classes where faults hide, the return in
// both forms, the variable arguments, and the paths that range marks open.
#include "stubs/stub_bodies.h"

#include "analysis/stub_pragmas.h"
#include "maingen/range_init.h"
#include "stubs/stub_test_util.h"

#include <algorithm>

using stub_bodies_test = generator_test;
using strings = std::vector<std::string>;

static const strings int_return = {
    "/* random return value */\n\n", "{\n", "volatile __QVT__SINT32 real_random_for_return  = 0;\n",
    "__QVT__SINT32 random_for_return = real_random_for_return;\n", "return random_for_return;\n", "}\n"};

static strings concat(std::initializer_list<strings> parts)
{
  strings all;
  for (const strings &part : parts)
    all.insert(all.end(), part.begin(), part.end());
  return all;
}

TEST_F(stub_bodies_test, pure_stub_is_polymorphic_and_only_returns)
{
  proc_sym *f = b->extern_proc("f", b->func(type_signed, {type_signed}));
  name_types();
  EXPECT_EQ(pieces_of(make_stub(f, STUB_PURE, false)),
            concat({{"/*\n * f\n */\n", "\n#pragma QUORVANTA_POLYMORPHIC \"f\"\n", "\n", "\n",
                     "__QVT__SINT32 f(__QVT__SINT32 P_0)\n", "{\n", "/* function is pure */\n\n"},
                    int_return,
                    {"}\n\n"}}));
}

TEST_F(stub_bodies_test, default_stub_clamps_an_enum_written_through_a_pointer)
{
  enum_type *colour = b->enum_of("colour", {{"RED", 0}, {"BLUE", 2}});
  proc_sym *f = b->extern_proc("pick", b->func(type_void, {b->ptr(colour)}));
  name_types();
  strings text = pieces_of(make_stub(f, STUB_DEFAULT, false));
  auto first = std::find(text.begin(), text.end(), "P_0[0] = " + rnd(colour) + ";\n");
  ASSERT_NE(first, text.end());
  EXPECT_EQ(strings(first, text.end()),
            (strings{"P_0[0] = " + rnd(colour) + ";\n", "\n", "/* range value according to enum bounds */\n",
                     "unchecked_assert(P_0[0] >= 0);\n", "unchecked_assert(P_0[0] <= 2);\n", "\n", "}\n", "}\n\n",
                     "return;\n", "}\n\n"}));
}

TEST_F(stub_bodies_test, default_stub_calls_a_function_pointer_and_leaves_a_struct_by_value)
{
  func_type *callback = b->func(type_void, {});
  struct_type *pair = b->struct_of("pair", {{"p", b->ptr(type_char)}});
  proc_sym *f = b->extern_proc("on", b->func(type_void, {b->ptr(callback), pair}));
  name_types();
  EXPECT_EQ(pieces_of(make_stub(f, STUB_DEFAULT, false)),
            (strings{"/*\n * on\n */\n", "\n", "\n",
                     "__QVT__VOID on(" + gname(b->ptr(callback)) + " P_0, struct pair P_1)\n", "{\n",
                     "/* parameter 0 */\n\n", "if (qvt_random_int && P_0 != 0)\n", "{ /* call of function P_0 */\n",
                     "\n", "P_0();\n", "}\n", "\n", "/* parameter 1 */\n\n", "return;\n", "}\n\n"}));
}

TEST_F(stub_bodies_test, worst_stub_roams_and_returns_the_unqualified_type)
{
  type_node *const_int = b->const_of(type_signed);
  ptr_type *text_ptr = b->ptr(type_char);
  proc_sym *f = b->extern_proc("w", b->func(const_int, {text_ptr, type_signed}));
  name_types();
  strings text = pieces_of(make_stub(f, STUB_WORST, false));
  strings head(text.begin(), text.begin() + 15);
  EXPECT_EQ(head, (strings{"/*\n * w\n */\n", "\n", "\n",
                           gname(const_int) + " w(" + gname(text_ptr) + " P_0, __QVT__SINT32 P_1)\n", "{\n",
                           "__QVT__CHAR *ptr_1;\n", "__QVT__CHAR *ptr_2;\n", "\n",
                           "/* parameter 0 - WORST mode */\n\n", "ptr_1 = (__QVT__CHAR *)&P_0;\n",
                           "ptr_2 = (__QVT__CHAR *)&P_0;\n", "\n", "/* parameter 1 is constant */\n\n",
                           "/* pointer effect - WORST mode */\n\n", "while (qvt_random_int)\n"}));
  strings tail(text.end() - 6, text.end());
  EXPECT_EQ(tail, (strings{"/* random return value */\n\n", "{\n", "volatile __QVT__SINT32 random_for_return  = 0;\n",
                           "return random_for_return;\n", "}\n", "}\n\n"}));
}

TEST_F(stub_bodies_test, const_return_keeps_its_qualified_name_outside_worst)
{
  type_node *const_int = b->const_of(type_signed);
  proc_sym *f = b->extern_proc("k", b->func(const_int, {}));
  name_types();
  strings text = pieces_of(make_stub(f, STUB_DEFAULT, false));
  strings tail(text.end() - 6, text.end());
  EXPECT_EQ(tail, (strings{"{\n", "volatile " + gname(const_int) + " real_random_for_return  = 0;\n",
                           gname(const_int) + " random_for_return = real_random_for_return;\n",
                           "return random_for_return;\n", "}\n", "}\n\n"}));
  EXPECT_EQ(text[3], gname(const_int) + " k(__QVT__VOID)\n");
}

TEST_F(stub_bodies_test, pointer_return_has_no_initialiser_and_enum_return_is_clamped)
{
  ptr_type *text_ptr = b->ptr(type_char);
  enum_type *colour = b->enum_of("colour", {{"RED", 0}, {"GREEN", 1}});
  proc_sym *p = b->extern_proc("p", b->func(text_ptr, {}));
  proc_sym *e = b->extern_proc("e", b->func(colour, {}));
  name_types();
  strings text = pieces_of(make_stub(p, STUB_PURE, false));
  EXPECT_NE(std::find(text.begin(), text.end(), "volatile " + gname(text_ptr) + " real_random_for_return ;\n"),
            text.end());
  text = pieces_of(make_stub(e, STUB_PURE, false));
  strings tail(text.end() - 10, text.end());
  EXPECT_EQ(tail, (strings{"volatile enum colour real_random_for_return  = 0;\n",
                           "enum colour random_for_return = real_random_for_return;\n", "\n",
                           "/* range value according to enum bounds */\n",
                           "unchecked_assert(random_for_return >= 0);\n", "unchecked_assert(random_for_return <= 1);\n",
                           "\n", "return random_for_return;\n", "}\n", "}\n\n"}));
}

TEST_F(stub_bodies_test, instrumenting_shows_the_hidden_parameters_and_the_auto_stub_pragma)
{
  flag_instrum = true;
  func_type *type = b->func(type_void, {}, true);
  proc_sym *f = b->extern_proc("only", type);
  name_types();
  strings text = pieces_of(make_stub(f, STUB_DEFAULT, false));
  ASSERT_GE(text.size(), 9u);
  EXPECT_EQ(text[1], "\n#pragma QUORVANTA_AUTO_STUB \"only\"\n");
  EXPECT_EQ(text[3], "__QVT__VOID only(__QVT__SINT32 P_0, " + gname(type->arg_type(1)) + " P_1, ... )\n");
  EXPECT_EQ(text[5], "/* parameter 0 is constant */\n\n");
  EXPECT_EQ(text[6], "/* parameter 1 */\n\n");
  EXPECT_NE(std::find(text.begin(), text.end(), "/* varargs access */\n"), text.end());
}

TEST_F(stub_bodies_test, worst_stub_of_a_variadic_function_without_named_parameters)
{
  proc_sym *f = b->extern_proc("v", b->func(type_void, {}, true));
  name_types();
  strings text = pieces_of(make_stub(f, STUB_WORST, false));
  EXPECT_EQ(text[3], "__QVT__VOID v( ... )\n");
  EXPECT_EQ(text[8], "/* pointer effect - WORST mode */\n\n");
}

// Range marks as the range passes leave them on a procedure: mode, name, bounds, pointer code.
static void add_range_mark(proc_sym *proc, const char *name, int pointer_code)
{
  immed_list *data = new immed_list;
  data->append(immed("init"));
  data->append(immed(name));
  data->append(immed("0"));
  data->append(immed("9"));
  data->append(immed(pointer_code));
  proc->append_annote(k_drs, data);
}

TEST_F(stub_bodies_test, no_write_range_leaves_only_the_comment_but_keeps_a_call)
{
  func_type *callback = b->func(type_void, {});
  proc_sym *f = b->extern_proc("n", b->func(type_void, {b->ptr(type_signed), b->ptr(callback)}));
  add_range_mark(f, "n.#0", 2);
  add_range_mark(f, "n.#1", 2);
  name_types();
  strings text = pieces_of(make_stub(f, STUB_DEFAULT, false));
  EXPECT_EQ(strings(text.begin() + 5, text.end()),
            (strings{"/* parameter 0 */\n\n", "/* parameter 1 */\n\n", "if (qvt_random_int && P_1 != 0)\n",
                     "{ /* call of function P_1 */\n", "\n", "P_1();\n", "}\n", "\n", "return;\n", "}\n\n"}));
}

TEST_F(stub_bodies_test, ranges_that_restate_the_default_write_the_whole_value)
{
  proc_sym *f = b->extern_proc("s", b->func(type_void, {b->ptr(type_signed)}));
  add_range_mark(f, "s.#0", 1);  // one element, guarded
  drs_init_state();
  drs_entry *restated = drs_new_entry(DRS_MODE_INIT, "s.#0*", "-2147483648", "2147483647", 1, DRS_PTR_MULTI);
  restated->fully_handled = true;
  drs_read_entries->push_back(restated);
  name_types();
  int n = main_gen_tmp_counter;
  std::string tmp = "_main_gen_tmp_" + std::to_string(n);
  strings text = pieces_of(make_stub(f, STUB_DEFAULT, false));
  drs_free_state();
  EXPECT_EQ(main_gen_tmp_counter, n + 1);
  EXPECT_EQ(strings(text.begin() + 5, text.end()),
            (strings{"/* parameter 0 */\n\n", "if (P_0 != 0)\n", "{\n", "volatile __QVT__SINT32 " + tmp + "_v  = 0;\n",
                     "__QVT__SINT64 " + tmp + " = __qv_builtin_available_size(P_0) / sizeof(__QVT__SINT32);\n",
                     "if ((" + tmp + " > 0) && QVT_TRUE())", "{\n", "P_0[0] = " + tmp + "_v;\n", "}\n", "}\n\n",
                     "return;\n", "}\n\n"}));
}

TEST_F(stub_bodies_test, ranges_on_the_target_frame_the_range_writer)
{
  proc_sym *f = b->extern_proc("r", b->func(type_void, {b->ptr(type_signed)}));
  add_range_mark(f, "r.#0*", 0);
  drs_init_state();
  name_types();
  std::string tmp = "_main_gen_tmp_" + std::to_string(main_gen_tmp_counter);
  strings text = pieces_of(make_stub(f, STUB_DEFAULT, false));
  drs_free_state();
  // No entry on the pointer itself: every element, under a random guard.
  strings expected = {"/* parameter 0 */\n\n", "if (P_0 != 0)\n", "{\n",
                      "__QVT__SINT64 " + tmp + " = __qv_builtin_available_size (P_0) / sizeof(__QVT__SINT32);\n",
                      "for (" + tmp + " = " + tmp + " - 1; (" + tmp + " >= 0) && QVT_TRUE(); " + tmp + " --)\n",
                      "{\n"};
  EXPECT_EQ(strings(text.begin() + 5, text.begin() + 5 + expected.size()), expected);
  EXPECT_EQ(strings(text.end() - 4, text.end()), (strings{"}\n", "}\n\n", "return;\n", "}\n\n"}));
}

TEST_F(stub_bodies_test, a_pure_stub_with_return_ranges_is_not_polymorphic)
{
  proc_sym *f = b->extern_proc("q", b->func(type_signed, {}));
  add_range_mark(f, "q.return", 0);
  name_types();
  strings text = pieces_of(make_stub(f, STUB_PURE, false));
  EXPECT_EQ(text[1], "\n");
  EXPECT_EQ(text[2], "\n");
  EXPECT_NE(std::find(text.begin(), text.end(), "__QVT__SINT32 random_for_return = real_random_for_return;\n"),
            text.end());
}

TEST_F(stub_bodies_test, a_stub_without_instrumentation_keeps_only_comments_varargs_and_return)
{
  proc_sym *f = b->extern_proc("ni", b->func(type_void, {type_signed, b->ptr(type_signed)}, true));
  name_types();
  strings text = pieces_of(make_stub(f, STUB_NO_INSTRUMENT, false));
  ASSERT_GE(text.size(), 9u);
  EXPECT_EQ(text[5], "/* parameter 0 is constant */\n\n");
  EXPECT_EQ(text[6], "/* varargs access */\n");
  EXPECT_EQ(strings(text.end() - 2, text.end()), (strings{"return;\n", "}\n\n"}));
}
