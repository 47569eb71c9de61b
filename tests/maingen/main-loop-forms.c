// The loop of the generated main: endless (bound below 1), none (bound 1) or bounded by a
// counter; with -instrument a do-while where one function runs per pass, picked by
// __qvt_alternative__.
// RUN: rm -rf %t && mkdir -p %t/endless %t/minus %t/none %t/bounded %t/iendless %t/inone %t/ibounded
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -main-generator -stubs-dir %t/endless %t/p.ir %t/o.ir 2> %t/endless.txt
// RUN: %FileCheck-exact %s --check-prefixes=ALL,ENDLESS,PLAIN --input-file %t/endless/__quorvanta_main.c
// RUN: %FileCheck-exact %s --check-prefix=CONSOLE --input-file %t/endless.txt
// RUN: qvt-stubber -stubber -main-generator -main-generator-bounded-loop -4 -stubs-dir %t/minus %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=ALL,ENDLESS,PLAIN --input-file %t/minus/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -main-generator-bounded-loop 1 -stubs-dir %t/none %t/p.ir %t/o.ir 2> %t/none.txt
// RUN: %FileCheck-exact %s --check-prefixes=ALL,NONE,PLAIN --input-file %t/none/__quorvanta_main.c
// RUN: %FileCheck-exact %s --check-prefix=CONSOLE-NONE --input-file %t/none.txt
// RUN: qvt-stubber -stubber -main-generator -main-generator-bounded-loop 3 -stubs-dir %t/bounded %t/p.ir %t/o.ir 2> %t/bounded.txt
// RUN: %FileCheck-exact %s --check-prefixes=ALL,BOUNDED,PLAIN --input-file %t/bounded/__quorvanta_main.c
// RUN: %FileCheck-exact %s --check-prefix=CONSOLE-BOUNDED --input-file %t/bounded.txt
// RUN: qvt-stubber -stubber -instrument -main-generator -stubs-dir %t/iendless %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=ALL,IENDLESS,INSTR --input-file %t/iendless/__quorvanta_main.c
// RUN: qvt-stubber -stubber -instrument -main-generator -main-generator-bounded-loop 1 -stubs-dir %t/inone %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=ALL,INONE,INSTR --input-file %t/inone/__quorvanta_main.c
// RUN: qvt-stubber -stubber -instrument -main-generator -main-generator-bounded-loop 3 -stubs-dir %t/ibounded %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=ALL,IBOUNDED,INSTR --input-file %t/ibounded/__quorvanta_main.c
// RUN: %cc-check %t/endless/__quorvanta_main.c %t/none/__quorvanta_main.c %t/bounded/__quorvanta_main.c
// RUN: %cc-check %t/iendless/__quorvanta_main.c %t/inone/__quorvanta_main.c %t/ibounded/__quorvanta_main.c

int level;
void rise(void) { level++; }
void fall(void) { level--; }

// CONSOLE:Generating call to function: fall
// CONSOLE-NOT:{{.}}

// CONSOLE-NONE:Generating call to function: fall
// CONSOLE-NONE-EMPTY:
// CONSOLE-NONE-NEXT:Main without loop
// CONSOLE-NONE-EMPTY:
// CONSOLE-NONE-NOT:{{.}}

// CONSOLE-BOUNDED:Generating call to function: fall
// CONSOLE-BOUNDED-EMPTY:
// CONSOLE-BOUNDED-NEXT:Main loop bounded to 3 iterations
// CONSOLE-BOUNDED-EMPTY:
// CONSOLE-BOUNDED-NOT:{{.}}

// ALL-LABEL:/* Main */
// ALL-EMPTY:
// ALL-NEXT:void main(void)
// ALL-NEXT:{
// ALL-NEXT:    /* Initialization of global variables */
// ALL-EMPTY:
// ALL-NEXT:    /* init for variable level */
// ALL-NEXT:    _main_gen_init_sym_level();
// ALL-NEXT:{{ {4}$}}
// ENDLESS-NEXT:    while (QVT_TRUE())
// ENDLESS-NEXT:    {
// ENDLESS-NEXT:{{ {8}$}}
// NONE-NEXT:    {
// NONE-NEXT:{{ {8}$}}
// BOUNDED-NEXT:    unsigned int __qvt__loop__variable = 0;
// BOUNDED-NEXT:    while (__qvt__loop__variable < 3)
// BOUNDED-NEXT:    {
// BOUNDED-NEXT:{{ {8}$}}
// BOUNDED-NEXT:        __qvt__loop__variable++;
// IENDLESS-NEXT:    do
// IENDLESS-NEXT:    {
// IENDLESS-NEXT:        unsigned int __qvt_alternative__ = qvt_random_int;
// INONE-NEXT:    {
// INONE-NEXT:        unsigned int __qvt_alternative__ = qvt_random_int;
// IBOUNDED-NEXT:    unsigned int __qvt__loop__variable = 0;
// IBOUNDED-NEXT:    do
// IBOUNDED-NEXT:    {
// IBOUNDED-NEXT:        unsigned int __qvt_alternative__ = qvt_random_int;
// IBOUNDED-NEXT:        __qvt__loop__variable++;
// ALL-NEXT:        /* Call of functions */
// ALL-EMPTY:
// ALL-NEXT:        /* call of function rise */
// PLAIN-NEXT:        if (QVT_TRUE())
// INSTR-NEXT:        if (__qvt_alternative__ % 2 == 0)
// ALL:        /* call of function fall */
// PLAIN-NEXT:        if (QVT_TRUE())
// INSTR-NEXT:        if (__qvt_alternative__ % 2 == 1)
// ALL:            fall();
// ALL-NEXT:        }
// ALL-NEXT:{{ {8}$}}
// PLAIN-NEXT:    }
// INONE-NEXT:    }
// IENDLESS-NEXT:    } while (QVT_TRUE());
// IBOUNDED-NEXT:    } while (__qvt__loop__variable < 3);
// ALL-NEXT:}
// ALL-NOT:{{.}}
