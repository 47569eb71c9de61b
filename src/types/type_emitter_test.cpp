// The type emitter: names, typedef texts, and parts without a C form. The order of the pieces
// on cycles is checked end to end by the type header tests.
#include "types/type_emitter.h"

#include "types/ir_test_fixture.h"

namespace {

class type_emitter_test : public ir_test {
protected:
  std::string define(type_node *t, bool forward_only = false) {
    string_list *l = define_type(t, forward_only);
    std::string s = text_of(l);
    delete l;
    return s;
  }
};

TEST_F(type_emitter_test, base_types) {
  const std::pair<type_node *, std::string> cases[] = {
      {type_signed, "typedef signed int __QVT__SINT32;\n"},
      {type_unsigned_char, "typedef unsigned char __QVT__UINT8;\n"},
      {type_signed_long, "typedef signed long __QVT__SINT64;\n"},
      {type_double, "typedef double __QVT__FLOAT64;\n"},
      {type_void, "typedef void __QVT__VOID;\n"},
      // long double has no float word of its own
      {type_longdouble, "typedef long double __QVT__FLOAT" + std::to_string(type_longdouble->size()) + ";\n"},
  };
  for (auto &[t, text] : cases) EXPECT_EQ(define(t), text);
  EXPECT_STREQ(get_type_name(type_signed), "__QVT__SINT32");
  // A second visit writes nothing.
  EXPECT_EQ(define(type_signed), "");
}

TEST_F(type_emitter_test, integer_of_no_c_size_is_spelled_with_c_words) {
  type_node *t = b->int_of(12, false);
  EXPECT_EQ(define(t), "");
  ASSERT_NE(get_type_name(t), nullptr);
  EXPECT_STREQ(get_type_name(t), c_type_to_string(C_short, false));
}

TEST_F(type_emitter_test, enum_value_text_minimum_of_each_base) {
  EXPECT_STREQ(enum_value_text(i_integer("-9223372036854775808"), type_signed_long), "(-9223372036854775807-1)");
  EXPECT_STREQ(enum_value_text(i_integer(-128), type_signed_char), "(-127-1)");
  EXPECT_STREQ(enum_value_text(i_integer(-127), type_signed_char), "-127");
  EXPECT_STREQ(enum_value_text(i_integer(0), type_unsigned), "(1-1)");
  EXPECT_STREQ(enum_value_text(i_integer(255), type_unsigned_char), "255");
}

TEST_F(type_emitter_test, volatile_and_pointer_to_pointer) {
  type_node *v = b->volatile_of(type_signed);
  ptr_type *p = b->ptr(b->ptr(v));
  ptr_type *inner = static_cast<ptr_type *>(p->ref_type());
  EXPECT_EQ(define(p), "typedef signed int __QVT__SINT32;\n"
                       "typedef volatile __QVT__SINT32 " + g(v) + ";\n"
                       "typedef " + g(v) + " *" + g(inner) + ";\n"
                       "typedef " + g(inner) + " *" + g(p) + ";\n");
}

TEST_F(type_emitter_test, a_part_without_c_form_leaves_its_users_unnamed) {
  // A group has no C text: nothing that needs its name may be written.
  struct_type *grp = static_cast<struct_type *>(b->install(new struct_type(TYPE_GROUP, 32, "g", 0)));
  ptr_type *p = b->ptr(grp);
  func_type *f = b->func(type_signed, {p});
  array_type *a = b->array(grp, 2);
  EXPECT_EQ(define(p), "");
  EXPECT_EQ(get_type_name(p), nullptr);
  EXPECT_EQ(define(f), "typedef signed int __QVT__SINT32;\n");
  EXPECT_EQ(get_type_name(f), nullptr);
  EXPECT_EQ(define(b->ptr(f)) + define(a), "");
  EXPECT_EQ(get_type_name(b->ptr(f)), nullptr);
}

TEST_F(type_emitter_test, set_type_name_keeps_the_first_name) {
  EXPECT_EQ(set_type_name(type_signed, nullptr), nullptr);
  EXPECT_EQ(get_type_name(type_signed), nullptr);
  set_type_name(type_signed, "first");
  set_type_name(type_signed, "second");
  EXPECT_STREQ(get_type_name(type_signed), "first");
}

}  // namespace
