// The common prologue on a target with 32-bit pointers: still the large addressable zone.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront --target=i386-pc-linux-gnu %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -no-user-stubs-file -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s < %t/out/qvt_stubs_0.c
// RUN: %cc-check %t/out/qvt_stubs_0.c

int get_value(int *where);

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
