// The marks that ranges leave on symbols: k_drs_touched once a symbol, k_drs for each init
// range (and permanent range on a stub) under the symbol's own name with its pointer kind
// code when it isn't the default, k_drs_permanent_var on a permanent variable. With
// -no-drs-init the symbols are only touched. -cpp-drs-gen says nothing, leaves init ranges
// without effect and still makes the procedure of a permanent variable.
// RUN: rm -rf %t && mkdir -p %t/s1 %t/s2
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/apply-marks.txt -stubs-dir %t/s1 %t/p.ir %t/p1.ir 2> %t/err1.txt
// RUN: qvt-irdump %t/p1.ir > %t/dump1.txt
// RUN: %FileCheck-exact --check-prefix=MARKS %s --input-file %t/dump1.txt
// RUN: qvt-stubber -stubber -drs-gen -no-drs-init -drs-file %S/Inputs/apply-marks.txt -stubs-dir %t/s2 %t/p.ir %t/p2.ir 2> %t/err2.txt
// RUN: qvt-irdump %t/p2.ir > %t/dump2.txt
// RUN: %FileCheck-exact --check-prefix=NOINIT %s --input-file %t/dump2.txt
// RUN: %cc-check %t/s1/qvt_stubs_0.c %t/s2/qvt_stubs_0.c
// RUN: qvt-stubber -cpp-drs-gen -drs-file %S/Inputs/apply-marks.txt %t/p.ir %t/p3.ir 2> %t/err3.txt
// RUN: %FileCheck-exact --check-prefix=SILENT --allow-empty %s --input-file %t/err3.txt
// RUN: qvt-irdump %t/p3.ir > %t/dump3.txt
// RUN: %FileCheck-exact --check-prefix=CPP %s --input-file %t/dump3.txt

struct cfg { int level; int *buf; };
struct cfg c;
int *p;
int cnt, lvl;
extern int ext;
int fill(int *out, int n);
int run(void) { return fill(p, 1) + c.level + cnt + ext + lvl; }

// MARKS:  var struct cfg c [defined, align 64] [userdef]  /* #{{[0-9]+}} */
// MARKS-NEXT:      @k_drs_touched
// MARKS-NEXT:      @k_drs "init" "c.level" "0" "5"
// MARKS-NEXT:      @k_drs "init" "c.buf*" "0" "3" 4
// MARKS-NEXT:      @k_source_coordinates "{{.*}}apply-marks.c" {{[0-9]+}} {{[0-9]+}}
// MARKS-NEXT:  var int * p [defined, align 64] [userdef]  /* #{{[0-9]+}} */
// MARKS-NEXT:      @k_drs_touched
// MARKS-NEXT:      @k_drs "init" "p" "0" "10" 2
// MARKS:  var int cnt [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// MARKS-NEXT:      @k_drs_touched
// MARKS-NEXT:      @k_drs "init" "cnt" "0" "9" 3
// MARKS:  var int lvl [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// MARKS-NEXT:      @k_drs_permanent_var
// MARKS-NEXT:      @k_drs_touched
// MARKS:  var int ext [extern] [userdef]  /* #{{[0-9]+}} */
// MARKS-NEXT:      @k_source_coordinates "{{.*}}apply-marks.c" {{[0-9]+}} {{[0-9]+}}
// MARKS-NEXT:      @k_drs_touched
// MARKS-NEXT:      @k_drs "init" "ext" "0" "4"
// MARKS:  proc int (int *, int) fill [no body] [userdef]  /* #{{[0-9]+}} */
// MARKS:      @k_drs_touched
// MARKS-NEXT:      @k_drs "init" "fill.#0*" "1" "2" 1
// MARKS-LABEL:int Qvt_Global_Assert_1()  /* permanent range: lvl in [0..3] (irange) */

// NOINIT-NOT:{{.*}}@k_drs "init"{{.*}}
// NOINIT:  var struct cfg c [defined, align 64] [userdef]  /* #{{[0-9]+}} */
// NOINIT-NEXT:      @k_drs_touched
// NOINIT-NOT:{{.*}}@k_drs "init"{{.*}}
// NOINIT:  proc int (int *, int) fill [no body] [userdef]  /* #{{[0-9]+}} */
// NOINIT-NOT:{{.*}}@k_drs "init"{{.*}}

// SILENT-NOT:{{.+}}

// CPP-NOT:{{.*}}@k_drs "init"{{.*}}
// CPP:  var int lvl [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CPP-NEXT:      @k_drs_permanent_var
// CPP-NEXT:      @k_drs_touched
// CPP-NOT:{{.*}}@k_drs "init"{{.*}}
// CPP-LABEL:int Qvt_Global_Assert_1()  /* permanent range: lvl in [0..3] (irange) */
