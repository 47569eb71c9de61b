// The type emitter: names, typedef texts and, above all, the order of the pieces, which must
// put every dependency ahead of its use and never define a type twice.
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
  static size_t count(const std::string &hay, const std::string &needle) {
    size_t n = 0;
    for (size_t p = hay.find(needle); p != std::string::npos; p = hay.find(needle, p + 1)) n++;
    return n;
  }
};

TEST_F(type_emitter_test, base_types) {
  EXPECT_EQ(define(type_signed), "typedef signed int __QVT__SINT32;\n");
  EXPECT_EQ(define(type_unsigned_char), "typedef unsigned char __QVT__UINT8;\n");
  EXPECT_EQ(define(type_unsigned_short), "typedef unsigned short __QVT__UINT16;\n");
  EXPECT_EQ(define(type_signed_long), "typedef signed long __QVT__SINT64;\n");
  EXPECT_EQ(define(type_float), "typedef float __QVT__FLOAT32;\n");
  EXPECT_EQ(define(type_double), "typedef double __QVT__FLOAT64;\n");
  EXPECT_EQ(define(type_void), "typedef void __QVT__VOID;\n");
  EXPECT_STREQ(get_type_name(type_signed), "__QVT__SINT32");
  EXPECT_STREQ(get_type_name(type_void), "__QVT__VOID");
  // A second visit writes nothing.
  EXPECT_EQ(define(type_signed), "");
}

TEST_F(type_emitter_test, long_double_has_no_float_word_of_its_own) {
  std::string s = define(type_longdouble);
  EXPECT_EQ(s, "typedef long double __QVT__FLOAT" + std::to_string(type_longdouble->size()) + ";\n");
}

TEST_F(type_emitter_test, integer_of_no_c_size_is_spelled_with_c_words) {
  type_node *t = b->int_of(12, false);
  EXPECT_EQ(define(t), "");
  ASSERT_NE(get_type_name(t), nullptr);
  EXPECT_STREQ(get_type_name(t), c_type_to_string(C_short, false));
}

TEST_F(type_emitter_test, pointer_first_names_only_the_tag) {
  struct_type *s = b->struct_of("node", {{"next", type_signed}});
  ptr_type *p = b->ptr(s);
  s->set_field_type(0, p);
  EXPECT_EQ(define(p), "typedef struct node *" + g(p) + ";\n");
  EXPECT_STREQ(get_type_name(s), "struct node");
  EXPECT_EQ(define(s), "struct node\n  {\n    " + g(p) + " next;\n  };\n");
}

TEST_F(type_emitter_test, function_in_a_cycle_is_written_once) {
  // f takes struct s by value, and s holds a pointer to f.
  struct_type *s = b->struct_of("s", {{"cb", type_signed}});
  func_type *f = static_cast<func_type *>(b->install(new func_type(type_signed, 1u)));
  f->set_arg_type(0, s);
  ptr_type *pf = b->ptr(f);
  s->set_field_type(0, pf);
  std::string text = define(f);
  EXPECT_EQ(count(text, "typedef __QVT__SINT32 " + g(f) + "(struct s);\n"), 1u) << text;
  EXPECT_LT(text.find(g(f) + "(struct s)"), text.find("typedef " + g(f) + " *" + g(pf))) << text;
  EXPECT_LT(text.find("typedef " + g(f) + " *"), text.find("struct s\n  {\n")) << text;
  EXPECT_EQ(define(f) + define(pf) + define(s), "");
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
