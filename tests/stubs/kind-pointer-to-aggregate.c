// The default and clean stubs on pointers to a struct, a union and an array, and on a struct
// holding a pointer passed by value (its clean guard is in kind-struct-by-value-clean.c).
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

#pragma QUORVANTA_CLEAN "a_clean"

struct s { int i; double d; };
union u { char c; int i; };
void a_default(struct s *p, union u *q, int (*r)[4]);
struct holder { int n; char *text; };
void a_value(struct holder h);
void a_clean(struct s *p, union u *q, int (*r)[4]);

// Only the clean stub needs random variables.
// CHECK:static volatile int qvt_random_int;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__SINT32 qvt_random_g_[[INT:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__FLOAT64 qvt_random_g_[[DBL:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__SINT8 qvt_random_g_[[CHR:[0-9]+]];
// CHECK-EMPTY:

// The byte walk, line by line once.
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
// CHECK:            *p_addr = (__QVT__CHAR)qvt_random_char;
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 2 */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        __QVT__CHAR *p_addr = (__QVT__CHAR *)&P_2;
// CHECK:            *p_addr = (__QVT__CHAR)qvt_random_char;
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}

// The default stub has only the comment for it.
// CHECK-LABEL: * a_value
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID a_value(struct holder P_0)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 */
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
