// qvt-irdump FILE: prints an IR file for people (see ir/dump.h).
#include <cstdio>
#include <string>

#include "ir/dump.h"
#include "ir/ir.h"
#include "ir/large_stack.h"

static int dump_main(int argc, char **argv) {
    init_suif(argc, argv);
    std::string error;
    if (!ir_dump_file(argv[1], stdout, &error)) {
        fflush(stdout);
        fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    exit_suif();
    return 0;
}

int main(int argc, char **argv) {
    if (argc != 2 || argv[1][0] == '-') {
        fprintf(stderr, "usage: qvt-irdump FILE\n");
        return 1;
    }
    return run_with_large_stack(dump_main, argc, argv);
}
