// -init-in-loop: the initialisation moves into the loop, right after the counter's increment;
// with initialisation functions it stands both before the loop (with their calls) and in it.
// RUN: rm -rf %t && mkdir -p %t/in %t/fn
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -main-generator -init-in-loop -main-generator-bounded-loop 2 -stubs-dir %t/in %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=IN --input-file %t/in/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -init-in-loop -functions-called-in-loop unused -functions-called-before-loop start -stubs-dir %t/fn %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=FN --input-file %t/fn/__quorvanta_main.c
// RUN: %cc-check %t/in/__quorvanta_main.c %t/fn/__quorvanta_main.c

int speed;
void start(void) { speed = speed / 2; }

// IN-LABEL:void main(void)
// IN-NEXT:{
// IN-NEXT:    unsigned int __qvt__loop__variable = 0;
// IN-NEXT:    while (__qvt__loop__variable < 2)
// IN-NEXT:    {
// IN-NEXT:{{ {8}$}}
// IN-NEXT:        __qvt__loop__variable++;
// IN-NEXT:        /* Initialization of global variables */
// IN-EMPTY:
// IN-NEXT:        /* init for variable speed */
// IN-NEXT:        _main_gen_init_sym_speed();
// IN-NEXT:{{ {8}$}}
// IN-NEXT:        /* Call of functions */
// IN-EMPTY:
// IN-NEXT:        /* call of function start */

// FN-LABEL:void main(void)
// FN-NEXT:{
// FN-NEXT:    /* Initialization of global variables */
// FN-EMPTY:
// FN-NEXT:    /* init for variable speed */
// FN-NEXT:    _main_gen_init_sym_speed();
// FN-NEXT:{{ {4}$}}
// FN-NEXT:    /* Call of initialization functions */
// FN-EMPTY:
// FN-NEXT:    /* call of initialization function start */
// FN:    while (QVT_TRUE())
// FN-NEXT:    {
// FN-NEXT:{{ {8}$}}
// FN-NEXT:        /* Initialization of global variables */
// FN-EMPTY:
// FN-NEXT:        /* init for variable speed */
// FN-NEXT:        _main_gen_init_sym_speed();
// FN-NEXT:{{ {8}$}}
// FN-NEXT:        /* Call of functions */
// FN-EMPTY:
// FN-NEXT:    }
// FN-NEXT:}
