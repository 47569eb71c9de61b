// Constant parameters (scalars by value, pointers to const data) and a pointer to void, for the default, clean and worst stubs.
// The byte walk of a default stub is checked line by line in kind-pointer-to-aggregate.c.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

#pragma QUORVANTA_CLEAN "c_clean"
#pragma QUORVANTA_WORST "c_worst"

void c_default(int n, const char *s, void *v);
void c_clean(int n, const char *s, void *v);
void c_worst(int n, const char *s, void *v);

// CHECK:static volatile int qvt_random_int;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__SINT8 qvt_random_g_[[CHR:[0-9]+]];
// CHECK-EMPTY:

// A pointer to void always walks bytes.
// CHECK-LABEL: * c_default
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID c_default(__QVT__SINT32 P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 is constant */
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 1 is constant */
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

// CHECK-LABEL: * c_clean
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID c_clean(__QVT__SINT32 P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 is constant */
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 1 is constant */
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 2 - CLEAN mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (P_2 != 0)
// CHECK-NEXT:    {
// CHECK-NEXT:        ((__QVT__CHAR *)P_2)[qvt_random_int] = qvt_random_g_[[CHR]];
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}

// CHECK-LABEL: * c_worst
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID c_worst(__QVT__SINT32 P_0, __QVT__g__{{[0-9]+}} P_1, __QVT__g__{{[0-9]+}} P_2)
// CHECK-NEXT:{
// CHECK-NEXT:    __QVT__CHAR *ptr_1;
// CHECK-NEXT:    __QVT__CHAR *ptr_2;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* parameter 0 is constant */
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 1 is constant */
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 2 - WORST mode */
// CHECK-EMPTY:
// CHECK-NEXT:    ptr_1 = (__QVT__CHAR *)&P_2;
// CHECK-NEXT:    ptr_2 = (__QVT__CHAR *)&P_2;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* pointer effect - WORST mode */
