// A program with a C main of its own keeps it: no main file, and a warning that says whether
// the initialisation and finalisation functions are dropped (silent with -instrument).
// RUN: rm -rf %t && mkdir -p %t/plain %t/edge %t/instr
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -main-generator -stubs-dir %t/plain %t/p.ir %t/o.ir 2> %t/plain.txt
// RUN: %FileCheck-exact %s --check-prefix=PLAIN --input-file %t/plain.txt
// RUN: not ls %t/plain/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -functions-called-after-loop finish -stubs-dir %t/edge %t/p.ir %t/o.ir 2> %t/edge.txt
// RUN: %FileCheck-exact %s --check-prefix=EDGE --input-file %t/edge.txt
// RUN: qvt-stubber -stubber -instrument -main-generator -functions-called-after-loop finish -stubs-dir %t/instr %t/p.ir %t/o.ir 2> %t/instr.txt
// RUN: %FileCheck-exact %s --check-prefix=INSTR --input-file %t/instr.txt
// RUN: not ls %t/instr/__quorvanta_main.c

void finish(void) { }
int main(void) { finish(); return 0; }

// PLAIN:Generating the Main ...
// PLAIN-EMPTY:
// PLAIN-NEXT:warning: a main procedure already exists.
// PLAIN-NEXT:|                 No main will be generated: the existing one will be used...
// PLAIN-NOT:{{.}}

// EDGE:Generating the Main ...
// EDGE-EMPTY:
// EDGE-NEXT:warning: a main procedure already exists.
// EDGE-NEXT:|                 No main will be generated: the existing main will be used and the initialization/finalization function(s) will not be called...
// EDGE-NOT:{{.}}

// INSTR:Generating the Main ...
// INSTR-EMPTY:
// INSTR-NOT:{{.}}
