// Each refusal of a bound, at its line and with the mode of its entry;
// binding takes the init names first, then permanent, then globalassert.
// RUN: rm -rf %t && mkdir -p %t && cd %t
// RUN: qvt-cfront %s -o p.ir
// RUN: qvt-stubber -drs-gen -drs-file %S/Inputs/values-messages.txt p.ir out.ir 2> err.txt
// RUN: %FileCheck-exact %s --input-file err.txt

int i, j, k, n, s;
unsigned char uc, uc2;
float f, f2, f3, f4;
long double ld, ld2, ld3;
int *p, *p2, *p3;

int main(void) { return i + j + k + n + s + uc + uc2 + f + f2 + f3 + f4 + ld + ld2 + ld3 + *p + *p2 + *p3; }

// CHECK:{{.*}}values-messages.txt:1: warning: data-range-specifications: not a number used as range minimum value for 'i' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:4: warning: data-range-specifications: minimum value not within type bounds of 'uc' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:7: warning: data-range-specifications: not a number used as range minimum value for 'n' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:8: warning: data-range-specifications: minimum value not within type bounds of 'f' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:9: warning: data-range-specifications: maximum value not within type bounds of 'f2' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:10: warning: data-range-specifications: not a number used as range minimum value for 'f3' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:11: warning: data-range-specifications: unexpected empty interval [2..1] for 'f4' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:12: warning: data-range-specifications: not a number used as range minimum value for 'ld' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:13: warning: data-range-specifications: unexpected empty interval [1..0.5L] for 'ld2' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:14: warning: data-range-specifications: not a number used as range maximum value for 'ld3' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:15: warning: data-range-specifications: minimum value not within type bounds of 'p' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:16: warning: data-range-specifications: maximum value not within type bounds of 'p2' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:17: warning: data-range-specifications: unexpected empty interval [5..2] for 'p3' (init)
// CHECK-NEXT:{{.*}}values-messages.txt:2: warning: data-range-specifications: not a number used as range maximum value for 'j' (permanent)
// CHECK-NEXT:{{.*}}values-messages.txt:5: warning: data-range-specifications: maximum value not within type bounds of 'uc2' (permanent)
// CHECK-NEXT:{{.*}}values-messages.txt:3: warning: data-range-specifications: not a number used as range minimum value for 'k' (globalassert)
// CHECK-NEXT:{{.*}}values-messages.txt:6: warning: data-range-specifications: unexpected empty interval [10..5] for 's' (globalassert)
// CHECK-NOT:{{.}}
