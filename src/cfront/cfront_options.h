// The command line of qvt-cfront: the translation units with the clang
// arguments of each, the output file, the task functions, and the thread count.
#pragma once

#include <string>
#include <vector>

// One translation unit: its source file and the arguments clang gets for it
// (without the program name, with the file itself), to be read in `directory`.
struct tu_job {
    std::string file;
    std::string directory;
    std::vector<std::string> args;
};

// Entries of a compilation database to take: those whose source file, and
// those whose output, matches one of the globs (each list empty: all).
struct db_selection {
    std::vector<std::string> files;
    std::vector<std::string> outputs;
};

struct cfront_options {
    std::vector<tu_job> units;
    std::string output;
    std::vector<std::string> tasks;
    int threads = 0;  // 0: all cores
    // Functions declared only in system headers are left to the analyser's own C library.
    bool analyser_libc = false;
    // Globs that pick one program's entries out of a compilation database.
    db_selection db_select;
    bool show_help = false;
    bool show_version = false;
};

// Parses argv into *opts (reading DIR/compile_commands.json for -p DIR).
// False with *err set on a bad command line.
bool parse_cfront_options(int argc, const char *const *argv, cfront_options *opts, std::string *err);

// The text of --help.
const char *cfront_usage();

// Splits "a,b,,c" at commas, dropping empty names.
std::vector<std::string> split_commas(const std::string &text);
