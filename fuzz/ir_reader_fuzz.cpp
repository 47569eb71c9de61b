// Fuzz target of the IR reader and of the dump: any bytes as an IR file.
// The reader must refuse a bad file with a message, never crash or hang;
// a file it takes, the dump must print to the end.
#include <cstdio>
#include <string>

#include "fuzz_util.h"
#include "ir/dump.h"
#include "ir/ir.h"
#include "ir/large_stack.h"

static std::string input;

static int read_and_dump(int, char **) {
    fuzz_init_suif();
    std::string error;
    bool ok = ir_check_file(input.c_str(), &error);
    exit_suif();
    if (!ok) return 0;
    fuzz_init_suif();
    static FILE *sink = fopen("/dev/null", "w");
    if (!ir_dump_file(input.c_str(), sink, &error)) {
        fprintf(stderr, "the dump refused what the reader took: %s\n", error.c_str());
        abort();
    }
    exit_suif();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    input = fuzz_write_input("in.ir", data, size);
    // The walkers may go as deep as the format allows.
    return run_with_large_stack(read_and_dump, 0, nullptr);
}
