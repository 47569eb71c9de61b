#!/usr/bin/env python3
"""Writes a C file of N/2 globals and N/2 procedures that nothing calls, for the main generator
benchmark.

gen_main_program.py OUT.c N

The globals and the parameters of the procedures cycle through a few shared types: a struct with
pointers, a linked node, a union, an enum, a struct of bit-fields, an array of arrays and a
function pointer, besides plain scalars. Each procedure reads one global, so that every global is
initialised (a global that nothing reads gets a comment only). The output is the same for the same
arguments.
"""
import sys

HEADER = """\
enum mode { OFF, ON, AUTO };
union cell { int i; float f; char b[4]; };
struct node { int key; struct node *next; };
struct record { int id; char *name; double *weights; union cell c; struct node *list; };
struct flags { unsigned ready : 1; unsigned level : 3; int delta : 5; };
typedef int (*handler)(int, double);
"""

GLOBALS = [
    "int g{0};",
    "struct record g{0};",
    "struct node g{0};",
    "union cell g{0};",
    "enum mode g{0};",
    "struct flags g{0};",
    "short g{0}[4][8];",
    "handler g{0};",
    "double *g{0};",
]

PROCS = [
    "int p{0}(struct record *r, int n) {{ (void)g{1}; return n + (r != 0); }}",
    "void p{0}(struct node *list) {{ (void)list; (void)g{1}; }}",
    "double p{0}(union cell c, enum mode m) {{ (void)g{1}; return c.f + m; }}",
    "int p{0}(struct flags f, handler h) {{ (void)g{1}; return f.level + (h != 0); }}",
    "void p{0}(void) {{ (void)g{1}; }}",
    "long p{0}(short a[4][8], const char *s) {{ (void)g{1}; return a[0][0] + *s; }}",
]


def main():
    path, count = sys.argv[1], int(sys.argv[2])
    globals_ = count // 2
    procs = count - globals_
    with open(path, "w") as out:
        out.write(HEADER)
        for i in range(globals_):
            out.write(GLOBALS[i % len(GLOBALS)].format(i) + "\n")
        for i in range(procs):
            out.write(PROCS[i % len(PROCS)].format(i, i % globals_ if globals_ else 0) + "\n")


main()
