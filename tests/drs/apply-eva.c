// Frama-C's Eva on a closed program, with and without a range file: the permanent range on
// the return of a stub proves an index in bounds, and the init range of a global, which the
// generated main draws before its loop, proves another; without the file both are alarms.
// An index that the range narrows without bounding keeps one alarm, which shows that the
// function was analysed.
// REQUIRES: framac
// RUN: rm -rf %t && mkdir -p %t/with %t/without
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -main-generator -drs-file %S/Inputs/apply-eva.txt -stubs-dir %t/with %t/p.ir %t/with.ir 2> %t/with.err
// RUN: qvt-stubber -stubber -main-generator -stubs-dir %t/without %t/p.ir %t/without.ir 2> %t/without.err
// RUN: %cc-check %t/with/qvt_stubs_0.c %t/with/__quorvanta_main.c %t/without/qvt_stubs_0.c %t/without/__quorvanta_main.c
// RUN: %frama-c -machdep gcc_x86_64 -cpp-extra-args="-include %target_dir/qvt_target.h -I%target_dir -I%t/with" -kernel-warn-key CERT:MSC:38=inactive %s %t/with/qvt_stubs_0.c %t/with/__quorvanta_main.c -eva -main __QVT__MAIN__ENTRY__POINT__ -then -report-csv %t/with.csv > %t/with.txt 2>&1
// RUN: %frama-c -machdep gcc_x86_64 -cpp-extra-args="-include %target_dir/qvt_target.h -I%target_dir -I%t/without" -kernel-warn-key CERT:MSC:38=inactive %s %t/without/qvt_stubs_0.c %t/without/__quorvanta_main.c -eva -main __QVT__MAIN__ENTRY__POINT__ -then -report-csv %t/without.csv > %t/without.txt 2>&1
// RUN: %FileCheck-exact --check-prefix=DONE %s --input-file %t/with.txt
// RUN: %FileCheck-exact --check-prefix=DONE %s --input-file %t/without.txt
// RUN: %FileCheck-exact --check-prefix=WITH %s --input-file %t/with.csv
// RUN: %FileCheck-exact --check-prefix=WITHOUT %s --input-file %t/without.csv

// DONE:[eva] done for function __QVT__MAIN__ENTRY__POINT__
// WITH-NOT:{{.*}}index_bound{{.*}}

int read_slot(void);
int level;
int table[8];
int counts[4];

void tick(void)
{
  int slot = read_slot();
  table[slot] = 1; // WITHOUT:{{.*}}apply-eva.c{{.}}[[@LINE]]{{.}}tick{{.}}index_bound{{.}}Unknown{{.*}}
  counts[level] = slot; // WITHOUT:{{.*}}apply-eva.c{{.}}[[@LINE]]{{.}}tick{{.}}index_bound{{.}}Unknown{{.*}}
  // The range is narrower than table's, not than counts': one bound stays in doubt.
  counts[slot] = 0; // WITH:{{.*}}apply-eva.c{{.}}[[@LINE]]{{.}}tick{{.}}index_bound{{.}}Unknown{{.}}slot < 4
}

// WITH-NOT:{{.*}}index_bound{{.*}}
