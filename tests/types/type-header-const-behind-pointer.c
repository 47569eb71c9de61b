// A const struct first reached behind a pointer (from the fields of an earlier struct): the
// const typedef needs only the tag; the body comes later, once, when the list reaches it.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s < %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=ONCE %s < %t/out/qvt_stub_types.h
// RUN: %cc-check %t/out/qvt_stub_types.h

struct holder {
  const struct config *cfg;
};
struct config {
  int level;
  double scale;
};

void apply(struct holder *h);
int read_config(const struct config *c);

// CHECK:typedef const struct config __QVT__g__[[C:[0-9]+]];
// CHECK-NEXT:typedef __QVT__g__[[C]] *__QVT__g__[[P:[0-9]+]];
// CHECK-NEXT:struct holder
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__g__[[P]] cfg;
// CHECK-NEXT:  };
// CHECK:struct config
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__SINT32 level;
// CHECK-NEXT:    __QVT__FLOAT64 scale;
// CHECK-NEXT:  };

// ONCE:struct config
// ONCE-NOT:{{^}}struct config{{$}}
