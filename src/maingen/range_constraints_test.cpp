// Range constraints: which bounds cost a line, how limits are spelled, and the float forms.
#include "maingen/range_constraints.h"

#include "stubs/stub_test_util.h"

using range_constraint_test = generator_test;
using strings = std::vector<std::string>;

// Only a bound that the type doesn't imply costs a line; qualifiers are looked through.
TEST_F(range_constraint_test, integer_bounds)
{
  const struct {
    const char *min, *max;
    type_node *type;
    strings want;
  } cases[] = {
      {"0", "10", type_signed, {"unchecked_assert(x >= 0);\n", "unchecked_assert(x <= 10);\n"}},
      {"-2147483648", "2147483647", type_signed, {}},
      {"5", "2147483647", type_signed, {"unchecked_assert(x >= 5);\n"}},
      {"-2147483648", "3", type_signed, {"unchecked_assert(x <= 3);\n"}},
      {"0", "18446744073709551615", type_unsigned_longlong, {}},
      {"1", "2", b->const_of(type_signed), {"unchecked_assert(x >= 1);\n", "unchecked_assert(x <= 2);\n"}},
      {"0", "1", b->ptr(type_signed), {}}, // not a number type: nothing
  };
  for (auto &c : cases)
    EXPECT_EQ(pieces_of(range_constraint("x", c.min, c.max, c.type)), c.want) << c.min << ".." << c.max;
}

TEST_F(range_constraint_test, instrumenting_draws_within_both_bounds)
{
  flag_instrum = true;
  EXPECT_EQ(pieces_of(range_constraint("x", "0", "10", type_signed)),
            (strings{"x = __qvt_i32_rand_range(0, 10);\n", "\n"}));
  // One bound needed: both are passed, and no blank piece follows.
  EXPECT_EQ(pieces_of(range_constraint("x", "-2147483648", "3", type_signed)),
            (strings{"x = __qvt_i32_rand_range((-2147483647-1), 3);\n"}));
  EXPECT_EQ(pieces_of(range_constraint("u", "1", "18446744073709551615", type_unsigned_longlong)),
            (strings{"u = __qvt_u64_rand_range(1, 18446744073709551615);\n"}));
  // The minimum of a type is always written as one more, less one, even 0 of an unsigned type.
  EXPECT_EQ(pieces_of(range_constraint("h", "0", "7", type_unsigned_short)),
            (strings{"h = __qvt_u16_rand_range((1-1), 7);\n"}));
}

TEST_F(range_constraint_test, enum_clamp_uses_its_smallest_and_largest_member)
{
  enum_type *e = b->enum_of("e", {{"B", 5}, {"A", 1}, {"C", 3}});
  EXPECT_EQ(pieces_of(enum_bounds_text("v", e)),
            (strings{"\n", "/* range value according to enum bounds */\n", "unchecked_assert(v >= 1);\n",
                     "unchecked_assert(v <= 5);\n", "\n"}));
}

TEST_F(range_constraint_test, enum_clamp_is_empty_between_its_frame_when_members_span_the_base)
{
  enum_type *e = b->enum_of("wide", {{"LO", -2147483647LL - 1}, {"HI", 2147483647}});
  EXPECT_EQ(pieces_of(enum_bounds_text("v", e)),
            (strings{"\n", "/* range value according to enum bounds */\n", "\n"}));
}

TEST_F(range_constraint_test, float_bounds_are_reprinted_with_the_suffix_of_the_size)
{
  EXPECT_EQ(pieces_of(range_constraint("f", "1.5", "2", type_float)),
            (strings{"unchecked_assert (1.500000e+00F <= f);\n", "unchecked_assert (f <= 2.000000e+00F);\n"}));
  EXPECT_EQ(pieces_of(range_constraint("d", "-0.25", "1e3", type_double)),
            (strings{"unchecked_assert (-2.500000e-01 <= d);\n", "unchecked_assert (d <= 1.000000e+03);\n"}));
  EXPECT_STREQ(float_bound_text("3", type_longdouble), "3.000000e+00L");
}

TEST_F(range_constraint_test, float_bound_text_keeps_what_is_no_number)
{
  EXPECT_EQ(float_bound_text(nullptr, type_double), nullptr);
  EXPECT_STREQ(float_bound_text("FLT_MAX", type_double), "FLT_MAX");
  EXPECT_STREQ(float_bound_text("1.5 x", type_double), "1.5 x");
  EXPECT_STREQ(float_bound_text("1e999", type_double), "1e999");  // out of range sets errno
  // One suffix letter and the blanks after it are passed over.
  EXPECT_STREQ(float_bound_text("1.5f", type_double), "1.500000e+00");
  EXPECT_STREQ(float_bound_text("2L  ", type_float), "2.000000e+00F");
  EXPECT_STREQ(float_bound_text("2ff", type_float), "2ff");
}

TEST_F(range_constraint_test, instrumenting_floats_draw_and_a_96_bit_long_double_uses_the_128_bit_draw)
{
  flag_instrum = true;
  EXPECT_EQ(pieces_of(range_constraint("f", "1", "2", type_float)),
            (strings{"f = __qvt_f32_rand_range(1.000000e+00F, 2.000000e+00F);\n", "\n"}));
  base_type extended(TYPE_FLOAT, 96);
  EXPECT_EQ(pieces_of(range_constraint("x", "0", "1", &extended)),
            (strings{"x = __qvt_f128_rand_range(0.000000e+00L, 1.000000e+00L);\n", "\n"}));
}
