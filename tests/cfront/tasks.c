// -tasks marks the named functions with k_is_a_task, statics included; a
// name that is no function of the program is reported.
// RUN: qvt-cfront -tasks control,logger,missing %s -o %t.ir 2> %t.err
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt
// RUN: %FileCheck-exact --check-prefix=WARN %s < %t.err

void control(void) {}
static void logger(void) {}
void idle(void) { logger(); }

// CHECK-LABEL:global table:
// CHECK:  proc void (void) control [body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates {{.*}}
// CHECK-NEXT:      @k_orig_ret_type_name "void @@"
// CHECK-NEXT:      @k_orig_param_types_names
// CHECK-NEXT:      @k_is_a_task
// CHECK-NEXT:  proc void (void) idle [body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NOT:k_is_a_task
// CHECK-LABEL:file table:
// CHECK-NEXT:  proc void (void) logger [body] [userdef]  /* #{{[0-9]+}} */
// CHECK:      @k_is_a_task

// WARN:qvt-cfront: warning: task 'missing' is not a function of the program
