// The entry point calls main (declared on the spot when the program has none) and each task
// under a random guard; a task never returns.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront -tasks t1,t2 %s -o %t/p.ir
// RUN: qvt-stubber -stubber -tasks t1,t2 -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

int sample(int *out);
void t1(void) { int v; sample(&v); }
void t2(void) { }

// CHECK-LABEL: * main entry point
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-NEXT:void __QVT__MAIN__ENTRY__POINT__(void)
// CHECK-NEXT:{
// CHECK-NEXT:    { /* call of function main */
// CHECK-NEXT:        __QVT__VOID main(__QVT__VOID);
// CHECK-NEXT:{{ {8}$}}
// CHECK-NEXT:        main();
// CHECK-NEXT:    }
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    if (qvt_random_int)
// CHECK-NEXT:    { /* call of task t1 */
// CHECK-NEXT:        __QVT__VOID t1(__QVT__VOID);
// CHECK-NEXT:{{ {8}$}}
// CHECK-NEXT:        t1();
// CHECK-NEXT:        assert(0);
// CHECK-NEXT:    }
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    if (qvt_random_int)
// CHECK-NEXT:    { /* call of task t2 */
// CHECK-NEXT:        __QVT__VOID t2(__QVT__VOID);
// CHECK-NEXT:{{ {8}$}}
// CHECK-NEXT:        t2();
// CHECK-NEXT:        assert(0);
// CHECK-NEXT:    }
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NOT:{{.}}
