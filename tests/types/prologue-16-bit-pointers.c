// The common prologue on a target with 16-bit pointers: the small addressable zone.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront --target=msp430-none-elf %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -no-user-stubs-file -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s < %t/out/qvt_stubs_0.c
// RUN: %cc-check %t/out/qvt_stubs_0.c

int get_value(int *where);

// Only the zone depends on the pointer size; the other lines are those of every prologue.
// CHECK:/* Memory zone addressable according to the target and the pointer configuration */
// CHECK-EMPTY:
// CHECK-NEXT:#define ARRAY_SIZE (65535)
// CHECK-NEXT:#define ARRAY_NBELEM_0(TY) (((ARRAY_SIZE / 2) - 1) / sizeof (TY))
// CHECK-NEXT:#define ARRAY_NBELEM(TY) (ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY))
