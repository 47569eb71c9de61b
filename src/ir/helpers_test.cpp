// Type and name helpers: integer bounds, sizes to types, name classes.
#include <gtest/gtest.h>

#include "ir/test_util.h"

using helpers = ir_test;

TEST_F(helpers, integer_bounds_for_common_and_odd_sizes) {
    struct {
        int bits;
        const char *smin, *smax, *umax;
    } cases[] = {
        {8, "-128", "127", "255"},
        {16, "-32768", "32767", "65535"},
        {24, "-8388608", "8388607", "16777215"},
        {32, "-2147483648", "2147483647", "4294967295"},
        {64, "-9223372036854775808", "9223372036854775807", "18446744073709551615"},
        {128, "-170141183460469231731687303715884105728", "170141183460469231731687303715884105727",
         "340282366920938463463374607431768211455"},
    };
    for (auto &c : cases) {
        type_node *s = base_from_sign_and_size(true, c.bits);
        type_node *u = base_from_sign_and_size(false, c.bits);
        EXPECT_EQ(inttype_min(s).to_string(10), c.smin) << c.bits;
        EXPECT_EQ(inttype_max(s).to_string(10), c.smax) << c.bits;
        EXPECT_EQ(inttype_min(u).to_string(10), "0") << c.bits;
        EXPECT_EQ(inttype_max(u).to_string(10), c.umax) << c.bits;
    }
}

TEST_F(helpers, bounds_see_through_qualifiers_and_enums) {
    program_builder b;
    EXPECT_EQ(inttype_max(b.const_of(type_unsigned_char)).to_string(10), "255");
    enum_type *e = b.enum_of("e", {{"A", -1}, {"B", 7}});
    EXPECT_EQ(inttype_min(e).to_string(10), "-2147483648");
    i_integer lo, hi;
    get_enum_bounds(e, &lo, &hi);
    EXPECT_EQ(lo.c_int(), -1);
    EXPECT_EQ(hi.c_int(), 7);
}

TEST_F(helpers, odd_sizes_and_bitfields) {
    EXPECT_EQ(base_from_sign_and_size(true, 32), type_signed);
    // An odd size makes one new type, and only one.
    type_node *t24 = base_from_sign_and_size(true, 24);
    EXPECT_EQ(t24->size(), 24);
    EXPECT_EQ(base_from_sign_and_size(true, 24), t24);
    EXPECT_NE(base_from_sign_and_size(false, 24), t24);
    type_node *bits3 = base_from_sign_and_size(false, 3);
    EXPECT_EQ(c_int_type(bits3), C_none);
    EXPECT_EQ(original_bitfield_type(bits3), type_unsigned_char);
    EXPECT_EQ(original_bitfield_type(base_from_sign_and_size(true, 20)), type_signed);
    for (auto [n, want] : {std::pair{0, 1}, {1, 1}, {3, 4}, {24, 32}, {64, 64}, {65, 128}})
        EXPECT_EQ(round_up_power_of_2(n), want) << n;
}

TEST_F(helpers, volatile_parts_are_found_inside_aggregates_only) {
    program_builder b;
    type_node *vint = b.volatile_of(type_signed);
    struct_type *inner = b.struct_of("inner", {{"x", vint}});
    struct_type *outer = b.struct_of("outer", {{"a", b.array(inner, 2)}});
    struct_type *behind = b.struct_of("behind", {{"p", b.ptr(vint)}});
    EXPECT_TRUE(any_part_volatile(outer));
    EXPECT_FALSE(any_part_volatile(behind));
    EXPECT_TRUE(b.const_of(vint)->is_volatile());
    EXPECT_EQ(b.const_of(vint)->unqual(), type_signed);
}

TEST_F(helpers, number_texts) {
    for (const char *octal : {"0", "017", "-017"}) EXPECT_TRUE(is_octal_constant(octal)) << octal;
    for (const char *other : {"018", "17"}) EXPECT_FALSE(is_octal_constant(other)) << other;
    for (const char *hex : {"0x1F", "-0Xab"}) EXPECT_TRUE(is_hexadecimal_constant(hex)) << hex;
    for (const char *other : {"0x", "0x1g"}) EXPECT_FALSE(is_hexadecimal_constant(other)) << other;
}

TEST_F(helpers, names_and_paths) {
    const char *rest;
    EXPECT_STREQ(generic_basename("dir/sub/file.c", &rest), "file.c");
    EXPECT_STREQ(rest, "dir/sub");
    EXPECT_STREQ(generic_basename("C:\\src\\a.c", nullptr), "a.c");
    EXPECT_STREQ(generic_basename("plain", &rest), "plain");
    EXPECT_STREQ(rest, "");
    file_list *l = parse_file_list("a.c,,dir/b.c", ",");
    EXPECT_EQ(l->count(), 2);
    EXPECT_TRUE(file_is_part_of_list("other/b.c", l, 1));
    EXPECT_FALSE(file_is_part_of_list("other/b.c", l, 0));
    EXPECT_FALSE(file_is_part_of_list("c.c", l, 1));
    delete l;
    F_types kind;
    EXPECT_TRUE(is_fundamental_type_annote("wchar_t", &kind, true));
    EXPECT_EQ(kind, F_wchar_t);
    EXPECT_FALSE(is_fundamental_type_annote("k_wchar_t", &kind, true));
    EXPECT_FALSE(is_fundamental_type_annote("k_source_coordinates", &kind, false));
}

TEST_F(helpers, original_name_of_a_static_carries_its_file) {
    program_builder b(nullptr, "src/mod.c");
    var_sym *g = b.global_var("g", type_signed);
    var_sym *s = b.static_var("s__1", type_signed);
    s->set_true_name("s");
    const char *origin = "x";
    EXPECT_STREQ(drs_original_sym_name(g, &origin), "g");
    EXPECT_EQ(origin, nullptr);
    EXPECT_STREQ(drs_original_sym_name(s, &origin), "s");
    EXPECT_STREQ(origin, "mod.c");
}
