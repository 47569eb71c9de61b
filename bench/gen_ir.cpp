// qvt-bench-gen: writes a synthetic IR program for the benchmarks.
//
//   qvt-bench-gen -symbols N [-undefined U | -undefined-share F] [-seed S] -out FILE
//
// The global table gets N symbols: U undefined functions (default: a
// fifth of N) with mixed signatures (pointers to scalars, const pointers,
// structs, function pointers, variadic, no prototype), about a third of
// the rest as globals (scalars, structs, unions, arrays, pointers), and
// the others as defined procedures whose bodies call earlier procedures,
// read globals and take addresses. Bodies are written as they are made,
// so the generator's memory stays at the tables.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "ir/builder.h"
#include "ir/ir.h"

static void usage() {
    fprintf(stderr, "usage: qvt-bench-gen -symbols N [-undefined U | -undefined-share F] [-seed S] -out FILE\n");
    exit(1);
}

int main(int argc, char **argv) {
    long symbols = -1, undefined = -1;
    double share = 0.2;
    unsigned seed = 1;
    const char *out = nullptr;
    for (int i = 1; i < argc; ++i) {
        auto value = [&]() -> const char * {
            if (i + 1 >= argc) usage();
            return argv[++i];
        };
        if (!strcmp(argv[i], "-symbols")) symbols = atol(value());
        else if (!strcmp(argv[i], "-undefined")) undefined = atol(value());
        else if (!strcmp(argv[i], "-undefined-share")) share = atof(value());
        else if (!strcmp(argv[i], "-seed")) seed = (unsigned)atol(value());
        else if (!strcmp(argv[i], "-out")) out = value();
        else usage();
    }
    if (symbols <= 0 || !out || share < 0 || share > 1) usage();
    if (undefined < 0) undefined = (long)(symbols * share);
    if (undefined > symbols) undefined = symbols;
    long rest = symbols - undefined;
    long globals = rest / 3;
    long defined = rest - globals;

    int one = 1;
    char *args[] = {argv[0], nullptr};
    init_suif(one, args);
    std::mt19937 rng(seed);
    auto pick = [&](size_t n) { return (size_t)(rng() % n); };

    program_builder b(out, "synthetic.c");
    // Aggregates: about one per 50 symbols, linked by pointers.
    std::vector<type_node *> aggregates;
    long n_aggr = symbols / 50 < 4 ? 4 : symbols / 50;
    func_type *cb = b.func(type_signed, {type_signed, b.ptr(type_void)});
    for (long k = 0; k < n_aggr; ++k) {
        std::string tag = "s" + std::to_string(k);
        type_node *link = aggregates.empty() ? b.ptr(type_void) : b.ptr(aggregates[pick(aggregates.size())]);
        if (k % 4 == 3)
            aggregates.push_back(b.union_of(tag.c_str(), {{"i", type_signed}, {"d", type_double}, {"p", link}}));
        else
            aggregates.push_back(b.struct_of(tag.c_str(), {{"len", type_unsigned},
                                                          {"flags", type_unsigned, 3},
                                                          {"name", b.ptr(b.const_of(type_char))},
                                                          {"next", link},
                                                          {"vals", b.array(type_signed_short, 4)},
                                                          {"fn", b.ptr(cb)}}));
    }
    // Signatures.
    std::vector<func_type *> sigs;
    type_node *scalars[] = {type_signed, type_unsigned_long, type_double, type_char, type_float};
    for (int k = 0; k < 48; ++k) {
        type_node *ret = k % 5 == 0 ? type_void : scalars[k % 5];
        type_node *aggr = aggregates[pick(aggregates.size())];
        switch (k % 8) {
        case 0: sigs.push_back(b.func(ret, {b.ptr(scalars[k % 5])})); break;
        case 1: sigs.push_back(b.func(ret, {b.ptr(b.const_of(type_char)), type_unsigned_long})); break;
        case 2: sigs.push_back(b.func(ret, {b.ptr(aggr), type_signed})); break;
        case 3: sigs.push_back(b.func(ret, {b.ptr(cb), b.ptr(type_void)})); break;
        case 4: sigs.push_back(b.func(ret, {b.ptr(b.const_of(type_char))}, true)); break;
        case 5: sigs.push_back(b.func_noproto(ret)); break;
        case 6: sigs.push_back(b.func(b.ptr(aggr), {aggr, b.array(type_signed, 8)})); break;
        default: sigs.push_back(b.func(ret, {})); break;
        }
    }
    std::vector<proc_sym *> procs;
    for (long k = 0; k < undefined; ++k)
        procs.push_back(b.extern_proc(("u" + std::to_string(k)).c_str(), sigs[pick(sigs.size())]));
    std::vector<var_sym *> vars;
    for (long k = 0; k < globals; ++k) {
        type_node *t;
        switch (k % 5) {
        case 0: t = scalars[pick(5)]; break;
        case 1: t = aggregates[pick(aggregates.size())]; break;
        case 2: t = b.array(scalars[pick(5)], 16); break;
        case 3: t = b.ptr(aggregates[pick(aggregates.size())]); break;
        default: t = b.volatile_of(type_signed); break;
        }
        vars.push_back(k % 7 == 6 ? b.static_var(("g" + std::to_string(k)).c_str(), t)
                                  : b.global_var(("g" + std::to_string(k)).c_str(), t, k % 11 != 10));
    }
    for (long k = 0; k < defined; ++k) {
        proc_sym *p = b.defined_proc(("f" + std::to_string(k)).c_str(), sigs[pick(sigs.size())]);
        for (int c = 0; c < 3 && !procs.empty(); ++c) {
            var_sym *arg = vars.empty() ? nullptr : vars[pick(vars.size())];
            b.add_call(p, procs[pick(procs.size())], {operand(arg)});
        }
        if (!vars.empty()) {
            b.add_use(p, vars[pick(vars.size())]);
            b.add_addr_of(p, vars[pick(vars.size())]);
        }
        if (k % 10 == 0) b.add_block(p, type_signed);
        procs.push_back(p);
        p->write_proc(b.fse());
        p->flush_proc();
    }
    exit_suif();
    return 0;
}
