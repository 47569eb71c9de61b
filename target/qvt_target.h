/*
 * qvt_target.h: what the generated stubs, main and initialisers leave to the analysis target.
 *
 * Force it into every translation unit of the closed program (gcc/clang: -include qvt_target.h;
 * Frama-C: -cpp-extra-args="-include .../qvt_target.h"). The generated text is fixed: it names
 * these functions and variables exactly as below, and this header adapts to it.
 *
 * Plain compilers get declarations only, so that every generated file compiles.
 * Under Frama-C (__FRAMAC__) the names map onto Frama-C's own means, so that Eva reads the
 * stubs as intended:
 *   - unchecked_assert(c): the analyser assumes c. The false branch calls a non-returning
 *     function, so Eva keeps only the states where c holds (no alarm is raised for it);
 *   - __qvt_*_rand_range(min, max): any value between the bounds (Frama_C_*_interval);
 *   - __qv_builtin_available_size(p): the bytes reachable from p up to the end of its block;
 *   - __quorvanta_nb_varargs, __quorvanta_vararg: the hidden count and array of the variable
 *     arguments that variadic stubs walk;
 *   - __qv_builtin_all: an index that stands for every index at once (range procedures).
 */
#ifndef QVT_TARGET_H
#define QVT_TARGET_H

#ifdef __FRAMAC__

#include "__fc_builtin.h"

/* A macro and not a function: Eva must cut the states where the condition fails. */
#define unchecked_assert(cond) ((cond) ? (void)0 : Frama_C_abort())

/*@ assigns \result \from p;
    ensures available: \result == \block_length(p) - \offset(p);
 */
extern unsigned long __qv_builtin_available_size(const volatile void *p);

/* The generated prologue declares these again with extern: the static definitions below keep
   internal linkage, so each translation unit has its own copy and the link stays clean. */
static long long __qvt_i64_rand_range(long long min, long long max)
{
  return Frama_C_long_long_interval(min, max);
}
static unsigned long long __qvt_u64_rand_range(unsigned long long min, unsigned long long max)
{
  return Frama_C_unsigned_long_long_interval(min, max);
}
static int __qvt_i32_rand_range(int min, int max)
{
  return Frama_C_interval(min, max);
}
static unsigned int __qvt_u32_rand_range(unsigned int min, unsigned int max)
{
  return Frama_C_unsigned_int_interval(min, max);
}
static int __qvt_i8_rand_range(int min, int max)
{
  return Frama_C_interval(min, max);
}
static unsigned int __qvt_u8_rand_range(unsigned int min, unsigned int max)
{
  return Frama_C_unsigned_int_interval(min, max);
}
static int __qvt_i16_rand_range(int min, int max)
{
  return Frama_C_interval(min, max);
}
static unsigned int __qvt_u16_rand_range(unsigned int min, unsigned int max)
{
  return Frama_C_unsigned_int_interval(min, max);
}
static double __qvt_f32_rand_range(double min, double max)
{
  return Frama_C_double_interval(min, max);
}
static double __qvt_f64_rand_range(double min, double max)
{
  return Frama_C_double_interval(min, max);
}
/* Frama-C has no interval of long double: the double interval covers every finite bound that
   a range file can state for it on the usual targets. */
static long double __qvt_f128_rand_range(long double min, long double max)
{
  return Frama_C_double_interval((double)min, (double)max);
}

#else /* plain compilers */

extern void unchecked_assert(int cond);
extern unsigned long __qv_builtin_available_size(const volatile void *p);

extern long long __qvt_i64_rand_range(long long min, long long max);
extern unsigned long long __qvt_u64_rand_range(unsigned long long min, unsigned long long max);
extern int __qvt_i32_rand_range(int min, int max);
extern unsigned int __qvt_u32_rand_range(unsigned int min, unsigned int max);
extern int __qvt_i8_rand_range(int min, int max);
extern unsigned int __qvt_u8_rand_range(unsigned int min, unsigned int max);
extern int __qvt_i16_rand_range(int min, int max);
extern unsigned int __qvt_u16_rand_range(unsigned int min, unsigned int max);
extern double __qvt_f32_rand_range(double min, double max);
extern double __qvt_f64_rand_range(double min, double max);
extern long double __qvt_f128_rand_range(long double min, long double max);

#endif

/* The hidden parameters of a variadic function, as the stubs' variable-argument block reads them. */
extern int __quorvanta_nb_varargs;
extern void **__quorvanta_vararg;

/* Read by the analyser as every index at once. */
extern unsigned int __qv_builtin_all;

#endif /* QVT_TARGET_H */
