// Names given in options are checked against the program: tasks must be
// defined functions without parameters, critical-section functions must be
// defined or of the form void f(void), and modules of the temporal exclusions
// file must be defined tasks. Every problem is an error; the run goes on.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront -tasks task_a %s -o %t/p.ir
// RUN: printf 'task_a plain\nghost\n' > %t/temporal.txt
// RUN: not qvt-stubber -stubber -stubs-dir %t/out -tasks task_a,with_arg,undef_task,nowhere -critical-section-begin task_a:l1,hook:l2,returns_int:l3,nolabel -critical-section-end plain:l4 -temporal-exclusions-file %t/temporal.txt %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s < %t/err.txt
// RUN: %cc-check %t/out/qvt_stub_types.h

void task_a(void) {}
void with_arg(int x) { (void)x; }
void undef_task(void);
void hook(void);
int returns_int(void);
void plain(void) { undef_task(); hook(); returns_int(); }

// CHECK:error: Verifier found an error in parameter -entry-points: task 'with_arg' has non-void prototype
// CHECK-NEXT:error: Verifier found an error in parameter -entry-points: task "undef_task" must be a userdef function without parameters
// CHECK-NEXT:error: Verifier found an error in parameter -entry-points: task "nowhere" must be a userdef function without parameters
// CHECK-NEXT:error: Verifier found an error in parameter -critical-section: function "returns_int" must be a userdef function
// CHECK-NEXT:error: Verifier found an error in parameter -temporal-exclusions: module "plain" must be a task
// CHECK-NEXT:error: Verifier found an error in parameter -temporal-exclusions: module "ghost" must be userdef
// CHECK:Error message explanation:
