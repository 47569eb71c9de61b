// With -instrument, ranges are records for the instrumenting tool: k_drs_instrum with the
// name, the bounds (a pointer's "max" capped at 32 elements), the mode and the leaf's word;
// no procedure is made. init ranges keep their k_drs, except on an external symbol (an
// undefined variable or a stubbed function), and permanent variables keep their marks.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -instrument -drs-gen -drs-file %S/Inputs/instrument-records.txt -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: qvt-irdump %t/p.out.ir > %t/dump.txt
// RUN: %FileCheck-exact %s --input-file %t/dump.txt
// RUN: %FileCheck-exact --check-prefix=LOG %s --input-file %t/err.txt
// RUN: %cc-check %t/stubs/qvt_stubs_0.c

int *p;
int cnt, lvl;
short h;
extern int ext;
int fill(int *out, int n);
int run(void) { return fill(p, 1) + cnt + ext + lvl + h; }

// CHECK-NOT:{{.*}}Qvt_Global_Assert{{.*}}
// CHECK:  var int * p [defined, align 64] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_drs_instrum "p" "1" "32" "init" "ptr" "none"
// CHECK-NEXT:      @k_drs_touched
// CHECK-NEXT:      @k_drs "init" "p" "1" "32" 2
// CHECK:  var int cnt [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_drs_instrum "cnt" "0" "9" "init" "int32"
// CHECK-NEXT:      @k_drs_touched
// CHECK-NEXT:      @k_drs "init" "cnt" "0" "9"
// CHECK:  var int lvl [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_drs_permanent_var
// CHECK-NEXT:      @k_drs_touched
// CHECK-NEXT:      @k_drs_instrum "lvl" "0" "3" "permanent" "int32"
// CHECK:  var short h [defined, align 16] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_drs_instrum "h" "-1" "1" "globalassert" "int16"
// CHECK:  var int ext [extern] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates "{{.*}}instrument-records.c" {{[0-9]+}} {{[0-9]+}}
// CHECK-NEXT:      @k_drs_instrum "ext" "0" "4" "init" "int32"
// CHECK-NEXT:      @k_drs_touched
// CHECK-NEXT:  proc int (int *, int) fill [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK:      @k_drs_instrum "fill.#0*" "1" "2" "permanent" "int32"
// CHECK-NEXT:      @k_drs_touched
// CHECK-NEXT:  proc int (void) run [body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NOT:{{.*}}Qvt_Global_Assert{{.*}}

// LOG:instrumenting drs: 'cnt' in [0..9] (init)
// LOG-NEXT:instrumenting drs: 'p' [32] (not null) (none) (init)
// LOG-NEXT:instrumenting drs: 'ext' in [0..4] (init)
// LOG-NEXT:instrumenting drs: 'fill.arg1[]' in [1..2] (permanent)
// LOG-NEXT:instrumenting drs: 'h' in [-1..1] (globalassert)
// LOG-NEXT:instrumenting drs: 'lvl' in [0..3] (permanent)
