// With -no-automatic-stubbing only the allocation functions get a stub; every other undefined
// function is named on the console, and the run fails.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: not qvt-stubber -stubber -no-automatic-stubbing -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %FileCheck-exact --check-prefix=ERR %s --input-file %t/err.txt
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

void *malloc(unsigned long size);
int other(int *p);
int another(int *p);

// CHECK-LABEL: * malloc
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-NEXT:#pragma QUORVANTA_POLYMORPHIC "malloc"
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__g__{{[0-9]+}} malloc(__QVT__UINT64 P_0)
// CHECK-NOT: * other
// CHECK-NOT: * another
// CHECK: * main entry point

// ERR:{{.*}}The automatic stubber is not activated.
// ERR-NEXT:|	function "other" must be stubbed manually.
// ERR-NEXT:|	function "another" must be stubbed manually.
// ERR-NEXT:* Function malloc is pure.
// ERR-NEXT:           Returns an initialized value.
// ERR-NEXT:           Const parameters (nb params=1): #1.
