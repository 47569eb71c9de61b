// The log of the ranges that take effect, under -instrument: arguments by
// their position from 1, each pointer step as "[]", a pointer's range as
// null-ness and element count (only the first character of min counts), and
// the same facts on the symbol for the instrumenting tool, where the
// certain-write kinds fall to their plain form. -cpp-drs-gen logs nothing.
// RUN: rm -rf %t && mkdir -p %t/stubs && cd %t
// RUN: qvt-cfront %s -o p.ir
// RUN: qvt-stubber -stubber -drs-gen -instrument -drs-file %S/Inputs/log-forms.txt -stubs-dir stubs p.ir p.out.ir 2> err.txt
// RUN: %FileCheck-exact %s --input-file err.txt
// RUN: %cc-check stubs/qvt_stubs_0.c
// RUN: qvt-irdump p.out.ir > dump.txt
// RUN: %FileCheck-exact %s --check-prefix=MARK --input-file dump.txt
// RUN: qvt-stubber -cpp-drs-gen -drs-file %S/Inputs/log-forms.txt p.ir cpp.ir 2> cpp.txt
// RUN: %FileCheck-exact %s --check-prefix=CPP --allow-empty --input-file cpp.txt

signed char sc;
unsigned short us;
double dbl;
enum color { RED = -1, BLUE = 5 } col;
int **pp;
int *p, *q, *r;
int stub(int **a, int n);

int main(void) { return sc + us + (int)dbl + col + **pp + *p + *q + *r + stub(pp, 1); }

// CHECK:instrumenting drs: 'sc' in [-1..1] (init)
// CHECK-NEXT:instrumenting drs: 'col' in [-2147483648..5] (init)
// CHECK-NEXT:instrumenting drs: 'pp[]' [10] (maybe null) (single) (init)
// CHECK-NEXT:instrumenting drs: 'pp[][]' in [1..2] (init)
// CHECK-NEXT:instrumenting drs: 'p' [4] (maybe null) (multi_certain_write) (init)
// CHECK-NEXT:instrumenting drs: 'q' [32] (not null) (none) (init)
// CHECK-NEXT:instrumenting drs: 'r' (null) (single_certain_write) (init)
// CHECK-NEXT:instrumenting drs: 'stub.arg1[][]' in [0..5] (permanent)
// CHECK-NEXT:instrumenting drs: 'stub.arg1[]' [5] (maybe null) (multi) (permanent)
// CHECK-NEXT:instrumenting drs: 'stub.return' in [0..1] (permanent)
// CHECK-NEXT:instrumenting drs: 'us' in [0..9] (globalassert)
// CHECK-NEXT:instrumenting drs: 'dbl' in [-0.5..1.7976931348623157e+308] (permanent)

// MARK:{{ *}}@k_drs_instrum "sc" "-1" "1" "init" "int8"
// MARK:{{ *}}@k_drs_instrum "us" "0" "9" "globalassert" "uint16"
// MARK:{{ *}}@k_drs_instrum "dbl" "-0.5" "1.7976931348623157e+308" "permanent" "float64"
// MARK:{{ *}}@k_drs_instrum "col" "-2147483648" "5" "init" "int32"
// MARK:{{ *}}@k_drs_instrum "pp*" "0" "10" "init" "ptr" "single"
// MARK:{{ *}}@k_drs_instrum "pp**" "1" "2" "init" "int32"
// MARK:{{ *}}@k_drs_instrum "p" "0x1" "4" "init" "ptr" "multi"
// MARK:{{ *}}@k_drs_instrum "q" "1" "32" "init" "ptr" "none"
// MARK:{{ *}}@k_drs_instrum "r" "0" "0" "init" "ptr" "single"
// MARK:{{ *}}@k_drs_instrum "stub.#0**" "0" "5" "permanent" "int32"
// MARK:{{ *}}@k_drs_instrum "stub.#0*" "0" "5" "permanent" "ptr" "multi"
// MARK:{{ *}}@k_drs_instrum "stub.return" "0" "1" "permanent" "int32"

// CPP-NOT:{{.}}
