// Bit-fields: the field type is an integer of the bit-field's width, the
// storage width is that of the declared type, offsets are in bits. An unnamed
// bit-field is a filler field; a zero-width one only moves the next field.
// RUN: qvt-cfront %s -o %t.ir
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt
// RUN: %FileCheck-exact --check-prefix=RAW %s < %t.ir

struct regs {
    unsigned int ready : 1;
    unsigned int : 3;
    signed int level : 4;
    unsigned short mode : 2;
    int : 0;
    unsigned char tail;
    const unsigned long wide : 40;
};

struct regs r;

// CHECK-LABEL:global table:
// CHECK:  T{{[0-9]+}}: struct regs {  /* 128 bits */
// CHECK-NEXT:      int ready : 1 in 32;  /* at bit 0 */
// CHECK-NEXT:      int __qvt_unused_field0 : 3 in 32;  /* at bit 1 */
// CHECK-NEXT:      int level : 4 in 32;  /* at bit 4 */
// CHECK-NEXT:      int mode : 2 in 16;  /* at bit 8 */
// CHECK-NEXT:      unsigned char tail;  /* at bit 32 */
// CHECK-NEXT:      const int wide : 40 in 64;  /* at bit 64 */
// CHECK-NEXT:  }

// The dump doesn't show the sign of odd-sized integers; the IR file does.
// RAW:type {{[0-9]+}} struct 128 "regs" 6
// RAW-NEXT:field "ready" [[U1:[0-9]+]] 0 32
// RAW-NEXT:field "__qvt_unused_field0" [[U3:[0-9]+]] 1 32
// RAW-NEXT:field "level" [[S4:[0-9]+]] 4 32
// RAW-NEXT:field "mode" [[U2:[0-9]+]] 8 16
// RAW-NEXT:field "tail" 3 32 0
// RAW-NEXT:field "wide" [[CU40:[0-9]+]] 64 64
// RAW-NEXT:type [[U1]] int 1 u
// RAW-NEXT:type [[U3]] int 3 u
// RAW-NEXT:type [[S4]] int 4 s
// RAW-NEXT:type [[U2]] int 2 u
// RAW-NEXT:type [[U40:[0-9]+]] int 40 u
// RAW-NEXT:type [[CU40]] const [[U40]]
