// qvt-cfront: parses C translation units with clang and writes them as one
// linked IR program. Exit status 0 on success; 1 on a bad command line, on a
// C error in any unit (no output file then), or when the output can't be written.
#include "cfront/cfront_options.h"
#include "cfront/symbol_linker.h"
#include "cfront/target_setup.h"
#include "cfront/tu_runner.h"
#include "ir/ir.h"
#include "ir/large_stack.h"

#include <cstdio>
#include <string>

static int cfront_main(int argc, char **argv) {
    cfront_options opts;
    std::string err;
    if (!parse_cfront_options(argc, argv, &opts, &err)) {
        fprintf(stderr, "qvt-cfront: error: %s\n", err.c_str());
        fprintf(stderr, "%s", "Run 'qvt-cfront --help' for the options.\n");
        return 1;
    }
    if (opts.show_help) {
        fputs(cfront_usage(), stdout);
        return 0;
    }
    if (opts.show_version) {
        printf("qvt-cfront %s\n", QVT_VERSION);
        return 0;
    }

    int ir_argc = 1;
    char *ir_argv[] = {argv[0], nullptr};
    init_suif(ir_argc, ir_argv);
    file_set_entry *fse = nullptr;
    bool first = true;
    bool ok = run_units(opts.units, opts.threads, [&](clang::ASTContext &ctx, const std::vector<pragma_words> &pragmas) {
        if (first) {
            // The machine is the one of the first unit; every unit is parsed for it.
            setup_target(ctx);
            fse = fileset->add_file(nullptr, opts.output.c_str());
            link_begin(fse);
            first = false;
        }
        link_unit(ctx, pragmas);
    });
    if (!ok) {
        // Nothing is written: the entry is dropped with the process.
        return 1;
    }
    std::vector<std::string> missing;
    link_finish(opts.tasks, &missing, opts.analyser_libc);
    for (const std::string &t : missing)
        fprintf(stderr, "qvt-cfront: warning: task '%s' is not a function of the program\n", t.c_str());
    exit_suif();
    return 0;
}

// Deep C makes deep recursion in the lowering and in the writer.
int main(int argc, char **argv) { return run_with_large_stack(cfront_main, argc, argv); }
