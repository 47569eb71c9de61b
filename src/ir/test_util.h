// Helpers shared by the unit tests of the IR library.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "ir/builder.h"
#include "ir/ir.h"

// Starts the library for one test and ends it afterwards.
class ir_test : public ::testing::Test {
protected:
    void SetUp() override { start(); }
    void TearDown() override { exit_suif(); }
    static void start() {
        int argc = 1;
        static char name[] = "ir_tests";
        char *argv[] = {name, nullptr};
        init_suif(argc, argv);
    }
    static std::string path(const std::string &name) {
        return ::testing::TempDir() + "/" + ::testing::UnitTest::GetInstance()->current_test_info()->name() + "_" + name;
    }
};

inline std::string slurp(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

inline void spit(const std::string &path, const std::string &text) {
    std::ofstream out(path, std::ios::binary);
    out << text;
}

inline bool file_exists(const std::string &path) { return std::ifstream(path).good(); }
