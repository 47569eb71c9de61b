// _extern_init initialises the undefined variables in a stub file of its own, behind the last
// one. The standard-stubbed ones join only when the program has a main, after all others; a
// variable that the generated main writes is initialised there alone. stdin's FILE points to
// structs that the C library only declares: their random targets are bytes, and the file compiles.
// RUN: rm -rf %t && mkdir -p %t/lib %t/prog %t/gen %t/none
// RUN: qvt-cfront %s -o %t/lib.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/lib %t/lib.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=CHECK --input-file %t/lib/qvt_stubs_1.c
// RUN: qvt-cfront -DWITH_MAIN %s -o %t/prog.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/prog %t/prog.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=CHECK,PROG --input-file %t/prog/qvt_stubs_1.c
// RUN: %cc-check %t/lib/qvt_stubs_1.c %t/prog/qvt_stubs_1.c
// RUN: qvt-stubber -stubber -main-generator -stubs-dir %t/gen %t/lib.ir %t/o.ir 2> %t/err.txt
// RUN: not ls %t/gen/qvt_stubs_1.c
// RUN: qvt-stubber -stubber -no-undef-variables-stubs -stubs-dir %t/none %t/lib.ir %t/o.ir 2> %t/err.txt
// RUN: not ls %t/none/qvt_stubs_1.c

#include <stdio.h>

extern int ext_a;
extern double ext_b;
int local;
int sample(void) { return ext_a + (int)ext_b + local + (stdin != 0); }
#ifdef WITH_MAIN
int main(void) { return sample(); }
#endif

// CHECK:#include "qvt_stub_types.h"
// CHECK-LABEL:/* Extern init */
// CHECK-EMPTY:
// CHECK-NEXT:void _extern_init(void)
// CHECK-NEXT:{
// CHECK-NEXT:    /* Initialization of extern variables */
// CHECK-EMPTY:
// CHECK-NEXT:    /* init for variable ext_a */
// CHECK-NEXT:    _main_gen_init_sym_ext_a();
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* init for variable ext_b */
// CHECK-NEXT:    _main_gen_init_sym_ext_b();
// CHECK-NEXT:{{ {4}$}}
// PROG-NEXT:    /* init for variable stdin */
// PROG-NEXT:    _main_gen_init_sym_stdin();
// PROG-NEXT:{{ {4}$}}
// CHECK-NEXT:}
// CHECK-NOT:{{.}}
