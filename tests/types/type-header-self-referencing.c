// A struct that points to itself: the tag alone serves the pointer typedef, which stands
// ahead of the body; the body names the typedef as a field type; nothing is written twice.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s < %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=ONCE %s < %t/out/qvt_stub_types.h
// RUN: %cc-check %t/out/qvt_stub_types.h

struct node {
  int value;
  struct node *next;
};

int length(struct node *list);

// CHECK:typedef char __QVT__CHAR;
// CHECK:typedef signed int __QVT__SINT32;
// CHECK:typedef struct node *__QVT__g__[[P:[0-9]+]];
// CHECK-NEXT:struct node
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__SINT32 value;
// CHECK-NEXT:    __QVT__g__[[P]] next;
// CHECK-NEXT:  };
// CHECK:typedef __QVT__SINT32 __QVT__g__{{[0-9]+}}(__QVT__g__[[P]]);

// ONCE:struct node
// ONCE-NOT:{{^}}struct node{{$}}
