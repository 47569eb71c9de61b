// The common prologue of a generated C file: without -instrument on a 64-bit target (PLAIN), where
// only the addressable zone depends on the pointer size (P32, P16); with -instrument (INSTR): the
// range functions, the modulo test, the small zone whatever the pointer size, at most 32 array
// elements, and the hidden variadic names. With -no-stubs the one stub file holds the prologue
// alone, then the entry point.
// RUN: rm -rf %t && mkdir -p %t/plain %t/ins %t/p32 %t/p16
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -no-user-stubs-file -stubs-dir %t/plain %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact --check-prefix=PLAIN %s < %t/plain/qvt_stubs_0.c
// RUN: test ! -e %t/plain/qvt_stubs_1.c
// RUN: qvt-stubber -stubber -instrument -no-stubs -no-user-stubs-file -stubs-dir %t/ins %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact --check-prefix=INSTR %s < %t/ins/qvt_stubs_0.c
// RUN: qvt-cfront --target=i386-pc-linux-gnu %s -o %t/p32.ir
// RUN: qvt-stubber -stubber -no-stubs -no-user-stubs-file -stubs-dir %t/p32 %t/p32.ir %t/p.out.ir
// RUN: %FileCheck-exact --check-prefix=P32 %s < %t/p32/qvt_stubs_0.c
// RUN: qvt-cfront --target=msp430-none-elf %s -o %t/p16.ir
// RUN: qvt-stubber -stubber -no-stubs -no-user-stubs-file -stubs-dir %t/p16 %t/p16.ir %t/p.out.ir
// RUN: %FileCheck-exact --check-prefix=P16 %s < %t/p16/qvt_stubs_0.c
// RUN: %cc-check %t/plain/qvt_stubs_0.c
// RUN: %cc-check %t/ins/qvt_stubs_0.c
// RUN: %cc-check %t/p32/qvt_stubs_0.c
// RUN: %cc-check %t/p16/qvt_stubs_0.c

int get_value(int *where);
int main(void) { int v; return get_value(&v); }

// PLAIN:#include "qvt_stub_types.h"
// PLAIN-EMPTY:
// PLAIN-NEXT:extern void assert(int);
// PLAIN-EMPTY:
// PLAIN-EMPTY:
// PLAIN-NEXT:#define QVT_TRUE() qvt_random_int
// PLAIN-EMPTY:
// PLAIN-NEXT:/* Definition of max array size */
// PLAIN-EMPTY:
// PLAIN-NEXT:/* Number of bits of 1 byte and addressable unit size */
// PLAIN-EMPTY:
// PLAIN-NEXT:#define QVT_SIZE_CHAR_IN_BITS 8
// PLAIN-EMPTY:
// PLAIN-NEXT:/* Memory zone addressable according to the target and the pointer configuration */
// PLAIN-EMPTY:
// PLAIN-NEXT:#define ARRAY_SIZE (2147483647 / QVT_SIZE_CHAR_IN_BITS)
// PLAIN-NEXT:#define ARRAY_NBELEM_0(TY) (((ARRAY_SIZE / 2) - 1) / sizeof (TY))
// PLAIN-NEXT:#define ARRAY_NBELEM(TY) (ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY))
// PLAIN-EMPTY:
// PLAIN-EMPTY:
// PLAIN-NEXT:/* Declaration of random variables */
// PLAIN-EMPTY:
// PLAIN-NEXT:static volatile __QVT__CHAR qvt_random_char;
// PLAIN-EMPTY:
// PLAIN-NEXT:static volatile int qvt_random_int;
// PLAIN-EMPTY:
// PLAIN-EMPTY:
// PLAIN-NEXT:/* Definition of needed stubs for function pointers */
// PLAIN-EMPTY:
// PLAIN-EMPTY:
// PLAIN-NEXT:/* Definition of init procedures */
// PLAIN-EMPTY:
// PLAIN-EMPTY:
// PLAIN-NEXT:/* Definition of variables init procedures */
// PLAIN-EMPTY:
// PLAIN-EMPTY:
// PLAIN-NEXT:/* Definition of functions */
// PLAIN-EMPTY:
// PLAIN-EMPTY:
// PLAIN-EMPTY:
// PLAIN-NEXT:/*
// PLAIN-NEXT: * main entry point
// PLAIN-NEXT: */
// PLAIN-EMPTY:
// PLAIN-NEXT:void __QVT__MAIN__ENTRY__POINT__(void)
// PLAIN-NEXT:{
// PLAIN-NEXT:    { /* call of function main */
// PLAIN-NEXT:        __QVT__SINT32 main(__QVT__VOID);
// PLAIN-NEXT:{{ {8}$}}
// PLAIN-NEXT:        main();
// PLAIN-NEXT:    }
// PLAIN-NEXT:{{ {4}$}}
// PLAIN-NEXT:}
// PLAIN-EMPTY:
// PLAIN-NOT:{{.}}

// INSTR:#include "qvt_stub_types.h"
// INSTR-EMPTY:
// INSTR-NEXT:extern void assert(int);
// INSTR-EMPTY:
// INSTR-NEXT:extern long long __qvt_i64_rand_range(long long min, long long max); extern unsigned long long __qvt_u64_rand_range(unsigned long long min, unsigned long long max); extern int __qvt_i32_rand_range(int min, int max); extern unsigned int __qvt_u32_rand_range(unsigned int min, unsigned int max); extern int __qvt_i8_rand_range(int min, int max); extern unsigned int __qvt_u8_rand_range(unsigned int min, unsigned int max); extern int __qvt_i16_rand_range(int min, int max); extern unsigned int __qvt_u16_rand_range(unsigned int min, unsigned int max); extern double __qvt_f32_rand_range(double min, double max); extern double __qvt_f64_rand_range(double min, double max); extern long double __qvt_f128_rand_range(long double min, long double max);
// INSTR-NEXT:#define QVT_TRUE() (qvt_random_int % 2 != 0)
// INSTR-EMPTY:
// INSTR-NEXT:/* Definition of max array size */
// INSTR-EMPTY:
// INSTR-NEXT:/* Number of bits of 1 byte and addressable unit size */
// INSTR-EMPTY:
// INSTR-NEXT:#define QVT_SIZE_CHAR_IN_BITS 8
// INSTR-EMPTY:
// INSTR-NEXT:/* Memory zone addressable according to the target and the pointer configuration */
// INSTR-EMPTY:
// INSTR-NEXT:#define ARRAY_SIZE (65535)
// INSTR-NEXT:#define ARRAY_NBELEM_0(TY) (((ARRAY_SIZE / 2) - 1) / sizeof (TY))
// INSTR-NEXT:#define ARRAY_NBELEM(TY) (ARRAY_NBELEM_0(TY) > 32 ? 32 : (ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY)))
// INSTR-EMPTY:
// INSTR-NEXT:extern void **__quorvanta_vararg; extern int __quorvanta_nb_varargs;
// INSTR-NEXT:/* Declaration of random variables */
// INSTR-EMPTY:
// INSTR-NEXT:static volatile __QVT__CHAR qvt_random_char;
// INSTR-EMPTY:
// INSTR-NEXT:static volatile unsigned int qvt_random_int;
// INSTR-EMPTY:
// INSTR-EMPTY:
// INSTR-NEXT:/* Definition of needed stubs for function pointers */
// INSTR-EMPTY:
// INSTR-EMPTY:
// INSTR-NEXT:/* Definition of init procedures */
// INSTR-EMPTY:
// INSTR-EMPTY:
// INSTR-NEXT:/* Definition of variables init procedures */
// INSTR-EMPTY:
// INSTR-EMPTY:
// INSTR-NEXT:/* Definition of functions */
// INSTR-EMPTY:

// P32:/* Memory zone addressable according to the target and the pointer configuration */
// P32-EMPTY:
// P32-NEXT:#define ARRAY_SIZE (2147483647 / QVT_SIZE_CHAR_IN_BITS)
// P32-NEXT:#define ARRAY_NBELEM_0(TY) (((ARRAY_SIZE / 2) - 1) / sizeof (TY))
// P32-NEXT:#define ARRAY_NBELEM(TY) (ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY))

// P16:/* Memory zone addressable according to the target and the pointer configuration */
// P16-EMPTY:
// P16-NEXT:#define ARRAY_SIZE (65535)
// P16-NEXT:#define ARRAY_NBELEM_0(TY) (((ARRAY_SIZE / 2) - 1) / sizeof (TY))
// P16-NEXT:#define ARRAY_NBELEM(TY) (ARRAY_NBELEM_0(TY) < 1 ? 1 : ARRAY_NBELEM_0(TY))
