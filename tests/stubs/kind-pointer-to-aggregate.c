// Each stub kind on pointers to a struct, a union and an array.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

#pragma QUORVANTA_PURE "a_pure"
#pragma QUORVANTA_CLEAN "a_clean"
#pragma QUORVANTA_WORST "a_worst"

struct s { int i; double d; };
union u { char c; int i; };
void a_default(struct s *p, union u *q, int (*r)[4]);
void a_pure(struct s *p, union u *q, int (*r)[4]);
void a_clean(struct s *p, union u *q, int (*r)[4]);
void a_worst(struct s *p, union u *q, int (*r)[4]);

// Only the clean stub needs random variables.
// CHECK:static volatile int qvt_random_int;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__SINT32 qvt_random_g_[[INT:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__FLOAT64 qvt_random_g_[[DBL:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__SINT8 qvt_random_g_[[CHR:[0-9]+]];
// CHECK-EMPTY:

// CHECK-LABEL: * a_default
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID a_default(__QVT__g__{{[0-9]+}} P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        __QVT__CHAR *p_addr = (__QVT__CHAR *)&P_0;
// CHECK-NEXT:        while (qvt_random_int)
// CHECK-NEXT:        {
// CHECK-NEXT:            p_addr += qvt_random_int;
// CHECK-NEXT:            if (qvt_random_int)
// CHECK-NEXT:            {
// CHECK-NEXT:                p_addr = *(__QVT__CHAR **)p_addr;
// CHECK-NEXT:            }
// CHECK-NEXT:            *p_addr = (__QVT__CHAR)qvt_random_char;
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 1 */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        __QVT__CHAR *p_addr = (__QVT__CHAR *)&P_1;
// CHECK-NEXT:        while (qvt_random_int)
// CHECK-NEXT:        {
// CHECK-NEXT:            p_addr += qvt_random_int;
// CHECK-NEXT:            if (qvt_random_int)
// CHECK-NEXT:            {
// CHECK-NEXT:                p_addr = *(__QVT__CHAR **)p_addr;
// CHECK-NEXT:            }
// CHECK-NEXT:            *p_addr = (__QVT__CHAR)qvt_random_char;
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 2 */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        __QVT__CHAR *p_addr = (__QVT__CHAR *)&P_2;
// CHECK-NEXT:        while (qvt_random_int)
// CHECK-NEXT:        {
// CHECK-NEXT:            p_addr += qvt_random_int;
// CHECK-NEXT:            if (qvt_random_int)
// CHECK-NEXT:            {
// CHECK-NEXT:                p_addr = *(__QVT__CHAR **)p_addr;
// CHECK-NEXT:            }
// CHECK-NEXT:            *p_addr = (__QVT__CHAR)qvt_random_char;
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}

// CHECK-LABEL: * a_pure
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-NEXT:#pragma QUORVANTA_POLYMORPHIC "a_pure"
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID a_pure(__QVT__g__{{[0-9]+}} P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
// CHECK-NEXT:{
// CHECK-NEXT:    /* function is pure */
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}

// Every field, element by element.
// CHECK-LABEL: * a_clean
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID a_clean(__QVT__g__{{[0-9]+}} P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 - CLEAN mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (P_0 != 0)
// CHECK-NEXT:    {
// CHECK-NEXT:        P_0[qvt_random_int].i = qvt_random_g_[[INT]];
// CHECK-NEXT:        P_0[qvt_random_int].d = qvt_random_g_[[DBL]];
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 1 - CLEAN mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (P_1 != 0)
// CHECK-NEXT:    {
// CHECK-NEXT:        P_1[qvt_random_int].c = qvt_random_g_[[CHR]];
// CHECK-NEXT:        P_1[qvt_random_int].i = qvt_random_g_[[INT]];
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 2 - CLEAN mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (P_2 != 0)
// CHECK-NEXT:    {
// CHECK-NEXT:        P_2[qvt_random_int][qvt_random_int] = qvt_random_g_[[INT]];
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}

// CHECK-LABEL: * a_worst
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID a_worst(__QVT__g__{{[0-9]+}} P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
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
