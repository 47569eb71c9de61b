// Enumerators: the minimum of the base type is written so that C never reads an
// out-of-range literal (also 0 for an unsigned base); an enum is written whole, also when
// only a pointer reaches it; an unnamed enum is named by its number.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s < %t/out/qvt_stub_types.h
// RUN: %cc-check %t/out/qvt_stub_types.h

enum range { LOWEST = -2147483647 - 1, MIDDLE = -3, HIGHEST = 2147483647 };
enum { ANON_A, ANON_B };

void set_range(enum range *r);
int anon_value(int v);

// CHECK:enum range
// CHECK-NEXT:  {
// CHECK-NEXT:    LOWEST = (-2147483647-1),
// CHECK-NEXT:    MIDDLE = -3,
// CHECK-NEXT:    HIGHEST = 2147483647
// CHECK-NEXT:  };
// An enum with no negative value has an unsigned base, whose minimum is 0.
// CHECK:enum __QVT__g__{{[0-9]+}}
// CHECK-NEXT:  {
// CHECK-NEXT:    ANON_A = (1-1),
// CHECK-NEXT:    ANON_B = 1
// CHECK-NEXT:  };
// CHECK:typedef enum range *__QVT__g__{{[0-9]+}};
