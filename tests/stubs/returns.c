// The return in both forms: a qualified type keeps its name in the volatile source outside the
// worst kind, an enum is clamped to its enumerators, pointers and structs start without value.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

#pragma QUORVANTA_WORST "k_worst"

enum colour { RED = -1, GREEN, BLUE = 7 };
struct pt { int x; };
const int k_const(void);
const int k_worst(int *p);
enum colour pick(void);
char *name_of(int id);
struct pt where(void);

// CHECK-LABEL: * k_const
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-NEXT:#pragma QUORVANTA_POLYMORPHIC "k_const"
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__g__[[CONST:[0-9]+]] k_const(__QVT__VOID)
// CHECK-NEXT:{
// CHECK-NEXT:    /* function is pure */
// CHECK-EMPTY:
// CHECK-NEXT:    /* random return value */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        volatile __QVT__g__[[CONST]] real_random_for_return  = 0;
// CHECK-NEXT:        __QVT__g__[[CONST]] random_for_return = real_random_for_return;
// CHECK-NEXT:        return random_for_return;
// CHECK-NEXT:    }
// CHECK-NEXT:}

// CHECK-LABEL: * k_worst
// CHECK:__QVT__g__[[CONST]] k_worst(__QVT__g__{{[0-9]+}} P_0)
// CHECK:    /* random return value */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        volatile __QVT__SINT32 random_for_return  = 0;
// CHECK-NEXT:        return random_for_return;
// CHECK-NEXT:    }
// CHECK-NEXT:}

// CHECK-LABEL: * pick
// CHECK:enum colour pick(__QVT__VOID)
// CHECK-NEXT:{
// CHECK-NEXT:    /* function is pure */
// CHECK-EMPTY:
// CHECK-NEXT:    /* random return value */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        volatile enum colour real_random_for_return  = 0;
// CHECK-NEXT:        enum colour random_for_return = real_random_for_return;
// CHECK-NEXT:{{ {8}$}}
// CHECK-NEXT:        /* range value according to enum bounds */
// CHECK-NEXT:        unchecked_assert(random_for_return >= -1);
// CHECK-NEXT:        unchecked_assert(random_for_return <= 7);
// CHECK-NEXT:{{ {8}$}}
// CHECK-NEXT:        return random_for_return;
// CHECK-NEXT:    }
// CHECK-NEXT:}

// CHECK-LABEL: * name_of
// CHECK:        volatile __QVT__g__[[PTR:[0-9]+]] real_random_for_return ;
// CHECK-NEXT:        __QVT__g__[[PTR]] random_for_return = real_random_for_return;

// CHECK-LABEL: * where
// CHECK:        volatile struct pt real_random_for_return ;
// CHECK-NEXT:        struct pt random_for_return = real_random_for_return;
