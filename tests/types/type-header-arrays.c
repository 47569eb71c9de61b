// Arrays: a known bound is the upper bound plus one, an unknown one is empty; an array of
// structs reached behind a pointer stands after the struct's body, since C has no array of an
// incomplete type.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s < %t/out/qvt_stub_types.h
// RUN: %cc-check %t/out/qvt_stub_types.h

struct cell {
  int id;
};

void fill_rows(struct cell (*rows)[4], int n);
extern int table[10];
extern char names[];

// CHECK:struct cell
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__SINT32 id;
// CHECK-NEXT:  };
// CHECK-NEXT:typedef struct cell __QVT__g__[[A:[0-9]+]][4];
// CHECK-NEXT:typedef __QVT__g__[[A]] *__QVT__g__{{[0-9]+}};
// CHECK-DAG:typedef __QVT__SINT32 __QVT__g__{{[0-9]+}}[10];
// CHECK-DAG:typedef __QVT__SINT8 __QVT__g__{{[0-9]+}}[];
