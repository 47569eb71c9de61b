// Function types: "void" for no parameter, empty parentheses without a prototype (here of a
// defined function, since an undefined one is refused), the ellipsis after the visible
// parameters of a variadic function (whose two hidden parameters are not written).
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s < %t/out/qvt_stub_types.h
// RUN: %cc-check %t/out/qvt_stub_types.h

short none(void);
float unknown() { return 0; }
int print(const char *format, ...);
void two(int a, double b);

// CHECK-DAG:typedef __QVT__SINT16 __QVT__g__{{[0-9]+}}(void);
// CHECK-DAG:typedef __QVT__FLOAT32 __QVT__g__{{[0-9]+}}();
// CHECK-DAG:typedef __QVT__SINT32 __QVT__g__{{[0-9]+}}(__QVT__g__{{[0-9]+}}, ...);
// CHECK-DAG:typedef __QVT__VOID __QVT__g__{{[0-9]+}}(__QVT__SINT32, __QVT__FLOAT64);
