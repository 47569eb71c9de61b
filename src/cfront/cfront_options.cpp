// Command line of qvt-cfront. Our own options (-o, -p, -db-files, -db-outputs, -tasks, -j,
// -analyser-libc, --help, --version) are taken out; everything else is a clang option that every
// unit gets, in the order given. Options that take their value as the next
// word are listed so that the value is not mistaken for a source file.
#include "cfront/cfront_options.h"

#include "cfront/compile_db.h"

#include <cstdlib>
#include <cstring>
#include <sys/stat.h>

namespace {

// clang options whose value may be the next word.
const char *const options_with_value[] = {
    "-I", "-isystem", "-iquote", "-idirafter", "-D", "-U", "-include", "-imacros",
    "-target", "-x", "-MF", "-MT", "-MQ", "-isysroot", "--sysroot", "-iprefix",
};

bool takes_separate_value(const char *arg) {
    for (const char *o : options_with_value)
        if (strcmp(arg, o) == 0) return true;
    return false;
}

}  // namespace

std::vector<std::string> split_commas(const std::string &text) {
    std::vector<std::string> out;
    size_t start = 0;
    while (start <= text.size()) {
        size_t comma = text.find(',', start);
        if (comma == std::string::npos) comma = text.size();
        if (comma > start) out.push_back(text.substr(start, comma - start));
        start = comma + 1;
    }
    return out;
}

const char *cfront_usage() {
    return "usage: qvt-cfront [options] FILE.c... -o PROGRAM.ir\n"
           "       qvt-cfront [options] -p BUILD_DIR -o PROGRAM.ir\n"
           "\n"
           "Parses C sources with clang and writes one linked IR program.\n"
           "\n"
           "  -o FILE        the IR file to write (required)\n"
           "  -p DIR         take every C file of DIR/compile_commands.json, each with its own flags\n"
           "  -db-files G,.. with -p: only the entries whose source file matches a glob G\n"
           "  -db-outputs G  with -p: only the entries whose output matches a glob G (one\n"
           "                 target's objects: 'CMakeFiles/TARGET.dir/*')\n"
           "  -tasks a,b     mark the functions a and b as tasks\n"
           "  -j N           parse with N threads (default: all cores)\n"
           "  -analyser-libc leave the functions declared only in system headers to the\n"
           "                 analyser's own C library: they get no stub\n"
           "  --help         print this text\n"
           "  --version      print the version\n"
           "\n"
           "Other options go to clang for every file: -I, -isystem, -D, -U, -include, -std=,\n"
           "--target=, -m32, -W..., -f...\n";
}

// Writing the IR over a source would destroy it: the output may be no
// source file, under whatever name (a missing output is a new file).
static bool output_is_no_source(const cfront_options &opts, std::string *err) {
    struct stat out_st;
    bool out_exists = stat(opts.output.c_str(), &out_st) == 0;
    for (const tu_job &u : opts.units) {
        std::string path = u.file;
        if (!u.directory.empty() && !path.empty() && path[0] != '/') path = u.directory + "/" + path;
        struct stat in_st;
        if (path == opts.output || (out_exists && stat(path.c_str(), &in_st) == 0 && in_st.st_dev == out_st.st_dev &&
                                    in_st.st_ino == out_st.st_ino)) {
            *err = "the output file '" + opts.output + "' is the source file '" + u.file + "'";
            return false;
        }
    }
    return true;
}

bool parse_cfront_options(int argc, const char *const *argv, cfront_options *opts, std::string *err) {
    std::vector<std::string> clang_args;
    std::vector<std::string> files;
    std::string db_dir;
    for (int i = 1; i < argc; i++) {
        const char *a = argv[i];
        auto value = [&](const char *name) -> const char * {
            if (i + 1 >= argc) {
                *err = std::string("option '") + name + "' needs a value";
                return nullptr;
            }
            return argv[++i];
        };
        if (strcmp(a, "--help") == 0 || strcmp(a, "-help") == 0 || strcmp(a, "-h") == 0) {
            opts->show_help = true;
        } else if (strcmp(a, "--version") == 0 || strcmp(a, "-version") == 0) {
            opts->show_version = true;
        } else if (strcmp(a, "-o") == 0) {
            const char *v = value(a);
            if (!v) return false;
            opts->output = v;
        } else if (strncmp(a, "-o", 2) == 0 && a[2]) {
            opts->output = a + 2;
        } else if (strcmp(a, "-p") == 0) {
            const char *v = value(a);
            if (!v) return false;
            db_dir = v;
        } else if (strcmp(a, "-tasks") == 0 || strcmp(a, "--tasks") == 0) {
            const char *v = value(a);
            if (!v) return false;
            for (auto &t : split_commas(v)) opts->tasks.push_back(t);
        } else if (strncmp(a, "-tasks=", 7) == 0) {
            for (auto &t : split_commas(a + 7)) opts->tasks.push_back(t);
        } else if (strcmp(a, "-db-files") == 0 || strcmp(a, "-db-outputs") == 0) {
            const char *v = value(a);
            if (!v) return false;
            auto &globs = strcmp(a, "-db-files") == 0 ? opts->db_select.files : opts->db_select.outputs;
            for (auto &g : split_commas(v)) globs.push_back(g);
        } else if (strcmp(a, "-analyser-libc") == 0) {
            opts->analyser_libc = true;
        } else if (strcmp(a, "-j") == 0 || (strncmp(a, "-j", 2) == 0 && a[2])) {
            const char *v = a[2] ? a + 2 : value(a);
            if (!v) return false;
            char *end = nullptr;
            long n = strtol(v, &end, 10);
            if (*v == 0 || *end != 0 || n < 1 || n > 1024) {
                *err = std::string("bad thread count '") + v + "' for -j";
                return false;
            }
            opts->threads = (int)n;
        } else if (a[0] == '-' && a[1] != 0) {
            clang_args.push_back(a);
            if (takes_separate_value(a)) {
                const char *v = value(a);
                if (!v) return false;
                clang_args.push_back(v);
            }
        } else {
            files.push_back(a);
        }
    }
    if (opts->show_help || opts->show_version) return true;
    if (opts->output.empty()) {
        *err = "no output file: give -o PROGRAM.ir";
        return false;
    }
    if (!db_dir.empty()) {
        if (!files.empty()) {
            *err = "give either source files or -p DIR, not both";
            return false;
        }
        if (!load_compile_db(db_dir, clang_args, opts->db_select, &opts->units, err)) return false;
        if (opts->units.empty()) {
            bool selected = !opts->db_select.files.empty() || !opts->db_select.outputs.empty();
            *err = db_dir + "/compile_commands.json: no C file in the compilation database" +
                   (selected ? " matches -db-files and -db-outputs" : "");
            return false;
        }
        return output_is_no_source(*opts, err);
    }
    if (!opts->db_select.files.empty() || !opts->db_select.outputs.empty()) {
        *err = "-db-files and -db-outputs select entries of a compilation database: give -p DIR";
        return false;
    }
    if (files.empty()) {
        *err = "no input file";
        return false;
    }
    for (auto &f : files) {
        tu_job job;
        job.file = f;
        job.args = clang_args;
        job.args.push_back(f);
        opts->units.push_back(std::move(job));
    }
    return output_is_no_source(*opts, err);
}
