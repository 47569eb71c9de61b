// The entry point as the tool chain calls it: twice in one process, with the
// resets between runs. Modes and bad arguments are checked end to end.
#include "driver/global_lists.h"
#include "driver/options.h"
#include "driver/stubsuif_main.h"
#include "ir/builder.h"

#include <gtest/gtest.h>

#include <list>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

bool exists(const std::string &path) {
  struct stat st;
  return stat(path.c_str(), &st) == 0;
}

class EntryPoint : public testing::Test {
protected:
  void SetUp() override {
    std::string templ = testing::TempDir() + "qvt_entry_XXXXXX";
    ASSERT_NE(mkdtemp(templ.data()), nullptr);
    dir = templ;
    exit_status = 0;
  }
  void TearDown() override {
    exit_status = 0;
    flag_mgen_pure_stubs = false;
    flag_instrum = false;
    std::string cmd = "rm -rf '" + dir + "'";
    ASSERT_EQ(system(cmd.c_str()), 0);
  }

  // Writes an IR file: a defined function calling an undefined one, and, if
  // asked, an undefined function without prototype.
  std::string make_program(const char *name, bool with_error) {
    std::string path = dir + "/" + name;
    int argc = 1;
    char tool[] = "test";
    char *argv[] = {tool, nullptr};
    init_suif(argc, argv);
    program_builder b(path.c_str());
    proc_sym *ext = b.extern_proc("ext", b.func(type_signed, {type_signed}));
    proc_sym *user = b.defined_proc("user", b.func(type_void, {}));
    b.add_call(user, ext, {operand()});
    if (with_error)
      b.extern_proc("old", b.func_noproto(type_signed));
    exit_suif();
    return path;
  }

  std::string make_dir(const char *name) {
    std::string path = dir + "/" + name;
    mkdir(path.c_str(), 0755);
    return path;
  }

  // Calls the entry point on a fresh copy of the words, as a caller would.
  // Option values stay in use after the run (stubs_dir points at its word),
  // so the words live as long as the test.
  int run(std::vector<std::string> words) {
    words.insert(words.begin(), "qvt-stubber");
    kept_words.push_back(words);
    std::vector<char *> argv;
    for (std::string &w : kept_words.back())
      argv.push_back(w.data());
    argv.push_back(nullptr);
    return stubsuif_main(static_cast<int>(words.size()), argv.data());
  }

  std::string dir;
  std::list<std::vector<std::string>> kept_words;
};

TEST_F(EntryPoint, CallableTwiceWithResets) {
  std::string bad = make_program("bad.ir", true);
  std::string good = make_program("good.ir", false);
  std::string out1 = make_dir("out1"), out2 = make_dir("out2");

  testing::internal::CaptureStderr();
  int first = run({"-stubber", "-stubs-dir", out1, "-main-generator", "-mgen_pure_stubs", "-no-stubs",
                   "-drs-struct-depth-max", "5", bad, dir + "/bad.out.ir"});
  std::string err1 = testing::internal::GetCapturedStderr();
  EXPECT_EQ(first, 1);
  EXPECT_NE(err1.find("function 'old' has unknown prototype"), std::string::npos);
  EXPECT_NE(err1.find("\n---------------------------\nError message explanation:\n"), std::string::npos);
  EXPECT_TRUE(flag_main_generator);
  EXPECT_TRUE(flag_no_stubs);
  EXPECT_EQ(drs_struct_depth_max, 5);
  EXPECT_TRUE(exists(out1 + "/qvt_stub_types.h"));

  testing::internal::CaptureStderr();
  int second = run({"-stubber", "-stubs-dir", out2, good, dir + "/good.out.ir"});
  std::string err2 = testing::internal::GetCapturedStderr();
  // The status of a run is never set back, not even by the next run.
  EXPECT_EQ(second, 1);
  EXPECT_EQ(err2.find("function 'old'"), std::string::npos);
  EXPECT_FALSE(flag_main_generator);
  EXPECT_FALSE(flag_no_stubs);
  EXPECT_EQ(drs_struct_depth_max, 2);
  EXPECT_TRUE(flag_mgen_pure_stubs); // kept from the first run
  EXPECT_STREQ(stubs_dir, out2.c_str());
  EXPECT_EQ(vars_before_loop, nullptr);
  EXPECT_TRUE(exists(out2 + "/qvt_stub_types.h"));
  EXPECT_TRUE(exists(dir + "/good.out.ir"));
}

} // namespace
