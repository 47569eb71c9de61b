// Without automatic stubbing only allocation functions get a stub; the others
// are listed for manual stubbing after one error, which sets the status.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: not qvt-stubber -stubber -no-automatic-stubbing -stubs-dir %t/out %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s < %t/err.txt
// RUN: %cc-check %t/out/qvt_stub_types.h

void *malloc(unsigned long size);
int first(int);
int second(int);

int use(void) { return first(1) + second(2) + (malloc(4) != 0); }

// CHECK-NOT:{{.*}}malloc{{.*}}manually{{.*}}
// CHECK:error: The automatic stubber is not activated.
// CHECK-NEXT:|	function "first" must be stubbed manually.
// CHECK-NEXT:|	function "second" must be stubbed manually.
// CHECK-NOT:{{.*}}activated{{.*}}
// CHECK:* Function malloc {{.*}}
// CHECK-NOT:* Function {{.*}}
// CHECK:Error message explanation:
