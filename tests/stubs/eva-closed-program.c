// Frama-C's Eva runs the closed program (this file, the generated stubs and the support header)
// to its end at default precision, and sees the stubs' effects: a value written by a default
// stub through a pointer is unknown afterwards, a pure stub returns an unknown value, and the
// return of a stub whose type is an enum stays within its enumerators.
// REQUIRES: framac
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %cc-check %t/stubs/qvt_stubs_0.c
// RUN: %frama-c -machdep gcc_x86_64 -cpp-extra-args="-include %target_dir/qvt_target.h -I%target_dir -I%t/stubs" -kernel-warn-key CERT:MSC:38=inactive %s %t/stubs/qvt_stubs_0.c -eva -main __QVT__MAIN__ENTRY__POINT__ -then -report-csv %t/report.csv > %t/eva.txt 2>&1
// RUN: %FileCheck-exact --check-prefix=DONE %s --input-file %t/eva.txt
// RUN: %FileCheck-exact --check-prefix=WRITTEN %s --input-file %t/report.csv
// RUN: %FileCheck-exact --check-prefix=PURE %s --input-file %t/report.csv
// RUN: %FileCheck-exact --check-prefix=SMALL %s --input-file %t/report.csv
// RUN: %FileCheck-exact --check-prefix=COVERED %s --input-file %t/report.csv
// With -instrument the clamp is a draw of __qvt_u32_rand_range, which the header maps onto
// Frama_C_unsigned_int_interval: the same facts hold.
// RUN: mkdir -p %t/ins
// RUN: qvt-stubber -stubber -instrument -stubs-dir %t/ins %t/p.ir %t/p.ins.ir 2> %t/err.ins.txt
// RUN: %cc-check %t/ins/qvt_stubs_0.c
// RUN: %frama-c -machdep gcc_x86_64 -cpp-extra-args="-include %target_dir/qvt_target.h -I%target_dir -I%t/ins" -kernel-warn-key CERT:MSC:38=inactive %s %t/ins/qvt_stubs_0.c -eva -main __QVT__MAIN__ENTRY__POINT__ -then -report-csv %t/report.ins.csv > %t/eva.ins.txt 2>&1
// RUN: %FileCheck-exact --check-prefix=DONE %s --input-file %t/eva.ins.txt
// RUN: %FileCheck-exact --check-prefix=SMALL %s --input-file %t/report.ins.csv
// RUN: %FileCheck-exact --check-prefix=COVERED %s --input-file %t/report.ins.csv

// DONE:[eva] done for function __QVT__MAIN__ENTRY__POINT__

enum colour { RED, GREEN, BLUE };

int read_sensor(int *out);
int compute(int a, int b);
enum colour pick(void);

int main(void)
{
  int v = 5;
  int r;
  enum colour c;
  int by_value[10] = {0};
  int by_result[10] = {0};
  int covering[3] = {0};
  int small[2] = {0};

  read_sensor(&v);
  by_value[v] = 1; // WRITTEN:{{.*}}eva-closed-program.c{{.}}[[@LINE]]{{.}}main{{.}}index_bound{{.}}Unknown{{.*}}
  r = compute(1, 2);
  by_result[r] = 1; // PURE:{{.*}}eva-closed-program.c{{.}}[[@LINE]]{{.}}main{{.}}index_bound{{.}}Unknown{{.*}}
  c = pick();
  covering[c] = 1; // COVERED-NOT:{{.*}}eva-closed-program.c{{.}}[[@LINE]]{{.}}{{.*}}
  small[c] = 1; // SMALL:{{.*}}eva-closed-program.c{{.}}[[@LINE]]{{.}}main{{.}}index_bound{{.}}Unknown{{.}}c < 2
  return covering[0] + small[0] + by_value[0] + by_result[0];
}
