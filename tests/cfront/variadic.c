// A variadic function type carries two hidden trailing parameters, the
// count (int) and the argument array (void **); its definition has them as
// the last two parameters, with the names the analysis target knows. (Plain
// char is signed on this target, and the IR has one signed 8-bit integer.)
// RUN: qvt-cfront %s -o %t.ir
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt

int report(const char *fmt, ...);

int sum(int n, ...)
{
    return n + report("%d", n);
}

// CHECK-LABEL:global table:
// CHECK:  proc int (const signed char *, int, void * *, ...) report [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates "{{.*}}variadic.c" 9 5
// CHECK-NEXT:      @k_orig_ret_type_name "int @@"
// CHECK-NEXT:      @k_orig_param_types_names "const char *@@"
// CHECK:  proc int (int, int, void * *, ...) sum [body] [userdef]  /* #{{[0-9]+}} */
// CHECK-LABEL:int sum(int n, int __quorvanta_nb_varargs, void * * __quorvanta_vararg)
