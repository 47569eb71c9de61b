// A C error: clang's diagnostic as clang prints it, exit status 1, and no
// output file, even when another file of the command line is correct.
// RUN: rm -f %t.ir
// RUN: not qvt-cfront %S/Inputs/link_def.c %s -o %t.ir 2> %t.err
// RUN: %FileCheck-exact %s < %t.err
// RUN: test ! -e %t.ir

int broken(void)
{
    return 1
}

// CHECK:{{.*}}syntax_error.c:10:13: error: expected ';' after return statement
// CHECK-NEXT:    return 1
// CHECK-NEXT:            ^
// CHECK-NEXT:            ;
// CHECK-NEXT:1 error generated.
