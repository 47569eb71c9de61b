// A program that calls the C library through its real headers: every undefined function that
// the headers declare gets a stub, and every generated file compiles with gcc and clang.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -permissive-stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c
// RUN: %FileCheck-exact %s --input-file %t/err.txt

#include <ctype.h>
#include <math.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

static int by_value(const void *a, const void *b) { return *(const int *)a - *(const int *)b; }

// main takes no arguments: with argv, the entry point would declare main with the generated
// name of plain char, which is signed char, and clang refuses such a main (gcc only warns).
int main(void)
{
  int values[4] = {3, 1, 2, 0};
  char line[64];
  FILE *in = fopen("data.txt", "r");
  if (in && fgets(line, sizeof line, in))
    printf("%s %zu %d\n", line, strlen(line), toupper(line[0]));
  qsort(values, 4, sizeof values[0], by_value);
  printf("%f %ld\n", sqrt((double)values[3]), (long)time(NULL));
  return in ? fclose(in) : EXIT_FAILURE;
}

// CHECK:* Function fopen is pure.
// CHECK-NEXT:           Returns an initialized value.
// CHECK-NEXT:           Const parameters (nb params=2): (#1, #2).
// CHECK:* Function printf may write to its arguments and may return random.
// CHECK-NEXT:           Does not model pointer effects.
// CHECK-NEXT:           It may write in the variable arguments.
// CHECK-NEXT:           Returns an initialized value.
// CHECK-NEXT:           Const parameters (nb params=3): #1.
