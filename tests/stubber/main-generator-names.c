// Names of the main generator's options that the program lacks are warnings:
// the status stays 0, and in instrumenting mode they are silent.
// RUN: rm -rf %t && mkdir -p %t/out %t/instr
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -main-generator -stubs-dir %t/out -variables-written-before-loop custom=counter,no_var -variables-written-in-loop custom=step,missing_v -functions-called-in-loop custom=work,missing_f -functions-called-before-loop setup,no_init -functions-called-after-loop no_fini %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s < %t/err.txt
// RUN: qvt-stubber -stubber -instrument -main-generator -stubs-dir %t/instr -variables-written-before-loop custom=no_var -functions-called-before-loop no_init %t/p.ir %t/p.instr.ir 2> %t/instr.txt
// RUN: %FileCheck-exact --allow-empty %s --check-prefix=INSTR < %t/instr.txt
// RUN: %cc-check %t/out/qvt_stub_types.h

int counter;
int step;
void setup(void) { counter = 0; }
void work(void) { counter += step; }

// CHECK:warning: variable "no_var" does not exist. Fix option -variables-written-before-loop (-main-generator-writes-variables).
// CHECK-NEXT:warning: variable "missing_v" does not exist. Fix option -variables-written-in-loop.
// CHECK-NEXT:warning: function "missing_f" does not exist. Fix option -functions-called-in-loop (-main-generator-calls).
// CHECK-NEXT:warning: Initialization function does not exist : no_init.
// CHECK-NEXT:warning: Finalization function does not exist : no_fini.
// CHECK-NOT:{{.*}}error{{.*}}

// INSTR-NOT:{{.*}}does not exist{{.*}}
