// The generated main writes and calls what the list options chose, each list in its section:
// "all" words and edge functions, "custom=" names, other words (nothing; the undefined global
// is then left to _extern_init), the defaults, and the files whose functions it leaves.
// RUN: rm -rf %t && mkdir -p %t/def %t/all %t/cus %t/other %t/ign
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -main-generator -functions-called-before-loop caller -stubs-dir %t/def %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=DEF --input-file %t/def/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop all -variables-written-in-loop public -functions-called-in-loop all -functions-called-before-loop caller -functions-called-after-loop helper -stubs-dir %t/all %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=ALL --input-file %t/all/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop custom=hidden,nothere -variables-written-in-loop custom=shown -functions-called-in-loop custom=used,nowhere -stubs-dir %t/cus %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=CUS --input-file %t/cus/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop publicx -variables-written-in-loop allx -functions-called-in-loop unusedx -stubs-dir %t/other %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=OTHER --input-file %t/other/__quorvanta_main.c
// RUN: %FileCheck-exact %s --check-prefix=OTHER-EXTERN --input-file %t/other/qvt_stubs_1.c
// RUN: qvt-stubber -stubber -main-generator -main-generator-files-to-ignore other.c,%s -stubs-dir %t/ign %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=IGN --input-file %t/ign/__quorvanta_main.c
// RUN: %cc-check %t/all/__quorvanta_main.c %t/cus/__quorvanta_main.c %t/other/__quorvanta_main.c %t/other/qvt_stubs_1.c

int shown;
static int hidden;
const int fixed = 1;
extern int outside;
void used(void) { hidden = outside + shown; }
void caller(void) { used(); shown = hidden; }
static void helper(void) { }

// Without -functions-called-in-loop an initialisation function is called in the loop too.
// DEF-LABEL:void main(void)
// DEF:    /* init for variable shown */
// DEF:    /* init for variable outside */
// DEF-NOT:{{.*}}init for variable{{.*}}
// DEF:    /* call of initialization function caller */
// DEF:        /* call of function caller */
// DEF:        /* call of function helper */
// DEF-NOT:{{.*}}function{{.*}}

// ALL-LABEL:void main(void)
// ALL:    /* init for variable shown */
// ALL:    /* init for variable outside */
// ALL:    /* init for variable hidden */
// ALL:    /* Call of initialization functions */
// ALL:    /* call of initialization function caller */
// ALL:    while (QVT_TRUE())
// ALL:        /* Re-initialization of global variables */
// ALL:        /* init for variable shown */
// ALL:        /* init for variable outside */
// ALL:        /* Call of functions */
// ALL:        /* call of function used */
// ALL-NOT:{{.*}}function{{.*}}
// ALL:    /* Call of finalization functions */
// ALL-EMPTY:
// ALL-NEXT:    /* call of finalization function helper */

// CUS-LABEL:void main(void)
// CUS:    /* init for variable hidden */
// CUS-NOT:{{.*}}init for variable{{.*}}
// CUS:        /* init for variable shown */
// CUS:        /* call of function used */
// CUS-NOT:{{.*}}function{{.*}}

// OTHER-LABEL:void main(void)
// OTHER-NEXT:{
// OTHER-NEXT:    /* Initialization of global variables */
// OTHER-EMPTY:
// OTHER-NEXT:    while (QVT_TRUE())
// OTHER-NEXT:    {
// OTHER-NEXT:{{ {8}$}}
// OTHER-NEXT:        /* Call of functions */
// OTHER-EMPTY:
// OTHER-NEXT:    }
// OTHER-NEXT:}
// OTHER-EXTERN:    /* init for variable outside */

// IGN-LABEL:        /* Call of functions */
// IGN-EMPTY:
// IGN-NEXT:    }
