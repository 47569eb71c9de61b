// The common prologue with -instrument: the range functions, the modulo test, the small zone
// whatever the pointer size, at most 32 array elements, and the hidden variadic names.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -instrument -no-stubs -no-user-stubs-file -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s < %t/out/qvt_stubs_0.c
// RUN: %cc-check %t/out/qvt_stubs_0.c

int get_value(int *where);

// CHECK:#include "qvt_stub_types.h"
// CHECK-EMPTY:
// CHECK-NEXT:extern void assert(int);
// CHECK-EMPTY:
// CHECK-NEXT:extern long long __qvt_i64_rand_range(long long min, long long max); extern unsigned long long __qvt_u64_rand_range(unsigned long long min, unsigned long long max); extern int __qvt_i32_rand_range(int min, int max); extern unsigned int __qvt_u32_rand_range(unsigned int min, unsigned int max); extern int __qvt_i8_rand_range(int min, int max); extern unsigned int __qvt_u8_rand_range(unsigned int min, unsigned int max); extern int __qvt_i16_rand_range(int min, int max); extern unsigned int __qvt_u16_rand_range(unsigned int min, unsigned int max); extern double __qvt_f32_rand_range(double min, double max); extern double __qvt_f64_rand_range(double min, double max); extern long double __qvt_f128_rand_range(long double min, long double max);
// CHECK-NEXT:#define QVT_TRUE() (qvt_random_int % 2 != 0)
// CHECK-EMPTY:
// CHECK-NEXT:/* Definition of max array size */
// CHECK-EMPTY:
// CHECK-NEXT:/* Number of bits of 1 byte and addressable unit size */
// CHECK-EMPTY:
// CHECK-NEXT:#define QVT_SIZE_CHAR_IN_BITS 8
// CHECK-EMPTY:
// CHECK-NEXT:/* Memory zone addressable according to the target and the pointer configuration */
// CHECK-EMPTY:
// CHECK-NEXT:#define ARRAY_SIZE (65535)
// CHECK-NEXT:#define ARRAY_NBELEM_0(TY) (((ARRAY_SIZE / 2) - 1) / sizeof (TY))
// CHECK-NEXT:#define ARRAY_NBELEM(TY) (ARRAY_NBELEM_0(TY) > 32 ? 32 : (ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY)))
// CHECK-EMPTY:
// CHECK-NEXT:extern void **__quorvanta_vararg; extern int __quorvanta_nb_varargs;
// CHECK-NEXT:/* Declaration of random variables */
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__CHAR qvt_random_char;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile unsigned int qvt_random_int;
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
