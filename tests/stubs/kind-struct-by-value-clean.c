// The clean guard stands on every non-constant parameter whatever its type, so a struct passed
// by value is compared with 0: C refuses that comparison, and the compile check must fail.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: not %cc-check %t/stubs/qvt_stubs_0.c 2> %t/cc.txt

#pragma QUORVANTA_CLEAN "v_clean"

struct holder { int n; char *text; };
void v_clean(struct holder h);

// CHECK:static volatile int qvt_random_int;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__SINT8 qvt_random_g_[[CHR:[0-9]+]];
// CHECK-EMPTY:

// CHECK-LABEL: * v_clean
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID v_clean(struct holder P_0)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 - CLEAN mode */
// CHECK-EMPTY:
// CHECK-NEXT:    if (P_0 != 0)
// CHECK-NEXT:    {
// CHECK-NEXT:        P_0.text[qvt_random_int] = qvt_random_g_[[CHR]];
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}

