// Fuzz target of the stubber behind the IR reader: any bytes as an IR file;
// a file the reader takes goes through a whole run of the stubber, in one
// of its modes, in a folder of its own. No input may crash or hang it, and
// the run must end by returning its status. The IR it writes back must
// read again.
#include <cstdio>
#include <string>
#include <vector>

#include "fuzz_util.h"
#include "ir/ir.h"
#include "ir/large_stack.h"

extern "C" int stubsuif_main(int argc, char **argv);

static std::vector<std::string> args;
static std::string check_path;

static int run_stubber(int, char **) {
    std::vector<char *> argv;
    for (std::string &a : args) argv.push_back(a.data());
    argv.push_back(nullptr);
    return stubsuif_main((int)args.size(), argv.data());
}

static int check(int, char **) {
    fuzz_init_suif();
    std::string error;
    bool ok = ir_check_file(check_path.c_str(), &error);
    exit_suif();
    if (!ok && getenv("QVT_FUZZ_VERBOSE")) fprintf(stderr, "%s\n", error.c_str());
    return ok;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz_clear_dir();
    std::string in = fuzz_write_input("in.ir", data, size);
    std::string dir = fuzz_dir();
    // The input's length picks the mode, so that each mode sees every shape.
    switch (size % 3) {
    case 0: args = {"qvt-stubber", "-stubber", "-main-generator", "-stubs-dir", dir}; break;
    case 1: args = {"qvt-stubber", "-stubber", "-drs-gen", "-no-user-stubs-file", "-stubs-dir", dir}; break;
    default: args = {"qvt-stubber", "-unknown-symbols"}; break;
    }
    args.push_back(in);
    args.push_back(dir + (size % 3 == 2 ? "/symbols.h" : "/out.ir"));
    check_path = in;
    if (!run_with_large_stack(check, 0, nullptr)) return 0;
    run_with_large_stack(run_stubber, 0, nullptr);
    // What the stubber writes back, the reader must take.
    check_path = args.back();
    if (size % 3 != 2 && access(check_path.c_str(), F_OK) == 0) {
        if (!run_with_large_stack(check, 0, nullptr)) {
            fprintf(stderr, "the reader refuses what the stubber wrote\n");
            abort();
        }
    }
    return 0;
}
