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

TEST_F(type_emitter_test, self_referencing_struct) {
  struct_type *s = b->struct_of("node", {{"v", type_signed}, {"next", type_signed}});
  ptr_type *p = b->ptr(s);
  s->set_field_type(1, p);
  EXPECT_EQ(define(s), "typedef signed int __QVT__SINT32;\n"
                       "typedef struct node *" + g(p) + ";\n"
                       "struct node\n  {\n"
                       "    __QVT__SINT32 v;\n"
                       "    " + g(p) + " next;\n"
                       "  };\n");
  EXPECT_EQ(define(p), "");
}

TEST_F(type_emitter_test, pointer_first_names_only_the_tag) {
  struct_type *s = b->struct_of("node", {{"next", type_signed}});
  ptr_type *p = b->ptr(s);
  s->set_field_type(0, p);
  EXPECT_EQ(define(p), "typedef struct node *" + g(p) + ";\n");
  EXPECT_STREQ(get_type_name(s), "struct node");
  EXPECT_EQ(define(s), "struct node\n  {\n    " + g(p) + " next;\n  };\n");
}

TEST_F(type_emitter_test, mutually_referencing_structs) {
  struct_type *a = b->struct_of("a", {{"to_b", type_signed}});
  struct_type *c = b->struct_of("b", {{"to_a", type_signed}});
  ptr_type *pa = b->ptr(a), *pb = b->ptr(c);
  a->set_field_type(0, pb);
  c->set_field_type(0, pa);
  std::string first = define(a);
  EXPECT_EQ(first, "typedef struct b *" + g(pb) + ";\n"
                   "struct a\n  {\n    " + g(pb) + " to_b;\n  };\n");
  std::string second = define(c);
  EXPECT_EQ(second, "typedef struct a *" + g(pa) + ";\n"
                    "struct b\n  {\n    " + g(pa) + " to_a;\n  };\n");
  EXPECT_EQ(define(pa) + define(pb), "");
}

TEST_F(type_emitter_test, const_struct_behind_pointer_gets_its_body_on_revisit) {
  struct_type *s = b->struct_of("s", {{"x", type_signed}});
  type_node *cs = b->const_of(s);
  ptr_type *p = b->ptr(cs);
  EXPECT_EQ(define(p), "typedef const struct s " + g(cs) + ";\n"
                       "typedef " + g(cs) + " *" + g(p) + ";\n");
  EXPECT_EQ(define(cs), "typedef signed int __QVT__SINT32;\n"
                        "struct s\n  {\n    __QVT__SINT32 x;\n  };\n");
  EXPECT_EQ(define(cs) + define(s), "");
}

TEST_F(type_emitter_test, array_of_struct_behind_pointer_has_the_body_first) {
  // C has no array of an incomplete type: the body must precede the array typedef.
  struct_type *s = b->struct_of("s", {{"x", type_signed}});
  array_type *a = b->array(s, 4);
  ptr_type *p = b->ptr(a);
  EXPECT_EQ(define(p), "typedef signed int __QVT__SINT32;\n"
                       "struct s\n  {\n    __QVT__SINT32 x;\n  };\n"
                       "typedef struct s " + g(a) + "[4];\n"
                       "typedef " + g(a) + " *" + g(p) + ";\n");
  EXPECT_EQ(define(s) + define(a), "");
}

TEST_F(type_emitter_test, array_bounds) {
  array_type *known = b->array(type_signed, 10);
  array_type *unknown = b->array(type_signed, -1);
  EXPECT_EQ(define(known), "typedef signed int __QVT__SINT32;\ntypedef __QVT__SINT32 " + g(known) + "[10];\n");
  EXPECT_EQ(define(unknown), "typedef __QVT__SINT32 " + g(unknown) + "[];\n");
}

TEST_F(type_emitter_test, function_parameter_texts) {
  func_type *none = b->func(type_signed, {});
  func_type *noproto = b->func_noproto(type_signed);
  func_type *two = b->func(type_void, {type_signed, type_double});
  func_type *variadic = b->func(type_signed, {type_signed}, true);
  func_type *only_varargs = b->func(type_signed, {}, true);
  EXPECT_EQ(define(none), "typedef signed int __QVT__SINT32;\ntypedef __QVT__SINT32 " + g(none) + "(void);\n");
  EXPECT_EQ(define(noproto), "typedef __QVT__SINT32 " + g(noproto) + "();\n");
  EXPECT_EQ(define(two), "typedef void __QVT__VOID;\ntypedef double __QVT__FLOAT64;\n"
                         "typedef __QVT__VOID " + g(two) + "(__QVT__SINT32, __QVT__FLOAT64);\n");
  // The two hidden parameters are neither written nor visited.
  EXPECT_EQ(define(variadic), "typedef __QVT__SINT32 " + g(variadic) + "(__QVT__SINT32, ...);\n");
  EXPECT_EQ(define(only_varargs), "typedef __QVT__SINT32 " + g(only_varargs) + "(void);\n");
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

TEST_F(type_emitter_test, enum_at_the_minimum_of_its_base) {
  enum_type *e = b->enum_of("e", {{"LO", -2147483647LL - 1}, {"MID", -5}, {"HI", 7}});
  EXPECT_EQ(define(e), "enum e\n  {\n"
                       "    LO = (-2147483647-1),\n"
                       "    MID = -5,\n"
                       "    HI = 7\n"
                       "  };\n");
  // An enum is written whole even behind a pointer.
  enum_type *e2 = b->enum_of("f", {{"A", 0}});
  ptr_type *p = b->ptr(e2);
  EXPECT_EQ(define(p), "enum f\n  {\n    A = 0\n  };\ntypedef enum f *" + g(p) + ";\n");
}

TEST_F(type_emitter_test, enum_value_text_minimum_of_each_base) {
  EXPECT_STREQ(enum_value_text(i_integer("-9223372036854775808"), type_signed_long), "(-9223372036854775807-1)");
  EXPECT_STREQ(enum_value_text(i_integer(-128), type_signed_char), "(-127-1)");
  EXPECT_STREQ(enum_value_text(i_integer(-127), type_signed_char), "-127");
  EXPECT_STREQ(enum_value_text(i_integer(0), type_unsigned), "(1-1)");
  EXPECT_STREQ(enum_value_text(i_integer(255), type_unsigned_char), "255");
}

TEST_F(type_emitter_test, packed_struct) {
  struct_type *s = b->struct_of("p", {{"c", type_char}, {"d", type_double}});
  b->annotate(s, k_max_align, {immed(1)});
  EXPECT_EQ(define(s), "typedef signed char __QVT__SINT8;\n"
                       "typedef double __QVT__FLOAT64;\n"
                       "#pragma pack(1)\n"
                       "struct p\n  {\n    __QVT__SINT8 c;\n    __QVT__FLOAT64 d;\n  };\n"
                       "#pragma pack()\n");
}

TEST_F(type_emitter_test, empty_struct_and_anonymous_tags) {
  struct_type *e = b->struct_of("empty", {});
  EXPECT_EQ(define(e), "struct empty\n  {\n  };\n");
  struct_type *u = b->union_of("17", {{"i", type_signed}});
  EXPECT_EQ(define(u), "typedef signed int __QVT__SINT32;\n"
                       "union " + g(u) + "\n  {\n    __QVT__SINT32 i;\n  };\n");
  enum_type *an = b->enum_of("3", {{"K", 1}});
  EXPECT_EQ(define(an), "enum " + g(an) + "\n  {\n    K = 1\n  };\n");
  EXPECT_TRUE(is_anonymous_tag(nullptr));
  EXPECT_TRUE(is_anonymous_tag("0x"));
  EXPECT_FALSE(is_anonymous_tag("x0"));
}

TEST_F(type_emitter_test, bit_fields_use_their_storage_type) {
  struct_type *s = b->struct_of("bits", {{"a", type_unsigned, 3}, {"b", type_signed, 5}});
  s->set_field_type(1, b->const_of(s->field_type(1)));
  std::string text = define(s);
  EXPECT_NE(text.find("    __QVT__UINT32 a : 3;\n"), std::string::npos) << text;
  EXPECT_NE(text.find("    const __QVT__SINT32 b : 5;\n"), std::string::npos) << text;
  EXPECT_LT(text.find("typedef unsigned int __QVT__UINT32;\n"), text.find("struct bits")) << text;
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

TEST_F(type_emitter_test, set_type_name_keeps_the_first_name) {
  EXPECT_EQ(set_type_name(type_signed, nullptr), nullptr);
  EXPECT_EQ(get_type_name(type_signed), nullptr);
  set_type_name(type_signed, "first");
  set_type_name(type_signed, "second");
  EXPECT_STREQ(get_type_name(type_signed), "first");
}

// A target whose long has 24 bits: the two widest integer kinds shift their C words.
class type_emitter_24_test : public type_emitter_test {
protected:
  void SetUp() override {
    static char name[] = "stubber_tests";
    static char *argv[] = {name, nullptr};
    int argc = 1;
    init_suif(argc, argv);
    target.size[C_int] = 16;
    target.size[C_long] = 24;
    target.size[C_longlong] = 32;
    make_predefined_types();
    forget_generation_marks();
    forget_predicate_marks();
    reset_generation_state();
    b = new program_builder(nullptr);
  }
  void TearDown() override {
    type_emitter_test::TearDown();
    set_default_target();
  }
};

TEST_F(type_emitter_24_test, short_long) {
  EXPECT_TRUE(target_long_is_24_bits);
  EXPECT_EQ(define(type_signed_long), "typedef signed short long __QVT__SINT24;\n");
  EXPECT_EQ(define(type_unsigned_longlong), "typedef unsigned long __QVT__UINT32;\n");
  EXPECT_EQ(define(type_signed), "typedef signed short __QVT__SINT16;\n");
}

}  // namespace
