// An undefined function declared without a prototype is refused: the
// diagnosis names it at its declaration, the run goes on to the end, prints
// the explanation, and the status is 1.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: not qvt-stubber -stubber -stubs-dir %t/out %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s < %t/err.txt
// RUN: test -f %t/p.out.ir
// RUN: %cc-check %t/out/qvt_stub_types.h

int old();
int with_proto(int);

int use(void) { return old() + with_proto(1); }

// CHECK:{{.*}}unknown-prototype.c:11: error: function 'old' has unknown prototype
// CHECK-NEXT:|        Please provide the complete prototype for this function,
// CHECK-NEXT:|        or you can try using the -permissive-stubber option.
// CHECK:---------------------------
// CHECK-NEXT:Error message explanation:
// CHECK-NEXT:- "function has unknown prototype" means that either the function has no prototype
// CHECK-NEXT:                                            or its prototype is not ANSI compliant.
// CHECK-NEXT:- "task is undefined" means that a function has been declared to be a task but has no known body
