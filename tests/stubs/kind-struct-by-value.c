// A struct holding a pointer, passed by value, for the kinds whose text compiles.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

#pragma QUORVANTA_PURE "v_pure"
#pragma QUORVANTA_WORST "v_worst"

struct holder { int n; char *text; };
void v_default(struct holder h);
void v_pure(struct holder h);
void v_worst(struct holder h);

// The default stub has only the comment for it.
// CHECK-LABEL: * v_default
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID v_default(struct holder P_0)
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 */
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}

// CHECK-LABEL: * v_pure
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-NEXT:#pragma QUORVANTA_POLYMORPHIC "v_pure"
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID v_pure(struct holder P_0)
// CHECK-NEXT:{
// CHECK-NEXT:    /* function is pure */
// CHECK-EMPTY:
// CHECK-NEXT:    return;
// CHECK-NEXT:}

// CHECK-LABEL: * v_worst
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__VOID v_worst(struct holder P_0)
// CHECK-NEXT:{
// CHECK-NEXT:    __QVT__CHAR *ptr_1;
// CHECK-NEXT:    __QVT__CHAR *ptr_2;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* parameter 0 - WORST mode */
// CHECK-EMPTY:
// CHECK-NEXT:    ptr_1 = (__QVT__CHAR *)&P_0;
// CHECK-NEXT:    ptr_2 = (__QVT__CHAR *)&P_0;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* pointer effect - WORST mode */
