// Command-line parsing, messages and annotations by interned name.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "ir/test_util.h"

namespace {
struct options {
    bool verbose = true;  // must be reset to false by the parser
    int level = -1;
    const char *out = "stale";
    cmd_line_option table[3];
    options() {
        table[0] = {CLO_NOARG, "-verbose", nullptr, &verbose};
        table[1] = {CLO_INT, "-level", "3", &level};
        table[2] = {CLO_STRING, "-out", nullptr, &out};
    }
};

struct args {
    std::vector<std::string> words;
    std::vector<char *> ptrs;
    int argc;
    args(std::initializer_list<const char *> w) : args(std::vector<const char *>(w)) {}
    explicit args(const std::vector<const char *> &w) {
        for (const char *s : w) words.push_back(s);
        for (auto &s : words) ptrs.push_back(s.data());
        ptrs.push_back(nullptr);
        argc = (int)words.size();
    }
};
}  // namespace

TEST(cmd_line, defaults_apply_when_options_are_absent) {
    options o;
    args a{"tool", "in.ir", "out.ir"};
    std::string err;
    ASSERT_TRUE(try_parse_cmd_line(&a.argc, a.ptrs.data(), o.table, 3, &err)) << err;
    EXPECT_FALSE(o.verbose);
    EXPECT_EQ(o.level, 3);
    EXPECT_EQ(o.out, nullptr);
    EXPECT_EQ(a.argc, 3);
}

TEST(cmd_line, each_kind_is_taken_out_of_argv) {
    options o;
    args a{"tool", "-level", "-7", "in.ir", "-verbose", "-out", "dir", "out.ir"};
    std::string err;
    ASSERT_TRUE(try_parse_cmd_line(&a.argc, a.ptrs.data(), o.table, 3, &err)) << err;
    EXPECT_TRUE(o.verbose);
    EXPECT_EQ(o.level, -7);
    EXPECT_STREQ(o.out, "dir");
    ASSERT_EQ(a.argc, 3);
    EXPECT_STREQ(a.ptrs[0], "tool");
    EXPECT_STREQ(a.ptrs[1], "in.ir");
    EXPECT_STREQ(a.ptrs[2], "out.ir");
    EXPECT_EQ(a.ptrs[3], nullptr);
}

TEST(cmd_line, errors) {
    const struct {
        std::vector<const char *> argv;
        const char *message;
    } cases[] = {
        {{"tool", "-nope"}, "unknown option -nope"},
        {{"tool", "-out"}, "-out needs a value"},
        {{"tool", "-level", "3x"}, "integer"},
        {{"tool", "-level", "99999999999"}, ""},
    };
    for (auto &c : cases) {
        options o;
        args a(c.argv);
        std::string err;
        EXPECT_FALSE(try_parse_cmd_line(&a.argc, a.ptrs.data(), o.table, 3, &err)) << c.argv.back();
        EXPECT_NE(err.find(c.message), std::string::npos) << err;
    }
}

TEST(cmd_line, a_bad_option_ends_the_process_with_status_1) {
    options o;
    args a{"tool", "-bogus"};
    EXPECT_EXIT(c_parse_cmd_line(&a.argc, a.ptrs.data(), o.table, 3, true), ::testing::ExitedWithCode(1),
                "error: unknown option -bogus");
}

TEST(messages, error_line_with_code_ends_the_process) {
    EXPECT_EXIT(error_line(3, nullptr, "qvt-stubber: file '%s' access fails", "x"), ::testing::ExitedWithCode(3),
                "error: qvt-stubber: file 'x' access fails");
}

TEST(messages, located_objects_get_a_prefix) {
    int argc = 1;
    char name[] = "t";
    char *argv[] = {name, nullptr};
    init_suif(argc, argv);
    program_builder b(nullptr, "m.c");
    b.set_line(12);
    var_sym *v = b.extern_proc("f", b.func(type_signed, {})) ? b.global_var("v", type_signed, false) : nullptr;
    testing::internal::CaptureStderr();
    warning_line(v, "odd %d", 5);
    error_line(0, nullptr, "plain\n");
    std::string out = testing::internal::GetCapturedStderr();
    EXPECT_EQ(out, "m.c:13: warning: odd 5\nerror: plain\n");
    exit_suif();
}

using annotations = ir_test;

TEST_F(annotations, search_is_by_interned_pointer) {
    program_builder b;
    var_sym *v = b.global_var("v", type_signed);
    EXPECT_EQ(v->annotes_if_any(), nullptr);  // the coordinates went to the var_def
    char local[] = "k_never_read";
    v->append_annote(k_never_read);
    EXPECT_NE(v->peek_annote(k_never_read), nullptr);
    // Same text at another address: not the interned name, no match.
    EXPECT_EQ(v->peek_annote(local), nullptr);
    EXPECT_EQ(v->peek_annote(intern(local)), v->peek_annote(k_never_read));
}

TEST_F(annotations, lists_are_made_on_first_use_and_get_removes) {
    program_builder b;
    type_node *t = b.ptr(type_signed);
    EXPECT_EQ(t->annotes_if_any(), nullptr);
    EXPECT_EQ(t->peek_annote(k_drs), nullptr);
    EXPECT_EQ(t->annotes_if_any(), nullptr);
    b.annotate(t, k_drs, {immed("init"), immed("p"), immed(im_ext_int, "10")});
    b.annotate(t, k_drs, {immed("second")});
    annote *a = t->get_annote(k_drs);
    ASSERT_NE(a, nullptr);
    EXPECT_STREQ(a->immeds()->head()->contents.string(), "init");
    EXPECT_STREQ(a->immeds()->tail()->contents.ext_integer(), "10");
    delete a;
    EXPECT_STREQ(t->peek_annote(k_drs)->immeds()->head()->contents.string(), "second");
}

TEST_F(annotations, coordinates_convert_both_ways) {
    coord c;
    c.file = intern("a.c");
    c.line = 7;
    c.column = 3;
    annote *a = coordinate_to_annote(k_source_coordinates, c);
    coord back;
    ASSERT_TRUE(annote_to_coordinate(a, &back));
    EXPECT_EQ(back.file, c.file);
    EXPECT_EQ(back.line, 7);
    EXPECT_EQ(back.column, 3);
    a->immeds()->pop();
    EXPECT_FALSE(annote_to_coordinate(a, &back));
    delete a;
}
