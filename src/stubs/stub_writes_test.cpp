// Stub writes: the clean walk where it can loop or write too much, the hidden arguments of a
// variadic call and the per-file stubs of function pointers. Calls of declared functions, of
// parameters and of main are checked end to end.
#include "stubs/stub_writes.h"

#include "stubs/stub_test_util.h"

using stub_writes_test = generator_test;
using strings = std::vector<std::string>;

TEST_F(stub_writes_test, clean_write_follows_a_linked_struct_once)
{
  struct_type *node = b->struct_of("node", {{"a", type_signed}});
  ptr_type *link = b->ptr(node);
  node->set_num_fields(2);
  node->set_field_name(1, "next");
  node->set_field_type(1, link);
  name_types();
  EXPECT_EQ(pieces_of(clean_write("P_0", link, true)),
            (strings{"P_0[qvt_random_int].a = " + rnd(type_signed) + ";\n",
                     "P_0[qvt_random_int].next = " + rnd(link) + ";\n"}));
  // The walk leaves no guard behind: a second walk gives the same text.
  EXPECT_EQ(pieces_of(clean_write("P_0", link, true)).size(), 2u);
}

TEST_F(stub_writes_test, clean_write_leaves_const_memory_alone)
{
  ptr_type *to_const = b->ptr(b->const_of(type_signed));
  struct_type *holder = b->struct_of("holder", {{"q", to_const}, {"n", b->const_of(type_signed)}});
  name_types();
  EXPECT_EQ(pieces_of(clean_write("s", holder, false)), (strings{"s.q = " + rnd(to_const) + ";\n"}));
}

TEST_F(stub_writes_test, clean_write_skips_fillers_and_writes_bit_fields_plainly)
{
  type_node *bits = b->int_of(3, false);
  struct_type *flags = b->struct_of("flags", {{"low", bits, 3}, {"__qvt_unused_field0", bits, 3}});
  name_types();
  EXPECT_EQ(pieces_of(clean_write("P_0[qvt_random_int]", flags, false)),
            (strings{"P_0[qvt_random_int].low = " + rnd(flags->field_type(0)) + ";\n"}));
}

TEST_F(stub_writes_test, a_variadic_call_passes_the_hidden_arguments)
{
  ptr_type *text = b->ptr(type_char);
  func_type *printer = b->func(type_signed, {text}, true);
  proc_sym *v = b->extern_proc("v", printer);
  name_types();
  EXPECT_EQ(pieces_of(call_function_text(v)),
            (strings{"{ /* call of function v */\n", "__QVT__SINT32 v(" + gname(text) + ", ... );\n",
                     "volatile " + gname(text) + " __ARG__0;\n", "volatile __QVT__SINT32 __ARG__1;\n",
                     "volatile " + gname(printer->arg_type(2)) + " __ARG__2;\n", "\n",
                     "v(__ARG__0, __ARG__1, __ARG__2);\n", "}\n"}));
}

TEST_F(stub_writes_test, one_stub_per_signature_and_file)
{
  func_type *writer = b->func(type_signed, {b->ptr(type_signed)});
  func_type *other = b->func(type_void, {b->ptr(type_double)});
  name_types();
  std::string name = "_stub_g_" + std::to_string(writer->type_id());
  EXPECT_EQ(std::string(stub_for_function_pointer(writer, -1)), name);
  int lines = fptr_stub_texts->count();
  ASSERT_GT(lines, 0);
  EXPECT_EQ(std::string((*fptr_stub_texts)[0]), "/*\n * " + name + "\n */\n");
  EXPECT_EQ(std::string(stub_for_function_pointer(writer, -1)), name);
  EXPECT_EQ(fptr_stub_texts->count(), lines);
  // Another signature has its own stub.
  EXPECT_EQ(std::string(stub_for_function_pointer(other, -1)), "_stub_g_" + std::to_string(other->type_id()));
  EXPECT_GT(fptr_stub_texts->count(), lines);
  // The next file declares it again.
  reset_generation_state();
  EXPECT_EQ(std::string(stub_for_function_pointer(writer, -1)), name);
  EXPECT_EQ(fptr_stub_texts->count(), lines);
}

TEST_F(stub_writes_test, function_pointer_stubs_are_never_clean_or_worst)
{
  func_type *writer = b->func(type_signed, {b->ptr(type_signed)});
  func_type *pure = b->func(type_signed, {type_signed});
  func_type *only_varargs = b->func(type_signed, {}, true);
  name_types();
  std::string id = std::to_string(writer->type_id());
  EXPECT_EQ(std::string(stub_for_function_pointer(writer, 2)), "_stub_g_" + id);
  EXPECT_EQ(std::string(stub_for_function_pointer(writer, 3)), "_stub_g_" + id);
  EXPECT_EQ(std::string(stub_for_function_pointer(pure, -1)), "_stub_p_g_" + std::to_string(pure->type_id()));
  EXPECT_EQ(std::string(stub_for_function_pointer(only_varargs, -1)),
            "_stub_g_" + std::to_string(only_varargs->type_id()));
  flag_mgen_pure_stubs = true;
  EXPECT_EQ(std::string(stub_for_function_pointer(writer, -1)), "_stub_p_g_" + id);
  flag_mgen_pure_stubs = false;
}

TEST_F(stub_writes_test, function_pointer_stub_is_static_and_pure_ones_are_polymorphic)
{
  func_type *pure = b->func(type_signed, {type_signed});
  name_types();
  std::string name = "_stub_p_g_" + std::to_string(pure->type_id());
  stub_for_function_pointer(pure, -1);
  std::vector<std::string> text;
  for (string_list_iter it(fptr_stub_texts); !it.is_empty();)
    text.push_back(it.step());
  ASSERT_GE(text.size(), 6u);
  EXPECT_EQ(text[1], "\n#pragma QUORVANTA_POLYMORPHIC \"" + name + "\"\n");
  EXPECT_EQ(text[4], "static __QVT__SINT32 " + name + "(__QVT__SINT32 P_0)\n");
}
