// k_inline marks inline functions; k_builtin marks the compiler's own
// __builtin_ functions only: a declared malloc is an ordinary function.
// Local variables, static ones included, stay in the function's table.
// RUN: qvt-cfront %s -o %t.ir
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt

void *malloc(unsigned long n);

static inline int square(int x) { return x * x; }
inline int cube(int x);

int compute(int x)
{
    static int calls;
    calls++;
    if (__builtin_expect(x > 100, 0))
        return (int)(long)malloc(8);
    return square(x) + calls;
}

// CHECK-LABEL:global table:
// CHECK:  proc void * (unsigned long) malloc [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NOT:      @k_builtin
// CHECK:  proc int (int) cube [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK:      @k_inline
// CHECK:  proc long (long, long) __builtin_expect [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK:      @k_builtin
// CHECK-LABEL:file table:
// CHECK-NEXT:  proc int (int) square [body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_static_sym
// CHECK:      @k_inline
// CHECK-NOT:calls
// CHECK-LABEL:int compute(int x)
// CHECK-NEXT:{
// CHECK-NEXT:    var int calls [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:        @k_static_sym
