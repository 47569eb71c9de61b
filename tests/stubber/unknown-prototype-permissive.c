// With -permissive-stubber the function without a prototype is still refused
// and the status is still 1; only the wording changes.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: not qvt-stubber -stubber -permissive-stubber -stubs-dir %t/out %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s < %t/err.txt
// RUN: %cc-check %t/out/qvt_stub_types.h

int old();

int use(void) { return old(); }

// CHECK:{{.*}}unknown-prototype-permissive.c:9: error: function 'old' has unknown prototype
// CHECK-NEXT:|        Please provide the complete prototype for this function.
// CHECK:---------------------------
// CHECK-NEXT:Error message explanation:
