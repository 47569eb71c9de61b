// The variable-argument block of variadic stubs; the two hidden parameters stay out of the
// signature, and a pure stub has no such block. With -instrument (INSTR) the hidden parameters
// are ordinary parameters, shown in the signature and treated like any other, the same block
// follows, and every stub asks the instrumenter to take it over.
// RUN: rm -rf %t && mkdir -p %t/stubs %t/ins
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c
// RUN: qvt-stubber -stubber -instrument -stubs-dir %t/ins %t/p.ir %t/p.ins.ir 2> %t/err.ins.txt
// RUN: %FileCheck-exact --check-prefix=INSTR %s --input-file %t/ins/qvt_stubs_0.c
// RUN: %cc-check %t/ins/qvt_stubs_0.c %t/ins/qvt_user_stubs.c

#pragma QUORVANTA_PURE "say_pure"

int say(const char *fmt, ...);
int say_pure(const char *fmt, ...);

// CHECK-LABEL: * say
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__SINT32 say(__QVT__g__{{[0-9]+}} P_0, ... )
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 is constant */
// CHECK-EMPTY:
// CHECK-NEXT:    /* varargs access */
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    {
// CHECK-NEXT:        volatile int random = 0;
// CHECK-NEXT:        volatile char random_char = 0;
// CHECK-NEXT:        int i=0;
// CHECK-NEXT:        char *tmp, *tmp2;
// CHECK-NEXT:        for (i = 0; i < __quorvanta_nb_varargs; i++)
// CHECK-NEXT:        { /* Access each variable argument */
// CHECK-NEXT:            tmp = (char *)__quorvanta_vararg[i];
// CHECK-NEXT:            tmp2 = (char *)(int)*tmp;
// CHECK-NEXT:            while (random)
// CHECK-NEXT:            { /* write random in all levels */
// CHECK-NEXT:                *tmp2 = random_char;
// CHECK-NEXT:                tmp2 += random;
// CHECK-NEXT:                tmp2 = *(char**)tmp2;
// CHECK-NEXT:            }
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-EMPTY:
// CHECK-NEXT:    /* random return value */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        volatile __QVT__SINT32 real_random_for_return  = 0;
// CHECK-NEXT:        __QVT__SINT32 random_for_return = real_random_for_return;
// CHECK-NEXT:        return random_for_return;
// CHECK-NEXT:    }
// CHECK-NEXT:}

// CHECK-LABEL: * say_pure
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-NEXT:#pragma QUORVANTA_POLYMORPHIC "say_pure"
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__SINT32 say_pure(__QVT__g__{{[0-9]+}} P_0, ... )
// CHECK-NEXT:{
// CHECK-NEXT:    /* function is pure */
// CHECK-EMPTY:
// CHECK-NEXT:    /* random return value */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        volatile __QVT__SINT32 real_random_for_return  = 0;
// CHECK-NEXT:        __QVT__SINT32 random_for_return = real_random_for_return;
// CHECK-NEXT:        return random_for_return;
// CHECK-NEXT:    }
// CHECK-NEXT:}

// INSTR-LABEL: * say
// INSTR-NEXT: */
// INSTR-EMPTY:
// INSTR-NEXT:#pragma QUORVANTA_AUTO_STUB "say"
// INSTR-EMPTY:
// INSTR-NEXT:__QVT__SINT32 say(__QVT__g__{{[0-9]+}} P_0, __QVT__SINT32 P_1, __QVT__g__{{[0-9]+}} P_2, ... )
// INSTR-NEXT:{
// INSTR-NEXT:    /* parameter 0 is constant */
// INSTR-EMPTY:
// INSTR-NEXT:    /* parameter 1 is constant */
// INSTR-EMPTY:
// INSTR-NEXT:    /* parameter 2 */
// INSTR-EMPTY:
// INSTR-NEXT:    {
// INSTR-NEXT:        __QVT__CHAR *p_addr = (__QVT__CHAR *)&P_2;
// INSTR:            *p_addr = (__QVT__CHAR)qvt_random_char;
// INSTR-NEXT:        }
// INSTR-NEXT:    }
// INSTR-EMPTY:
// INSTR-NEXT:    /* varargs access */
// INSTR-NEXT:{{ {4}$}}
// INSTR-NEXT:    {
// INSTR:    /* random return value */
// INSTR:}
// A pure stub under -instrument carries both pragmas.
// INSTR-LABEL: * say_pure
// INSTR-NEXT: */
// INSTR-EMPTY:
// INSTR-NEXT:#pragma QUORVANTA_POLYMORPHIC "say_pure"
// INSTR-EMPTY:
// INSTR-NEXT:#pragma QUORVANTA_AUTO_STUB "say_pure"
// INSTR-EMPTY:
// INSTR-NEXT:__QVT__SINT32 say_pure(__QVT__g__{{[0-9]+}} P_0, __QVT__SINT32 P_1, __QVT__g__{{[0-9]+}} P_2, ... )
// INSTR-NEXT:{
// INSTR-NEXT:    /* function is pure */
