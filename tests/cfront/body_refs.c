// Every symbol reference of a body: a direct call names its callee through a
// load-constant of the symbol (shown as a plain call), a function or variable
// whose address is taken is a load-constant of its symbol (shown "&name"), a
// call through a pointer calls an expression, and any other use of a variable
// is the variable itself. Blocks follow the source.
// RUN: qvt-cfront %s -o %t.ir
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt
// RUN: %FileCheck-exact --check-prefix=RAW %s < %t.ir

int target_fn(int);
int (*fp)(int);
int counter;
int table[4];

int run(int x)
{
    int (*local)(int) = target_fn;
    fp = &target_fn;
    {
        int inner = counter + table[x];
        counter = inner;
    }
    return target_fn(x) + fp(x) + local(1) + *(&counter);
}

// CHECK-LABEL:int run(int x)
// CHECK-NEXT:{
// CHECK-NEXT:    var int (int) * local  /* #{{[0-9]+}} */
// CHECK-NEXT:        @k_source_coordinates "{{.*}}body_refs.c" 18 11
// CHECK-NEXT:    local = &target_fn;
// CHECK-NEXT:    =(fp, &target_fn);
// CHECK-NEXT:    {
// CHECK-NEXT:        var int inner  /* #{{[0-9]+}} */
// CHECK-NEXT:            @k_source_coordinates "{{.*}}body_refs.c" 21 13
// CHECK-NEXT:        inner = (counter + [](table, x));
// CHECK-NEXT:        =(counter, inner);
// CHECK-NEXT:    }
// CHECK-NEXT:    return (((target_fn(x) + (*fp)(x)) + (*local)(1)) + *&counter);
// CHECK-NEXT:}

// The call's address operand is a load-constant (ldc) of the procedure's symbol.
// RAW:sym [[F:[0-9]+]] proc {{[0-9]+}} "target_fn" 1 - 0 0
// RAW:instr ( ret {{.*}} ( cal {{[0-9]+}} - 2 ( ldc {{[0-9]+}} - p:[[F]]:0 0 ) v:{{[0-9]+}} ) {{.*}}
