// Entries that only restate what the stubber does anyway are recognised and leave no mark: the
// full range of a volatile variable in permanent mode, the full range of a stub's pointer
// parameter with the default kind. A real range, on the variable or behind the pointer, does.
// All of them are logged.
// RUN: rm -rf %t && mkdir -p %t/stubs && cd %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/defaults.xml -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: qvt-irdump %t/p.out.ir | grep -E '^  (var|proc) |@k_drs' > %t/marks.txt
// RUN: %FileCheck-exact %s --input-file %t/marks.txt
// RUN: %FileCheck-exact %s --check-prefix=LOG --input-file %t/err.txt
// RUN: %cc-check %t/stubs/qvt_stubs_0.c

volatile int port;
volatile int port2;
int get(int *p);
int put(int *p);
int use(void) { int a; return get(&a) + put(&a) + port + port2; }

// CHECK:  var volatile int port [defined, align 32] [userdef]  /* #1 */
// CHECK-NEXT:  var volatile int port2 [defined, align 32] [userdef]  /* #2 */
// CHECK-NEXT:      @k_drs_permanent_var
// CHECK-NEXT:      @k_drs_touched
// CHECK-NEXT:  proc int (int *) get [no body] [userdef]  /* #3 */
// CHECK-NEXT:  proc int (int *) put [no body] [userdef]  /* #4 */
// CHECK-NEXT:      @k_drs_touched
// CHECK-NEXT:      @k_drs "init" "put.#0" "0" "{{[0-9]+}}"
// CHECK-NEXT:      @k_drs "init" "put.#0*" "0" "5"

// LOG:data-range-specifications: 'get.arg1' [{{[0-9]+}}] (maybe null) (multi) (permanent)
// LOG-NEXT:data-range-specifications: 'put.arg1' [{{[0-9]+}}] (maybe null) (multi) (permanent)
// LOG-NEXT:data-range-specifications: 'put.arg1[]' in [0..5] (permanent)
// LOG-NEXT:data-range-specifications: 'port' in [-2147483648..2147483647] (permanent)
// LOG-NEXT:data-range-specifications: 'port2' in [0..10] (permanent)
