// qvt-example-ir FILE: writes the IR of a small example program made with
// the builder: a struct with a bit-field and a function pointer, a union,
// an enum, globals, a static, an undefined function, a variadic one, and
// two defined procedures, one calling the other and the undefined ones.
#include <cstdio>

#include "ir/builder.h"
#include "ir/ir.h"

int main(int argc, char **argv) {
    if (argc != 2) {
        fprintf(stderr, "usage: qvt-example-ir FILE\n");
        return 1;
    }
    init_suif(argc, argv);
    program_builder b(argv[1], "example.c");
    type_node *cchar = b.const_of(type_char);
    func_type *cb = b.func(type_signed, {type_signed});
    struct_type *buf = b.struct_of("buf", {{"len", type_unsigned},
                                           {"flags", type_unsigned, 3},
                                           {"data", b.ptr(type_char)},
                                           {"on_fill", b.ptr(cb)}});
    struct_type *val = b.union_of("value", {{"i", type_signed_long}, {"d", type_double}});
    enum_type *mode = b.enum_of("mode", {{"MODE_OFF", 0}, {"MODE_ON", 1}, {"MODE_AUTO", 4}});
    b.annotate(buf, k_max_align, {immed(1)});

    var_sym *counter = b.global_var("counter", type_signed);
    var_sym *table = b.global_var("table", b.array(val, 8));
    var_sym *env = b.global_var("current_mode", mode, false);
    var_sym *hidden = b.static_var("hidden", b.volatile_of(type_signed));
    (void)env;

    proc_sym *fill = b.extern_proc("fill", b.func(type_signed, {b.ptr(buf), type_signed}));
    b.annotate(fill, k_orig_ret_type_name, {immed("int @@")});
    proc_sym *logf = b.extern_proc("log_text", b.func(type_void, {b.ptr(cchar)}, true));
    proc_sym *helper = b.defined_proc("helper", b.func(type_signed, {type_signed}));
    proc_sym *run = b.defined_proc("run", b.func(type_void, {}));

    b.add_use(helper, counter);
    b.add_if(helper, b.param(helper, 0));
    b.add_call(run, fill, {operand(), operand(counter)});
    b.add_call(run, helper, {operand(counter)});
    b.add_call(run, logf, {});
    b.add_addr_of(run, table);
    b.add_use(run, hidden);
    b.add_block(run, type_signed_short);
    b.annotate(b.fse(), k_pragma, {immed("QUORVANTA_AUTO_STUB"), immed("fill")});

    run->write_proc(b.fse());
    helper->write_proc(b.fse());
    exit_suif();
    return 0;
}
