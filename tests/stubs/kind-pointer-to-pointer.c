// The default and clean stubs on a pointer to a pointer (the pure and worst texts do not depend on the type).
// The byte walk of a default stub is checked line by line in kind-pointer-to-aggregate.c.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

#pragma QUORVANTA_CLEAN "pp_clean"

void pp_default(int **p);
void pp_clean(int **p);

// CHECK:static volatile int qvt_random_int;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__g__{{[0-9]+}} qvt_random_g_[[PTR:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__SINT32 qvt_random_g_[[INT:[0-9]+]];
// CHECK-EMPTY:

// CHECK-LABEL: * pp_default
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID pp_default(__QVT__g__{{[0-9]+}} P_0)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        __QVT__CHAR *p_addr = (__QVT__CHAR *)&P_0;
// CHECK:            *p_addr = (__QVT__CHAR)qvt_random_char;
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}

// The pointer and its target.
// CHECK-LABEL: * pp_clean
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID pp_clean(__QVT__g__{{[0-9]+}} P_0)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 - CLEAN mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (P_0 != 0)
// CHECK-NEXT:    {
// CHECK-NEXT:        P_0[qvt_random_int] = qvt_random_g_[[PTR]];
// CHECK-NEXT:        P_0[qvt_random_int][qvt_random_int] = qvt_random_g_[[INT]];
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}
