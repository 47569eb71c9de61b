// Anonymous struct and union members are fields named "qvtunnsubs" and a
// number; unnamed tags get a number as their IR name (first character a
// digit), one number per distinct type, and a typedef of an unnamed struct
// is that struct.
// RUN: qvt-cfront %s -o %t.ir
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt

struct packet {
    int kind;
    union {
        int word;
        float real;
    };
    struct {
        short lo, hi;
    };
    struct {
        char c;
    } named;
};

typedef struct {
    int x, y;
} point;

enum { LOW, HIGH = 7 } level;

struct packet p;
point origin;

// CHECK-LABEL:global table:
// CHECK:  T{{[0-9]+}}: struct packet {  /* 128 bits */
// CHECK-NEXT:      int kind;  /* at bit 0 */
// CHECK-NEXT:      union [[U:[0-9]+]] qvtunnsubs0;  /* at bit 32 */
// CHECK-NEXT:      struct [[S:[0-9]+]] qvtunnsubs1;  /* at bit 64 */
// CHECK-NEXT:      struct [[N:[0-9]+]] named;  /* at bit 96 */
// CHECK-NEXT:  }
// CHECK-NEXT:  T{{[0-9]+}}: union [[U]] {  /* 32 bits */
// CHECK-NEXT:      int word;  /* at bit 0 */
// CHECK-NEXT:      float real;  /* at bit 0 */
// CHECK-NEXT:  }
// CHECK:  T{{[0-9]+}}: struct [[S]] {  /* 32 bits */
// CHECK-NEXT:      short lo;  /* at bit 0 */
// CHECK-NEXT:      short hi;  /* at bit 16 */
// CHECK-NEXT:  }
// CHECK-NEXT:  T{{[0-9]+}}: struct [[N]] {  /* 8 bits */
// CHECK:  T{{[0-9]+}}: struct [[P:[0-9]+]] {  /* 64 bits */
// CHECK-NEXT:      int x;  /* at bit 0 */
// CHECK-NEXT:      int y;  /* at bit 32 */
// CHECK-NEXT:  }
// CHECK-NEXT:  T{{[0-9]+}}: enum [[E:[0-9]+]] {  /* 32 bits, unsigned */
// CHECK-NEXT:      LOW = 0,
// CHECK-NEXT:      HIGH = 7,
// CHECK-NEXT:  }
// CHECK:  var enum [[E]] level [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK:  var struct packet p [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK:  var struct [[P]] origin [defined, align 32] [userdef]  /* #{{[0-9]+}} */
