// `int a[];` at file scope is a tentative definition of an array: it is
// defined, keeps its unknown bound, and is marked (flag 16 in the IR file).
// An extern array of unknown bound takes the bound of its definition.
// RUN: qvt-cfront %s %S/Inputs/sized_array.c -o %t.ir 2> %t.err
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt
// RUN: %FileCheck-exact --check-prefix=RAW %s < %t.ir

int pending[];
extern int sized[];

int get(int i) { return pending[i] + sized[i]; }

// CHECK:  var int[] pending [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK:  var int[8] sized [defined, align {{[0-9]+}}] [userdef]  /* #{{[0-9]+}} */
// RAW:sym {{[0-9]+}} var {{[0-9]+}} "pending" 17 -
// RAW:sym {{[0-9]+}} var {{[0-9]+}} "sized" 1 -
