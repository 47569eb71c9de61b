// Fuzz target of the IR reader: any bytes as an IR file, the tables and
// then every body read. A bad file must give an error, never a crash.
#include <cstdint>
#include <cstdio>
#include <string>
#include <unistd.h>

#include "ir/ir.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static std::string path = "/tmp/fuzz_ir_reader_" + std::to_string(getpid()) + ".ir";
    FILE *f = fopen(path.c_str(), "wb");
    if (!f) return 0;
    fwrite(data, 1, size, f);
    fclose(f);
    int argc = 1;
    char name[] = "fuzz";
    char *argv[] = {name, nullptr};
    init_suif(argc, argv);
    std::string error;
    ir_check_file(path.c_str(), &error);
    exit_suif();
    return 0;
}
