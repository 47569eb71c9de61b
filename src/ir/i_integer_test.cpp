// i_integer: texts in several bases, values beyond 64 bits, signs, shifts, and bad texts.
#include <gtest/gtest.h>

#include "ir/i_integer.h"

TEST(i_integer, results_as_decimal_or_hexadecimal_text) {
    i_integer big("340282366920938463463374607431768211455", 10);  // 2^128 - 1
    i_integer a(7), b(-3), wide;
    wide.set_c_unsigned_long(0xffffffffffffffffUL);
    const std::pair<std::string, std::string> cases[] = {
        {i_integer("-255", 10).to_string(16), "-ff"},
        {i_integer("-255", 10).to_string(8), "-377"},
        {i_integer("777", 8).to_string(10), "511"},
        {i_integer("7fFF", 16).to_string(10), "32767"},
        {i_integer("+17", 10).to_string(10), "17"},
        {i_integer(0).to_string(16), "0"},
        {big.to_string(16), "ffffffffffffffffffffffffffffffff"},
        {(big + i_integer(1)).to_string(10), "340282366920938463463374607431768211456"},
        {(i_integer(1) << 100).to_string(16), "10000000000000000000000000"},
        {(-(i_integer(1) << 63)).to_string(10), "-9223372036854775808"},
        // Shifts of negatives round down; a negative count shifts the other way.
        {(i_integer(-1) >> 1).to_string(10), "-1"},
        {(i_integer(-5) >> 1).to_string(10), "-3"},
        {(i_integer(-3) << 2).to_string(10), "-12"},
        {(i_integer(12) << -2).to_string(10), "3"},
        {(a - b).to_string(10), "10"},
        {(-b).to_string(10), "3"},
        {(a / b).to_string(10), "-2"},
        {(a % b).to_string(10), "1"},
        {(a / i_integer(0)).to_string(10), "0"},
        {wide.to_string(10), "18446744073709551615"},
        {std::to_string(wide.c_long()), "-1"},  // two's complement view
        {std::to_string(i_integer("4294967296", 10).c_int()), "0"},
    };
    for (auto &[got, want] : cases) EXPECT_EQ(got, want);
    EXPECT_TRUE(b.is_less_than(a));
    EXPECT_FALSE(a.is_less_than(a));
    EXPECT_FALSE(big.is_c_long());
    EXPECT_TRUE(i_integer("-9223372036854775808", 10).is_c_long());
    EXPECT_FALSE(i_integer("9223372036854775808", 10).is_c_long());
    EXPECT_TRUE(i_integer("18446744073709551615", 10).is_c_unsigned_long());
    char buf[64];
    i_integer("-1000", 10).write(buf, 16);
    EXPECT_STREQ(buf, "-3e8");
    EXPECT_EQ(i_integer("-1000", 10).written_length(16), 4);
    // Copies share nothing; a moved-from value can be assigned again.
    i_integer c = a;
    c += i_integer(1);
    i_integer m = std::move(c);
    c = i_integer(9);
    EXPECT_EQ(a.c_int() + m.c_int() + c.c_int(), 7 + 8 + 9);
}

TEST(i_integer, bad_texts_are_flagged_and_give_zero) {
    for (const char *bad : {"12x", "", "-"}) {
        EXPECT_FALSE(i_integer(bad, 10).is_valid()) << bad;
        EXPECT_TRUE(i_integer(bad, 10).is_zero()) << bad;
    }
    EXPECT_FALSE(i_integer("8", 8).is_valid());
}
