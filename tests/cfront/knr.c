// A declaration without prototype and a K&R definition have no prototype
// (args_known false, shown as "()" without "void"); a later prototype in
// another file wins over the declaration without one, with a warning that
// names both places.
// RUN: qvt-cfront %s %S/Inputs/knr_proto.c -o %t.ir 2> %t.err
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt
// RUN: %FileCheck-exact --check-prefix=WARN %s < %t.err

int later();
int never();
int twice(int);

int old_style(a, b)
    int a;
    char *b;
{
    return a + *b + later(a) + never();
}

// CHECK-LABEL:global table:
// CHECK:  proc int (int) later [body] [userdef]  /* #{{[0-9]+}} */
// CHECK:  proc int () never [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK:  proc int () old_style [body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates "{{.*}}knr.c" 14 5
// CHECK-NEXT:      @k_orig_ret_type_name "int @@"
// CHECK-NEXT:      @k_orig_param_types_names "int @@" "char *@@"
// CHECK-LABEL:int old_style(int a, {{.*}}char * b)

// WARN-NOT:later
// WARN:qvt-cfront: warning: function 'twice' is declared with different types at {{.*}}knr.c:12 and {{.*}}knr_proto.c:3
