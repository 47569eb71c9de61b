// Bad input files: one line "FILE:LINE: what is wrong", no output file,
// never a crash.
#include <gtest/gtest.h>

#include <regex>

#include "ir/test_util.h"

namespace {
class bad_input : public ir_test {
protected:
    // A valid file to corrupt.
    std::string good() {
        std::string a = path("good.ir");
        {
            program_builder b(a.c_str());
            struct_type *s = b.struct_of("s", {{"x", type_signed}});
            b.global_var("g", s);
            proc_sym *f = b.defined_proc("f", b.func(type_signed, {type_signed}));
            b.add_use(f, b.param(f, 0));
        }
        exit_suif();
        start();
        return slurp(a);
    }
    // Reads text as an IR file; returns the error ("" if it was accepted).
    std::string read_error(const std::string &text) {
        std::string in = path("in.ir"), out = path("out.ir");
        spit(in, text);
        std::string error;
        file_set_entry *fse = fileset->try_add_file(in.c_str(), out.c_str(), &error);
        if (fse) {
            fse->reset_proc_iter();
            while (proc_sym *p = fse->next_proc()) {
                if (!ir_read_body(p, &error)) break;
                p->flush_proc();
            }
        }
        exit_suif();
        start();
        if (fse && error.empty()) return "";
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
        EXPECT_EQ(error.rfind(in + ":", 0), 0u) << error;
        return error.substr(in.size() + 1);
    }
    static std::string replace(std::string text, const std::string &from, const std::string &to) {
        size_t at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        if (at != std::string::npos) text.replace(at, from.size(), to);
        return text;
    }
};
}  // namespace

TEST_F(bad_input, the_good_file_is_accepted) { EXPECT_EQ(read_error(good()), ""); }

TEST_F(bad_input, missing_file) {
    std::string error;
    EXPECT_EQ(fileset->try_add_file(path("none.ir").c_str(), nullptr, &error), nullptr);
    EXPECT_NE(error.find(":0: cannot open: No such file"), std::string::npos) << error;
}

TEST_F(bad_input, wrong_version_and_not_an_ir_file) {
    std::string t = good();
    EXPECT_EQ(read_error(replace(t, "qvt-ir 1", "qvt-ir 2")), "1: unsupported version \"qvt-ir 2\", expected \"qvt-ir 1\"");
    EXPECT_EQ(read_error("hello\n"), "1: not an IR file: the first line must be \"qvt-ir 1\"");
    EXPECT_EQ(read_error(""), "1: empty file");
}

TEST_F(bad_input, truncated_anywhere) {
    std::string t = good();
    // Every cut at a line end or inside a line is reported, never accepted.
    for (size_t cut = 1; cut + 1 < t.size(); cut += 7) {
        std::string e = read_error(t.substr(0, cut));
        EXPECT_NE(e, "") << "cut at " << cut;
    }
    std::string no_end = t.substr(0, t.size() - std::string("end-of-ir\n").size());
    EXPECT_NE(read_error(no_end).find("unexpected end of file"), std::string::npos);
}

// One corruption of the good file each, and the message it must give.
TEST_F(bad_input, corrupted_records) {
    const struct {
        const char *from, *to, *message;
    } cases[] = {
        {"sym ", "bogus 1\nsym ", "[0-9]+: unknown record \"bogus\""},
        {"type 13 ptr 1", "type 13 ptr 999", "[0-9]+: dangling reference to type 999"},
        {"( cpy 6 v:", "( cpy 6 v:12345 1 v:", "[0-9]+: .*dangling reference to symbol 12345.*"},
        {"type 6 int 32 s", "type 6 int 3x2 s", "[0-9]+: bad number \"3x2\""},
        {"type 6 int 32 s", "type 6 int 99999999999 s", "[0-9]+: .*bad number.*"},
        {"type 7 int 32 u", "type 6 int 32 u", "[0-9]+: duplicate type id 6"},
        {"( cpy 6", "( frob 6", "[0-9]+: .*unknown opcode \"frob\".*"},
    };
    std::string t = good();
    for (auto &c : cases) {
        std::string e = read_error(replace(t, c.from, c.to));
        EXPECT_TRUE(std::regex_match(e, std::regex(c.message))) << c.to << ": " << e;
    }
}

TEST_F(bad_input, comments_are_ignored_but_only_after_the_version) {
    std::string t = good();
    EXPECT_EQ(read_error(replace(t, "entry", "# RUN: anything\n#\nentry")), "");
    EXPECT_NE(read_error("# comment\n" + t), "");
}

TEST_F(bad_input, wrong_kinds_and_shapes) {
    std::string t = good();
    EXPECT_NE(read_error(replace(t, "field \"x\" 6", "field \"x\" 6 7")), "");
    EXPECT_NE(read_error(replace(t, "\"s\" 1", "\"s\" 2")), "");
    EXPECT_NE(read_error(replace(t, "\"g\"", "\"g")), "");
    EXPECT_NE(read_error(replace(t, "endbody", "end")), "");
    EXPECT_NE(read_error(replace(t, "end-of-ir", "end-of-ir\nsym")), "");
    EXPECT_NE(read_error(replace(t, "\"g\"", "\"g\\q\"")), "");
}

TEST_F(bad_input, add_file_ends_the_process_and_writes_nothing) {
    std::string in = path("bad.ir"), out = path("never.ir");
    spit(in, "qvt-ir 1\ntarget 1\n");
    EXPECT_EXIT(fileset->add_file(in.c_str(), out.c_str()), ::testing::ExitedWithCode(1),
                "bad.ir:2: record \"target\" needs 32 fields, has 1");
    EXPECT_FALSE(file_exists(out));
    EXPECT_FALSE(file_exists(out + ".tmp"));
}
