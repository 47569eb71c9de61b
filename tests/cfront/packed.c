// Packed structs carry k_max_align with the packing in bytes: the packed
// attribute and #pragma pack(1) give 1, #pragma pack(2) gives 2; offsets and
// sizes are those of the packed layout. An ordinary struct has no annotation.
// RUN: qvt-cfront %s -o %t.ir
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt

struct __attribute__((packed)) attr_packed {
    char c;
    int i;
};

#pragma pack(1)
struct pragma_one {
    char c;
    long l;
};
#pragma pack()

#pragma pack(push, 2)
struct pragma_two {
    char c;
    int i;
};
#pragma pack(pop)

struct plain {
    char c;
    int i;
};

struct attr_packed a;
struct pragma_one b;
struct pragma_two c;
struct plain d;

// CHECK-LABEL:global table:
// CHECK:  T{{[0-9]+}}: struct attr_packed {  /* 40 bits */
// CHECK-NEXT:      @k_max_align 1
// CHECK-NEXT:      signed char c;  /* at bit 0 */
// CHECK-NEXT:      int i;  /* at bit 8 */
// CHECK-NEXT:  }
// CHECK:  T{{[0-9]+}}: struct pragma_one {  /* 72 bits */
// CHECK-NEXT:      @k_max_align 1
// CHECK-NEXT:      signed char c;  /* at bit 0 */
// CHECK-NEXT:      long l;  /* at bit 8 */
// CHECK-NEXT:  }
// CHECK:  T{{[0-9]+}}: struct pragma_two {  /* 48 bits */
// CHECK-NEXT:      @k_max_align 2
// CHECK-NEXT:      signed char c;  /* at bit 0 */
// CHECK-NEXT:      int i;  /* at bit 16 */
// CHECK-NEXT:  }
// CHECK:  T{{[0-9]+}}: struct plain {  /* 64 bits */
// CHECK-NEXT:      signed char c;  /* at bit 0 */
// CHECK-NEXT:      int i;  /* at bit 32 */
// CHECK-NEXT:  }
