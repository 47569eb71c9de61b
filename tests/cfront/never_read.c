// k_never_read marks a global that no body reads: a variable that is only
// assigned, or not used at all. Reading it, taking its address, or naming it
// in the initialiser of another global counts as a read.
// RUN: qvt-cfront %s -o %t.ir
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt

int only_written;
int unused;
int read_in_body;
int address_taken;
int in_initialiser;
int *ptr = &in_initialiser;
static int static_written;
extern int extern_unused;

void f(int *p)
{
    only_written = 1;
    static_written = read_in_body;
    f(&address_taken);
    *p = 0;
}

// CHECK-LABEL:global table:
// CHECK:  var int only_written [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_never_read
// CHECK-NEXT:      @k_source_coordinates {{.*}}
// CHECK-NEXT:  var int unused [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_never_read
// CHECK-NEXT:      @k_source_coordinates {{.*}}
// CHECK-NEXT:  var int read_in_body [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates {{.*}}
// CHECK-NEXT:  var int address_taken [addr taken] [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates {{.*}}
// CHECK-NEXT:  var int in_initialiser [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates {{.*}}
// CHECK-NEXT:  var int * ptr [defined, align 64] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_never_read
// CHECK-NEXT:      @k_source_coordinates {{.*}}
// CHECK-NEXT:  var int extern_unused [extern] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates {{.*}}
// CHECK-NEXT:      @k_never_read
// CHECK-LABEL:file table:
// CHECK-NEXT:  var int static_written [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_static_sym
// CHECK-NEXT:      @k_never_read
