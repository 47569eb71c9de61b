// Stub bodies: the paths that range marks open, and a stub left uninstrumented. Each kind's
// text on every parameter class is checked end to end by the stub tests of the lit suite.
#include "stubs/stub_bodies.h"

#include "analysis/stub_pragmas.h"
#include "maingen/var_init.h"
#include "stubs/stub_test_util.h"

#include <algorithm>

using stub_bodies_test = generator_test;
using strings = std::vector<std::string>;

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
