// qvt-ir-copy IN OUT: reads an IR file and writes it back, body by body,
// as the stubber does: the IR round trip that the benchmark measures.
#include <cstdio>

#include "ir/ir.h"

int main(int argc, char **argv) {
    if (argc != 3) {
        fprintf(stderr, "usage: qvt-ir-copy IN OUT\n");
        return 1;
    }
    init_suif(argc, argv);
    file_set_entry *fse = fileset->add_file(argv[1], argv[2]);
    fse->reset_proc_iter();
    while (proc_sym *p = fse->next_proc()) {
        p->read_proc(true, false);
        p->write_proc(fse);
        p->flush_proc();
    }
    exit_suif();
    return 0;
}
