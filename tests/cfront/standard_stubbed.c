// An extern variable declared only in system headers is standard-stubbed
// (flag 8 in the IR file); one the user declares is not, even if a system
// header declares it too. Unused system declarations don't enter at all.
// RUN: qvt-cfront %s -o %t.ir
// RUN: %FileCheck-exact %s < %t.ir
#include <stdio.h>
#include <unistd.h>

extern char **environ;
extern int user_only;

int use(void)
{
    return fileno(stdin) + (environ != 0) + user_only;
}

// CHECK-NOT:"stdout"
// CHECK:sym {{[0-9]+}} var {{[0-9]+}} "stdin" 9 -
// CHECK:sym {{[0-9]+}} var {{[0-9]+}} "environ" 1 -
// CHECK:sym {{[0-9]+}} var {{[0-9]+}} "user_only" 1 -
// CHECK-NOT:"stdout"
