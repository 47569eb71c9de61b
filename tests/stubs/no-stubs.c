// With -no-stubs the one stub file holds the prologue alone, then the entry point.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c
// RUN: test ! -e %t/stubs/qvt_stubs_1.c

int fill(int *p);
int main(void) { int v; return fill(&v); }

// CHECK:#include "qvt_stub_types.h"
// CHECK-EMPTY:
// CHECK-NEXT:extern void assert(int);
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:#define QVT_TRUE() qvt_random_int
// CHECK-EMPTY:
// CHECK-NEXT:/* Definition of max array size */
// CHECK-EMPTY:
// CHECK-NEXT:/* Number of bits of 1 byte and addressable unit size */
// CHECK-EMPTY:
// CHECK-NEXT:#define QVT_SIZE_CHAR_IN_BITS 8
// CHECK-EMPTY:
// CHECK-NEXT:/* Memory zone addressable according to the target and the pointer configuration */
// CHECK-EMPTY:
// CHECK-NEXT:#define ARRAY_SIZE (2147483647 / QVT_SIZE_CHAR_IN_BITS)
// CHECK-NEXT:#define ARRAY_NBELEM_0(TY) (((ARRAY_SIZE / 2) - 1) / sizeof (TY))
// CHECK-NEXT:#define ARRAY_NBELEM(TY) (ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY))
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:/* Declaration of random variables */
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__CHAR qvt_random_char;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile int qvt_random_int;
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:/* Definition of needed stubs for function pointers */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:/* Definition of init procedures */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:/* Definition of variables init procedures */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:/* Definition of functions */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:/*
// CHECK-NEXT: * main entry point
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-NEXT:void __QVT__MAIN__ENTRY__POINT__(void)
// CHECK-NEXT:{
// CHECK-NEXT:    { /* call of function main */
// CHECK-NEXT:        __QVT__SINT32 main(__QVT__VOID);
// CHECK-NEXT:{{ {8}$}}
// CHECK-NEXT:        main();
// CHECK-NEXT:    }
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NOT:{{.}}
