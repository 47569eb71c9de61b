// Two structs that point to each other: each body follows the pointer typedef it needs, and
// neither is written twice.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s < %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=ONCE %s < %t/out/qvt_stub_types.h
// RUN: %cc-check %t/out/qvt_stub_types.h

struct a;
struct b;
struct a {
  struct b *to_b;
};
struct b {
  struct a *to_a;
};

void link_both(struct a *x, struct b *y);

// CHECK:typedef struct b *__QVT__g__[[PB:[0-9]+]];
// CHECK-NEXT:struct a
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__g__[[PB]] to_b;
// CHECK-NEXT:  };
// CHECK:typedef struct a *__QVT__g__[[PA:[0-9]+]];
// CHECK-NEXT:struct b
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__g__[[PA]] to_a;
// CHECK-NEXT:  };

// ONCE:struct a
// ONCE-NOT:{{^}}struct a{{$}}
// ONCE:struct b
// ONCE-NOT:{{^}}struct b{{$}}
