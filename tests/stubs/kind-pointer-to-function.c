// The default, clean and worst stubs on a pointer to a function: the call through it.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

#pragma QUORVANTA_CLEAN "f_clean"
#pragma QUORVANTA_WORST "f_worst"

void f_default(void (*cb)(int, double));
void f_clean(void (*cb)(int, double));
void f_worst(void (*cb)(int, double));

// CHECK-LABEL: * f_default
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID f_default(__QVT__g__{{[0-9]+}} P_0)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 */
// CHECK-EMPTY:
// CHECK-NEXT:    if (qvt_random_int && P_0 != 0)
// CHECK-NEXT:    { /* call of function P_0 */
// CHECK-NEXT:        volatile __QVT__SINT32 __ARG__0;
// CHECK-NEXT:        volatile __QVT__FLOAT64 __ARG__1;
// CHECK-NEXT:{{ {8}$}}
// CHECK-NEXT:        P_0(__ARG__0, __ARG__1);
// CHECK-NEXT:    }
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    return;
// CHECK-NEXT:}

// CHECK-LABEL: * f_clean
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID f_clean(__QVT__g__{{[0-9]+}} P_0)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 - CLEAN mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (P_0 != 0)
// CHECK-NEXT:    {
// CHECK-NEXT:        if (qvt_random_int && P_0 != 0)
// CHECK-NEXT:        { /* call of function P_0 */
// CHECK-NEXT:            volatile __QVT__SINT32 __ARG__0;
// CHECK-NEXT:            volatile __QVT__FLOAT64 __ARG__1;
// CHECK-NEXT:{{ {12}$}}
// CHECK-NEXT:            P_0(__ARG__0, __ARG__1);
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}

// CHECK-LABEL: * f_worst
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID f_worst(__QVT__g__{{[0-9]+}} P_0)
// CHECK-NEXT:{
// CHECK-NEXT:    __QVT__CHAR *ptr_1;
// CHECK-NEXT:    __QVT__CHAR *ptr_2;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* parameter 0 - WORST mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (qvt_random_int && P_0 != 0)
// CHECK-NEXT:    { /* call of function P_0 */
// CHECK-NEXT:        volatile __QVT__SINT32 __ARG__0;
// CHECK-NEXT:        volatile __QVT__FLOAT64 __ARG__1;
// CHECK-NEXT:{{ {8}$}}
// CHECK-NEXT:        P_0(__ARG__0, __ARG__1);
// CHECK-NEXT:    }
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* pointer effect - WORST mode */
