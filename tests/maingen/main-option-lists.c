// What the generated main writes and calls, by the words of the list options: "public", "all",
// "unused", "custom=" names, any other word (nothing), and the files whose functions it leaves.
// RUN: rm -rf %t && mkdir -p %t/def %t/pub %t/all %t/cus %t/other %t/both %t/purged %t/named %t/ign
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -main-generator -stubs-dir %t/def %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=DEF --input-file %t/def/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop public -functions-called-in-loop unused -stubs-dir %t/pub %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=DEF --input-file %t/pub/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop all -variables-written-in-loop public -functions-called-in-loop all -functions-called-before-loop caller -functions-called-after-loop helper -stubs-dir %t/all %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=ALL --input-file %t/all/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop custom=hidden,nothere,hidden -variables-written-in-loop custom=shown -functions-called-in-loop custom=used,nowhere,used -stubs-dir %t/cus %t/p.ir %t/o.ir 2> %t/cus.txt
// RUN: %FileCheck-exact %s --check-prefix=CUS --input-file %t/cus/__quorvanta_main.c
// RUN: %FileCheck-exact %s --check-prefix=CUS-WARN --input-file %t/cus.txt
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop publicx -variables-written-in-loop allx -functions-called-in-loop unusedx -stubs-dir %t/other %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=OTHER --input-file %t/other/__quorvanta_main.c
// RUN: %FileCheck-exact %s --check-prefix=OTHER-EXTERN --input-file %t/other/qvt_stubs_1.c
// An initialisation function stays in the loop when the loop's option is absent or "custom=",
// and leaves it with "unused".
// RUN: qvt-stubber -stubber -main-generator -functions-called-before-loop caller -stubs-dir %t/both %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=BOTH --input-file %t/both/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -functions-called-in-loop custom=caller -functions-called-before-loop caller -stubs-dir %t/named %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=BOTH --input-file %t/named/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -functions-called-in-loop unused -functions-called-before-loop caller -stubs-dir %t/purged %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=PURGED --input-file %t/purged/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -main-generator-files-to-ignore other.c,%s -stubs-dir %t/ign %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=IGN --input-file %t/ign/__quorvanta_main.c
// RUN: %cc-check %t/def/__quorvanta_main.c %t/all/__quorvanta_main.c %t/cus/__quorvanta_main.c %t/other/__quorvanta_main.c %t/other/qvt_stubs_1.c %t/both/__quorvanta_main.c

int shown;
static int hidden;
const int fixed = 1;
extern int outside;
void used(void) { hidden = outside + shown; }
void caller(void) { used(); shown = hidden; }
static void helper(void) { }

// DEF-LABEL:void main(void)
// DEF:    /* init for variable shown */
// DEF:    /* init for variable outside */
// DEF-NOT:{{.*}}variable{{.*}}
// DEF:        /* Call of functions */
// DEF:        /* call of function caller */
// DEF:        /* call of function helper */
// DEF-NOT:{{.*}}function{{.*}}

// ALL-LABEL:void main(void)
// ALL-NEXT:{
// ALL-NEXT:    /* Initialization of global variables */
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
// ALL-NEXT:    { /* call it */
// ALL-NEXT:        extern __QVT__VOID helper(__QVT__VOID);
// ALL-EMPTY:
// ALL-NEXT:        helper();
// ALL-NEXT:    }
// ALL-NEXT:{{ {4}$}}
// ALL-NEXT:}

// CUS-LABEL:void main(void)
// CUS:    /* init for variable hidden */
// CUS-NOT:{{.*}}variable{{.*}}
// CUS:        /* Re-initialization of global variables */
// CUS:        /* init for variable shown */
// CUS:        /* Call of functions */
// CUS:        /* call of function used */
// CUS-NOT:{{.*}}function{{.*}}
// CUS-WARN:warning: variable "nothere" does not exist. Fix option -variables-written-before-loop (-main-generator-writes-variables).
// CUS-WARN-NEXT:warning: function "nowhere" does not exist. Fix option -functions-called-in-loop (-main-generator-calls).

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
// OTHER-EXTERN:void _extern_init(void)
// OTHER-EXTERN:    /* init for variable outside */

// BOTH:    /* call of initialization function caller */
// BOTH:        /* call of function caller */
// PURGED:    /* call of initialization function caller */
// PURGED:        /* Call of functions */
// PURGED-NOT:{{.*}}function caller{{.*}}

// IGN-LABEL:        /* Call of functions */
// IGN-EMPTY:
// IGN-NEXT:    }
