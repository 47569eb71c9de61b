// Variables with an "init" range: without a generated main _data_range_init initialises them;
// a generated main does, also when no list names them (then with no console line), and
// -no-drs-init drops the initialisation of the variables written before the loop.
// RUN: rm -rf %t && mkdir -p %t/alone %t/gen %t/nodrs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/drs-init-ranges.txt -stubs-dir %t/alone %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=ALONE --input-file %t/alone/__quorvanta_main.c
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop custom=other -drs-gen -drs-file %S/Inputs/drs-init-ranges.txt -stubs-dir %t/gen %t/p.ir %t/o.ir 2> %t/gen.txt
// RUN: %FileCheck-exact %s --check-prefix=GEN --input-file %t/gen/__quorvanta_main.c
// RUN: %FileCheck-exact %s --check-prefix=GEN-CONSOLE --input-file %t/gen.txt
// RUN: qvt-stubber -stubber -main-generator -no-drs-init -drs-gen -drs-file %S/Inputs/drs-init-ranges.txt -stubs-dir %t/nodrs %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=NODRS --input-file %t/nodrs/__quorvanta_main.c
// RUN: %cc-check %t/alone/__quorvanta_main.c %t/gen/__quorvanta_main.c %t/nodrs/__quorvanta_main.c

int speed;
int other;
int work(void) { return speed + other; }

// ALONE-LABEL:/* DRS initializations */
// ALONE-EMPTY:
// ALONE-NEXT:void _data_range_init(void)
// ALONE-NEXT:{
// ALONE-NEXT:    /* init for variable speed */
// ALONE-NEXT:    _main_gen_init_sym_speed();
// ALONE-NEXT:{{ {4}$}}
// ALONE-NEXT:}
// ALONE-EMPTY:
// ALONE-NOT:{{.}}

// GEN-LABEL:void main(void)
// GEN-NEXT:{
// GEN-NEXT:    /* Initialization of global variables */
// GEN-EMPTY:
// GEN-NEXT:    /* init for variable other */
// GEN-NEXT:    _main_gen_init_sym_other();
// GEN-NEXT:{{ {4}$}}
// GEN-NEXT:    /* init for variable speed */
// GEN-NEXT:    _main_gen_init_sym_speed();
// GEN-NEXT:{{ {4}$}}
// GEN-NEXT:    while (QVT_TRUE())
// GEN-NOT:{{.*}}_data_range_init{{.*}}
// GEN-CONSOLE:Generating init for variable: other
// GEN-CONSOLE-NEXT:Generating call to function: work
// GEN-CONSOLE-NOT:{{.}}

// NODRS-LABEL:void main(void)
// NODRS-NEXT:{
// NODRS-NEXT:    /* Initialization of global variables */
// NODRS-EMPTY:
// NODRS-NEXT:    while (QVT_TRUE())
// NODRS-NOT:{{.*}}_data_range_init{{.*}}
