// Each stub kind on pointers to an integer, a float and an enum. The enum has no negative
// member, so its base is unsigned and only the upper bound needs a clamp.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

#pragma QUORVANTA_PURE "p_pure"
#pragma QUORVANTA_CLEAN "p_clean"
#pragma QUORVANTA_WORST "p_worst"

enum e { E0, E1 = 3 };
void p_default(int *a, double *b, enum e *c);
void p_pure(int *a, double *b, enum e *c);
void p_clean(int *a, double *b, enum e *c);
void p_worst(int *a, double *b, enum e *c);

// The random variables that the stubs asked for, in order of first use.
// CHECK:static volatile int qvt_random_int;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__SINT32 qvt_random_g_[[INT:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__FLOAT64 qvt_random_g_[[DBL:[0-9]+]];
// CHECK-NEXT:static volatile enum e qvt_random_g_[[ENUM:[0-9]+]];
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:/* Definition of needed stubs for function pointers */

// CHECK-LABEL: * p_default
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID p_default(__QVT__g__{{[0-9]+}} P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        if ((P_0 != 0) && QVT_TRUE())
// CHECK-NEXT:        {
// CHECK-NEXT:            while (qvt_random_int)
// CHECK-NEXT:            {
// CHECK-NEXT:                P_0[qvt_random_int] = qvt_random_g_[[INT]];
// CHECK-NEXT:            }
// CHECK-NEXT:            P_0[0] = qvt_random_g_[[INT]];
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 1 */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        if ((P_1 != 0) && QVT_TRUE())
// CHECK-NEXT:        {
// CHECK-NEXT:            while (qvt_random_int)
// CHECK-NEXT:            {
// CHECK-NEXT:                P_1[qvt_random_int] = qvt_random_g_[[DBL]];
// CHECK-NEXT:            }
// CHECK-NEXT:            P_1[0] = qvt_random_g_[[DBL]];
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 2 */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        if ((P_2 != 0) && QVT_TRUE())
// CHECK-NEXT:        {
// CHECK-NEXT:            while (qvt_random_int)
// CHECK-NEXT:            {
// CHECK-NEXT:                P_2[qvt_random_int] = qvt_random_g_[[ENUM]];
// CHECK-NEXT:            }
// CHECK-NEXT:            P_2[0] = qvt_random_g_[[ENUM]];
// CHECK-NEXT:{{ {12}$}}
// CHECK-NEXT:            /* range value according to enum bounds */
// CHECK-NEXT:            unchecked_assert(P_2[0] <= 3);
// CHECK-NEXT:{{ {12}$}}
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}
// CHECK-EMPTY:

// CHECK-LABEL: * p_pure
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-NEXT:#pragma QUORVANTA_POLYMORPHIC "p_pure"
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID p_pure(__QVT__g__{{[0-9]+}} P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
// CHECK-NEXT:{
// CHECK-NEXT:    /* function is pure */
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}
// CHECK-EMPTY:

// CHECK-LABEL: * p_clean
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID p_clean(__QVT__g__{{[0-9]+}} P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 - CLEAN mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (P_0 != 0)
// CHECK-NEXT:    {
// CHECK-NEXT:        P_0[qvt_random_int] = qvt_random_g_[[INT]];
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 1 - CLEAN mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (P_1 != 0)
// CHECK-NEXT:    {
// CHECK-NEXT:        P_1[qvt_random_int] = qvt_random_g_[[DBL]];
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 2 - CLEAN mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (P_2 != 0)
// CHECK-NEXT:    {
// CHECK-NEXT:        P_2[qvt_random_int] = qvt_random_g_[[ENUM]];
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}
// CHECK-EMPTY:

// CHECK-LABEL: * p_worst
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID p_worst(__QVT__g__{{[0-9]+}} P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
// CHECK-NEXT:{
// CHECK-NEXT:    __QVT__CHAR *ptr_1;
// CHECK-NEXT:    __QVT__CHAR *ptr_2;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* parameter 0 - WORST mode */
// CHECK-EMPTY:
// CHECK-NEXT:    ptr_1 = (__QVT__CHAR *)&P_0;
// CHECK-NEXT:    ptr_2 = (__QVT__CHAR *)&P_0;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* parameter 1 - WORST mode */
// CHECK-EMPTY:
// CHECK-NEXT:    ptr_1 = (__QVT__CHAR *)&P_1;
// CHECK-NEXT:    ptr_2 = (__QVT__CHAR *)&P_1;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* parameter 2 - WORST mode */
// CHECK-EMPTY:
// CHECK-NEXT:    ptr_1 = (__QVT__CHAR *)&P_2;
// CHECK-NEXT:    ptr_2 = (__QVT__CHAR *)&P_2;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* pointer effect - WORST mode */
// CHECK-EMPTY:
// CHECK-NEXT:    while (qvt_random_int)
// CHECK-NEXT:    {
// CHECK-NEXT:        ptr_1 += qvt_random_int;
// CHECK-NEXT:        if (qvt_random_int)
// CHECK-NEXT:        {
// CHECK-NEXT:            ptr_1 = *(__QVT__CHAR **)ptr_1;
// CHECK-NEXT:        }
// CHECK-EMPTY:
// CHECK-NEXT:        ptr_2 += qvt_random_int;
// CHECK-NEXT:        if (qvt_random_int)
// CHECK-NEXT:        {
// CHECK-NEXT:            ptr_2 = *(__QVT__CHAR **)ptr_2;
// CHECK-NEXT:        }
// CHECK-EMPTY:
// CHECK-NEXT:        if (qvt_random_int)
// CHECK-NEXT:        {
// CHECK-NEXT:            *((__QVT__CHAR **)ptr_1) = ptr_2;
// CHECK-NEXT:        }
// CHECK-EMPTY:
// CHECK-NEXT:        *ptr_1 = (__QVT__CHAR)qvt_random_char;
// CHECK-NEXT:        *ptr_2 = (__QVT__CHAR)qvt_random_char;
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}
// CHECK-EMPTY:
