// One name on several lines of the range file. The first line wins, whatever the modes, and a
// warning names the line that lost; the one exception is a pair of an init and a globalassert
// range, which stand together when the init range lies within the other. The log shows what
// stands: init ranges, then globalassert ones, then permanent ones.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/bind-duplicates.txt -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/err.txt
// RUN: %cc-check %t/stubs/qvt_stubs_0.c

int twice, pair, wide, pinit, iperm, pa, ap, third;

int main(void) { return twice + pair + wide + pinit + iperm + pa + ap + third; }

// CHECK:{{.*}}bind-duplicates.txt:3: warning: data-range-specifications: 'twice' previously specified in the file, ignoring this line
// CHECK-NEXT:{{.*}}bind-duplicates.txt:9: warning: data-range-specifications: 'pinit' previously specified in the file, ignoring this line
// CHECK-NEXT:{{.*}}bind-duplicates.txt:11: warning: data-range-specifications: 'iperm' previously specified in the file, ignoring this line
// CHECK-NEXT:{{.*}}bind-duplicates.txt:7: warning: data-range-specifications: wide: range for init mode ([0..30]) must be a subset of the globalassert range ([0..20])
// CHECK-NEXT:{{.*}}bind-duplicates.txt:13: warning: data-range-specifications: 'pa' previously specified in the file, ignoring this line
// CHECK-NEXT:{{.*}}bind-duplicates.txt:15: warning: data-range-specifications: 'ap' previously specified in the file, ignoring this line
// CHECK-NEXT:{{.*}}bind-duplicates.txt:18: warning: data-range-specifications: 'third' previously specified in the file, ignoring this line
// CHECK-NEXT:data-range-specifications: 'twice' in [0..1] (init)
// CHECK-NEXT:data-range-specifications: 'pair' in [0..10] (init)
// CHECK-NEXT:data-range-specifications: 'wide' in [0..30] (init)
// CHECK-NEXT:data-range-specifications: 'pinit' in [0..1] (init)
// CHECK-NEXT:data-range-specifications: 'third' in [0..10] (init)
// CHECK-NEXT:data-range-specifications: 'pair' in [0..20] (globalassert)
// CHECK-NEXT:data-range-specifications: 'ap' in [0..2] (globalassert)
// CHECK-NEXT:data-range-specifications: 'third' in [0..20] (globalassert)
// CHECK-NEXT:data-range-specifications: 'iperm' in [0..2] (permanent)
// CHECK-NEXT:data-range-specifications: 'pa' in [0..1] (permanent)
