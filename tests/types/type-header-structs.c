// Packed structs are bracketed by the pack pragmas, after the types of their fields; an empty
// struct has its braces alone; bit-fields are declared with their storage type and width;
// anonymous members and unnamed tags get names that C accepts.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s < %t/out/qvt_stub_types.h
// RUN: %cc-check %t/out/qvt_stub_types.h

struct __attribute__((packed)) wire {
  char tag;
  long long stamp;
};

#pragma pack(2)
struct half {
  char c;
  int i;
};
#pragma pack()

struct empty {};

struct flags {
  unsigned int ready : 1;
  int level : 5;
};

struct outer {
  int kind;
  union {
    int as_int;
    float as_float;
  };
  struct {
    short x, y;
  } point;
};

void send(struct wire *w, struct half *h, struct empty *e, struct flags *f, struct outer *o);

// CHECK:typedef signed long __QVT__SINT64;
// CHECK:#pragma pack(1)
// CHECK-NEXT:struct wire
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__SINT8 tag;
// CHECK-NEXT:    __QVT__SINT64 stamp;
// CHECK-NEXT:  };
// CHECK-NEXT:#pragma pack()
// CHECK:#pragma pack(2)
// CHECK-NEXT:struct half
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__SINT8 c;
// CHECK-NEXT:    __QVT__SINT32 i;
// CHECK-NEXT:  };
// CHECK-NEXT:#pragma pack()
// CHECK:struct empty
// CHECK-NEXT:  {
// CHECK-NEXT:  };
// CHECK:struct flags
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__UINT32 ready : 1;
// CHECK-NEXT:    __QVT__SINT32 level : 5;
// CHECK-NEXT:  };
// CHECK:struct outer
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__SINT32 kind;
// CHECK-NEXT:    union __QVT__g__{{[0-9]+}} qvtunnsubs{{[0-9]+}};
// CHECK-NEXT:    struct __QVT__g__{{[0-9]+}} point;
// CHECK-NEXT:  };
