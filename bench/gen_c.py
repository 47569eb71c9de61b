#!/usr/bin/env python3
"""Writes a synthetic multi-file C program for the front-end benchmark.

gen_c.py [--per-file-headers] OUT_DIR [FILES] [FUNCS_PER_FILE]

Each file has its own structs (with a pointer to the next file's struct, a
union and bit-fields), globals, statics, a function pointer table and
functions whose bodies call functions of their own file, of the next file,
and undefined ones. By default they are declared in one header shared by all
files, which declares every function of the program, so the text parsed grows
with files times functions. With --per-file-headers each file includes its
own header, declaring only what that file uses, so the program grows in
proportion to its number of functions. The output is the same for the same
arguments.
"""
import os
import sys


def header(files, funcs):
    out = ["#ifndef BENCH_H", "#define BENCH_H", ""]
    for f in range(files):
        out.append("struct node_%d;" % f)
    out.append("")
    for f in range(files):
        out.append("int ext_%d(struct node_%d *n, const char *tag, ...);" % (f, f))
        out.append("extern int shared_%d;" % f)
        for k in range(funcs):
            out.append("int f_%d_%d(struct node_%d *n, int x);" % (f, k, f))
    out += ["", "#endif", ""]
    return "\n".join(out)


def file_header(f, files, funcs):
    """The declarations file f uses: its own and the next file's."""
    nxt = (f + 1) % files
    guard = "FILE_%03d_H" % f
    out = ["#ifndef " + guard, "#define " + guard, ""]
    for g in sorted({f, nxt}):
        out.append("struct node_%d;" % g)
    out.append("")
    out.append("int ext_%d(struct node_%d *n, const char *tag, ...);" % (f, f))
    for g in sorted({f, nxt}):
        out.append("extern int shared_%d;" % g)
    for k in range(funcs):
        out.append("int f_%d_%d(struct node_%d *n, int x);" % (f, k, f))
    out += ["", "#endif", ""]
    return "\n".join(out)


def source(f, files, funcs, include):
    nxt = (f + 1) % files
    out = ['#include "%s"' % include, ""]
    out.append("union val_%d { int i; float x; unsigned char b[8]; };" % f)
    out.append("struct node_%d {" % f)
    out.append("    int id;")
    out.append("    unsigned int flags : 3, kind : 5;")
    out.append("    union val_%d v;" % f)
    out.append("    struct node_%d *next;" % nxt)
    out.append("    int (*op)(struct node_%d *n, int x);" % f)
    out.append("    double w[4];")
    out.append("};")
    out.append("")
    out.append("int shared_%d;" % f)
    out.append("static int counter;")
    out.append("static int table_%d[16];" % f)
    out.append("")
    for k in range(funcs):
        out.append("int f_%d_%d(struct node_%d *n, int x)" % (f, k, f))
        out.append("{")
        out.append("    int i, acc = x;")
        out.append("    for (i = 0; i < 16; i++) {")
        out.append("        acc += table_%d[i] * (i + %d);" % (f, k))
        out.append("        if (acc > %d && n->flags) acc -= n->v.i;" % (k * 7 + 3))
        out.append("    }")
        if k + 1 < funcs:
            out.append("    acc += f_%d_%d(n, acc & 7);" % (f, k + 1))
        out.append("    if (n->op) acc += n->op(n, x);")
        out.append("    counter++;")
        out.append("    shared_%d += acc;" % nxt)
        out.append("    return acc + ext_%d(n, \"f_%d_%d\", acc, x);" % (f, f, k))
        out.append("}")
        out.append("")
    return "\n".join(out)


def main():
    args = sys.argv[1:]
    per_file = "--per-file-headers" in args
    args = [a for a in args if a != "--per-file-headers"]
    if not 1 <= len(args) <= 3 or any(a.startswith("-") for a in args):
        sys.stderr.write(
            "usage: gen_c.py [--per-file-headers] OUT_DIR [FILES] [FUNCS_PER_FILE]\n")
        return 2
    out_dir = args[0]
    files = int(args[1]) if len(args) > 1 else 64
    funcs = int(args[2]) if len(args) > 2 else 50
    os.makedirs(out_dir, exist_ok=True)
    if not per_file:
        with open(os.path.join(out_dir, "bench.h"), "w") as fh:
            fh.write(header(files, funcs))
    for f in range(files):
        include = "bench.h"
        if per_file:
            include = "file_%03d.h" % f
            with open(os.path.join(out_dir, include), "w") as fh:
                fh.write(file_header(f, files, funcs))
        with open(os.path.join(out_dir, "file_%03d.c" % f), "w") as fh:
            fh.write(source(f, files, funcs, include))
    return 0


if __name__ == "__main__":
    sys.exit(main())
