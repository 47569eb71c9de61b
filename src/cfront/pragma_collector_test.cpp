// The word splitting of pragma texts, on the forms that lit tests can't
// reach one by one: odd strings, comments, signs and exponents.
#include "cfront/cfront_options.h"
#include "cfront/pragma_collector.h"

#include <gtest/gtest.h>

namespace {

pragma_words words(std::initializer_list<const char *> l) {
    pragma_words w;
    for (const char *s : l) w.push_back(s);
    return w;
}

TEST(PragmaWords, NamesStringsAndSeparators) {
    EXPECT_EQ(split_pragma_text(" QUORVANTA_PURE \"f\""), words({"QUORVANTA_PURE", "f"}));
    EXPECT_EQ(split_pragma_text("pack(push, 2)"), words({"pack", "push", "2"}));
    EXPECT_EQ(split_pragma_text("pack()"), words({"pack"}));
    EXPECT_EQ(split_pragma_text(""), words({}));
}

TEST(PragmaWords, StringsKeepBlanksAndResolveEscapes) {
    EXPECT_EQ(split_pragma_text("msg \"a b\\\"c\\\\\""), words({"msg", "a b\"c\\"}));
    EXPECT_EQ(split_pragma_text("msg \"\""), words({"msg", ""}));
    // An unterminated string ends with the line.
    EXPECT_EQ(split_pragma_text("msg \"open"), words({"msg", "open"}));
    // Unknown escapes stay as written.
    EXPECT_EQ(split_pragma_text("\"a\\x41\""), words({"a\\x41"}));
}

TEST(PragmaWords, CommentsSeparateOrEnd) {
    EXPECT_EQ(split_pragma_text("a/* x y */b // rest \"q\""), words({"a", "b"}));
    EXPECT_EQ(split_pragma_text("a /* never closed"), words({"a"}));
}

TEST(PragmaWords, SignsStayWithNumbersOnly) {
    EXPECT_EQ(split_pragma_text("DRS permanent x -5 +7 1e-3 2.5E+10 0x1p-2"),
              words({"DRS", "permanent", "x", "-5", "+7", "1e-3", "2.5E+10", "0x1p-2"}));
    EXPECT_EQ(split_pragma_text("a - b"), words({"a", "-", "b"}));
    EXPECT_EQ(split_pragma_text("size-1"), words({"size", "-1"}));
    EXPECT_EQ(split_pragma_text("x=*p"), words({"x", "=", "*", "p"}));
}

TEST(CommaLists, EmptyNamesDropped) {
    EXPECT_EQ(split_commas("a,b"), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(split_commas(",a,,b,"), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(split_commas(""), (std::vector<std::string>{}));
}

TEST(Options, ClangOptionValuesAreNotFiles) {
    const char *argv[] = {"qvt-cfront", "-I", "inc", "-D", "X=1", "-include", "pre.h", "a.c", "-o", "p.ir", "b.c"};
    cfront_options o;
    std::string err;
    ASSERT_TRUE(parse_cfront_options(11, argv, &o, &err)) << err;
    ASSERT_EQ(o.units.size(), 2u);
    EXPECT_EQ(o.units[0].file, "a.c");
    EXPECT_EQ(o.units[1].file, "b.c");
    EXPECT_EQ(o.output, "p.ir");
    EXPECT_EQ(o.units[1].args,
              (std::vector<std::string>{"-I", "inc", "-D", "X=1", "-include", "pre.h", "b.c"}));
}

TEST(Options, MissingValueIsAnError) {
    const char *argv[] = {"qvt-cfront", "a.c", "-o"};
    cfront_options o;
    std::string err;
    EXPECT_FALSE(parse_cfront_options(3, argv, &o, &err));
    EXPECT_EQ(err, "option '-o' needs a value");
}

}  // namespace
