// scripts/eva.sh on a program whose main takes argv, with the C library left to Frama-C
// (-analyser-libc): main gets an argv of strings, so the code after the use of argv is reached
// and argv[1] is valid once argc was checked; exit ends the paths that call it; the block that
// malloc returns is valid; the program's own undefined function keeps its stub, whose unknown
// result raises the only alarms, on the index. Reachable are the entry, main and the stub. The
// undefined globals (trace, and stderr of the C library) are left to Eva, without the file of
// _extern_init. With a task, the task calls of the generated entry point follow a call of main
// with its argv, and the task is reached; a library starts at the generated entry point, which
// calls the generated main.
// REQUIRES: framac
// RUN: rm -rf %t && mkdir -p %t/stubs %t/tasks %t/lib
// RUN: qvt-cfront -analyser-libc %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact --check-prefix=STUBS %s --input-file %t/err.txt
// RUN: env FRAMAC=%frama-c %src_root/scripts/eva.sh -stubs %t/stubs -csv %t/report.csv %s > %t/summary.txt
// RUN: %FileCheck-exact --check-prefix=SUMMARY %s --input-file %t/summary.txt
// RUN: %FileCheck-exact --check-prefix=REACHED %s --input-file %t/report.csv
// RUN: %FileCheck-exact --check-prefix=NOALARM %s --input-file %t/report.csv
// RUN: qvt-cfront -analyser-libc -tasks worker %s -o %t/t.ir
// RUN: qvt-stubber -stubber -tasks worker -stubs-dir %t/tasks %t/t.ir %t/t.out.ir 2> %t/err.tasks.txt
// RUN: env FRAMAC=%frama-c %src_root/scripts/eva.sh -stubs %t/tasks -csv %t/tasks.csv %s > %t/summary.tasks.txt
// RUN: %FileCheck-exact --check-prefix=TASKS %s --input-file %t/summary.tasks.txt
// RUN: qvt-cfront %src_root/examples/library/queue.c %src_root/examples/library/drain.c -o %t/lib.ir
// RUN: qvt-stubber -stubber -main-generator -stubs-dir %t/lib %t/lib.ir %t/lib.out.ir 2> %t/err.lib.txt
// RUN: env FRAMAC=%frama-c %src_root/scripts/eva.sh -stubs %t/lib -I%src_root/examples/library -csv %t/lib.csv %src_root/examples/library/queue.c %src_root/examples/library/drain.c > %t/summary.lib.txt
// RUN: %FileCheck-exact --check-prefix=LIBRARY %s --input-file %t/summary.lib.txt

// STUBS-NOT:{{.*}}malloc{{.*}}
// STUBS:* Function lookup is pure.
// STUBS-NOT:{{.*}}Function{{.*}}

// SUMMARY:entry: main (main takes arguments)
// SUMMARY-NEXT:coverage: 3 of 3 reachable functions (100.0%)
// SUMMARY-NEXT:alarms: 2: index_bound 2

// TASKS:entry: __qvt_eva_tasks (the program has tasks, main takes arguments)
// TASKS-NEXT:coverage: {{[0-9]+}} of {{[0-9]+}} reachable functions (100.0%)

// LIBRARY:entry: __QVT__MAIN__ENTRY__POINT__ (the generated main)
// LIBRARY-NEXT:coverage: {{([0-9]+)}} of {{([0-9]+)}} reachable functions (100.0%)

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int lookup(const char *key);
extern int trace;
int worker_runs;

void worker(void)
{
  worker_runs++;
}

int main(int argc, char **argv)
{
  int table[4] = {0};
  int *slot = 0;
  size_t n;
  char *copy;
  if (argc > 2)
    slot = &table[1];
  if (!slot)
    exit(2);
  if (trace)
    fputs("start\n", stderr);
  *slot = 1; // NOALARM-NOT:{{.*}}eva-script.c{{.}}[[@LINE]]{{.}}{{.*}}
  n = strlen(argv[1]);
  copy = malloc(n + 1);
  if (!copy)
    exit(1);
  copy[0] = argv[1][0]; // NOALARM-NOT:{{.*}}eva-script.c{{.}}[[@LINE]]{{.}}{{.*}}
  table[lookup(copy)] = 1; // REACHED:{{.*}}eva-script.c{{.}}[[@LINE]]{{.}}main{{.}}index_bound{{.}}Unknown{{.}}tmp < 4
  free(copy);
  return table[0];
}
