// i_integer: texts in several bases, values beyond 64 bits, signs, shifts.
#include <gtest/gtest.h>

#include "ir/i_integer.h"

TEST(i_integer, text_round_trip_in_bases_8_10_16) {
    i_integer v("-255", 10);
    EXPECT_EQ(v.to_string(10), "-255");
    EXPECT_EQ(v.to_string(16), "-ff");
    EXPECT_EQ(v.to_string(8), "-377");
    EXPECT_EQ(i_integer("777", 8).c_int(), 511);
    EXPECT_EQ(i_integer("7fFF", 16).c_int(), 32767);
    EXPECT_EQ(i_integer(0).to_string(16), "0");
}

TEST(i_integer, values_beyond_64_bits) {
    i_integer big("340282366920938463463374607431768211455", 10);  // 2^128 - 1
    EXPECT_TRUE(big.is_valid());
    EXPECT_EQ(big.to_string(16), "ffffffffffffffffffffffffffffffff");
    EXPECT_EQ((big + i_integer(1)).to_string(10), "340282366920938463463374607431768211456");
    EXPECT_EQ((i_integer(1) << 100).to_string(16), "10000000000000000000000000");
    EXPECT_FALSE(big.is_c_long());
    EXPECT_TRUE(i_integer("-9223372036854775808", 10).is_c_long());
    EXPECT_FALSE(i_integer("9223372036854775808", 10).is_c_long());
    EXPECT_TRUE(i_integer("18446744073709551615", 10).is_c_unsigned_long());
}

TEST(i_integer, shifts_of_negatives_round_down) {
    EXPECT_EQ((i_integer(-1) >> 1).c_long(), -1);
    EXPECT_EQ((i_integer(-5) >> 1).c_long(), -3);
    EXPECT_EQ((i_integer(5) >> 1).c_long(), 2);
    EXPECT_EQ((i_integer(-3) << 2).c_long(), -12);
    EXPECT_EQ((i_integer(12) << -2).c_long(), 3);
    EXPECT_EQ((-(i_integer(1) << 63)).to_string(10), "-9223372036854775808");
}

TEST(i_integer, arithmetic_and_comparison) {
    i_integer a(7), b(-3);
    EXPECT_EQ(a.add(b).c_int(), 4);
    EXPECT_EQ(a.subtract(b).c_int(), 10);
    EXPECT_EQ(b.negate().c_int(), 3);
    EXPECT_EQ((-b).c_int(), 3);
    EXPECT_TRUE(b.is_less_than(a));
    EXPECT_FALSE(a.is_less_than(a));
    EXPECT_TRUE(a.is_equal_to(i_integer("7", 10)));
    EXPECT_EQ((a / b).c_int(), -2);
    EXPECT_EQ((a % b).c_int(), 1);
    EXPECT_EQ((a / i_integer(0)).c_int(), 0);
}

TEST(i_integer, setters_and_truncation) {
    i_integer v;
    v.set_c_unsigned_long(0xffffffffffffffffUL);
    EXPECT_EQ(v.to_string(10), "18446744073709551615");
    EXPECT_EQ(v.c_long(), -1);  // two's complement view
    v.set_integer(-42);
    EXPECT_EQ(v.to_string(10), "-42");
    EXPECT_EQ(i_integer("4294967296", 10).c_int(), 0);
}

TEST(i_integer, write_fills_a_buffer) {
    char buf[64];
    i_integer("-1000", 10).write(buf, 16);
    EXPECT_STREQ(buf, "-3e8");
    EXPECT_EQ(i_integer("-1000", 10).written_length(16), 4);
}

TEST(i_integer, bad_texts_are_flagged_and_give_zero) {
    EXPECT_FALSE(i_integer("12x", 10).is_valid());
    EXPECT_FALSE(i_integer("8", 8).is_valid());
    EXPECT_FALSE(i_integer("", 10).is_valid());
    EXPECT_FALSE(i_integer("-", 10).is_valid());
    EXPECT_TRUE(i_integer("12x", 10).is_zero());
    EXPECT_EQ(i_integer("+17", 10).c_int(), 17);
}

TEST(i_integer, copies_and_moves_are_independent) {
    i_integer a(5);
    i_integer b = a;
    b += i_integer(1);
    EXPECT_EQ(a.c_int(), 5);
    i_integer c = std::move(b);
    EXPECT_EQ(c.c_int(), 6);
    b = i_integer(9);  // a moved-from value can be assigned again
    EXPECT_EQ(b.c_int(), 9);
}
