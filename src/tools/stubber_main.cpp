// qvt-stubber: the stubber library's entry point as a command. The command
// links only the shared library, whose one entry point is declared here; it
// answers -h and --help itself, since the library's option table has no such
// row and a tool chain never asks the library for help.
#include <cstdio>
#include <cstring>

#include "ir/large_stack.h"

extern "C" int stubsuif_main(int argc, char **argv);

static const char usage[] =
    "usage: qvt-stubber MODE [options] PROGRAM.ir SECOND\n"
    "\n"
    "Closes a C program: stubs for its undefined functions, a type header, an entry point,\n"
    "initialisers and data ranges. The first mode of this list that is given is run:\n"
    "\n"
    "  -unknown-symbols   write the header of the symbols used and not defined (SECOND: the header)\n"
    "  -stubber           write the generated files under -stubs-dir DIR (SECOND: the output IR)\n"
    "  -cpp-drs-gen       the data-range pass, then write the program back (SECOND: the output IR)\n"
    "  -drs-gen           the data-range pass alone; with -stubber, added to it\n"
    "\n"
    "Options:\n"
    "  -stubs-dir DIR                 the existing directory of the generated files\n"
    "  -drs-file FILE                 ranges of globals, fields, arguments and returns\n"
    "  -tasks a,b                     functions the entry point calls besides main\n"
    "  -main-generator                write a main that initialises the globals and calls the functions\n"
    "  -stub-all-functions-as-worst   every stub may write anything reachable\n"
    "  -permissive-stubber            stub functions whose function pointers can't be modelled\n"
    "  -no-automatic-stubbing         stub only the allocation functions; list the others\n"
    "  -no-stubs, -no-user-stubs-file, -instrument, -no-drs-init, -init-in-loop, ...\n"
    "  -h, --help                     print this text\n"
    "\n"
    "docs/usage.md describes the modes and the options.\n";

int main(int argc, char **argv)
{
    for (int i = 1; i < argc; i++) {
        if (strcmp(argv[i], "-h") == 0 || strcmp(argv[i], "--help") == 0) {
            fputs(usage, stdout);
            return 0;
        }
    }
    // Bodies may nest as deep as the IR allows; the walkers recurse.
    return run_with_large_stack(stubsuif_main, argc, argv);
}
