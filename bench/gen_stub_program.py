#!/usr/bin/env python3
"""Writes a C file declaring N undefined functions of mixed signatures, for the stub benchmark.

gen_stub_program.py OUT.c N

The signatures cycle through pointers to scalars, to structs, to functions, variadic functions
and pointers to const data, over a few shared types, so that the stub text and not the type
header dominates. The output is the same for the same arguments.
"""
import sys

KINDS = [
    "int f{0}_scalar(int *out, int n);",
    "void f{0}_record(struct record *r, union cell *c);",
    "int f{0}_callback(void (*cb)(int, double), int x);",
    "int f{0}_variadic(const char *fmt, ...);",
    "double f{0}_const(const double *v, unsigned n);",
    "enum mode f{0}_enum(long *pos, enum mode *m);",
]


def main():
    path, count = sys.argv[1], int(sys.argv[2])
    with open(path, "w") as out:
        out.write("enum mode { OFF, ON, AUTO };\n")
        out.write("union cell { int i; float f; char b[4]; };\n")
        out.write("struct record { int id; double w[4]; struct record *next; union cell c; };\n")
        for i in range(count):
            out.write(KINDS[i % len(KINDS)].format(i) + "\n")


main()
