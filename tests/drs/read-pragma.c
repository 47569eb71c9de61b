// The range pragma: mode first, then name, bounds and an optional pointer
// attribute. Its entries come after those of the range file; one with three
// words, or an unknown mode, leaves nothing and says nothing. An empty bound
// can only come from a pragma's string.
// RUN: rm -rf %t && mkdir -p %t/stubs && cd %t
// RUN: qvt-cfront %s -o p.ir
// RUN: printf 'v 0 1 init\n' > ranges.txt
// RUN: qvt-stubber -stubber -drs-gen -drs-file ranges.txt -stubs-dir stubs p.ir p.out.ir 2> err.txt
// RUN: %FileCheck-exact %s --input-file err.txt
// RUN: %cc-check stubs/qvt_stubs_0.c
// RUN: qvt-stubber -stubber -drs-gen -stubs-dir stubs p.ir p.out.ir 2> alone.txt
// RUN: %FileCheck-exact %s --check-prefix=ALONE --input-file alone.txt

int v, w, x, y, z;
int *p;

#pragma QUORVANTA_DRS init w 0 10
#pragma QUORVANTA_DRS init p 0 5 single
#pragma QUORVANTA_DRS init x 0
#pragma QUORVANTA_DRS Init y 0 10
#pragma QUORVANTA_DRS globalassert y "" 10
#pragma QUORVANTA_DRS globalassert z 0 ""
#pragma QUORVANTA_DRS permanent z 1 2 none

int main(void) { return v + w + x + y + z + *p; }

// A pragma entry has line 0 of the range file, if there is one.
// CHECK:ranges.txt:0: warning: data-range-specifications: missing range minimum value for 'y' (globalassert)
// CHECK-NEXT:ranges.txt:0: warning: data-range-specifications: missing range maximum value for 'z' (globalassert)
// CHECK-NEXT:data-range-specifications: 'v' in [0..1] (init)
// CHECK-NEXT:data-range-specifications: 'w' in [0..10] (init)
// CHECK-NEXT:data-range-specifications: 'p' [5] (maybe null) (single) (init)
// CHECK-NEXT:data-range-specifications: 'z' in [1..2] (permanent)

// ALONE:warning: data-range-specifications: missing range minimum value for 'y' (globalassert)
// ALONE-NEXT:warning: data-range-specifications: missing range maximum value for 'z' (globalassert)
// ALONE-NEXT:data-range-specifications: 'w' in [0..10] (init)
// ALONE-NEXT:data-range-specifications: 'p' [5] (maybe null) (single) (init)
// ALONE-NEXT:data-range-specifications: 'z' in [1..2] (permanent)
