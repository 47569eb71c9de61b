// With -instrument the two hidden parameters of a variadic function are ordinary parameters:
// shown in the signature and treated by the stub like any other; the variable-argument block
// follows, and every stub asks the instrumenter to take it over.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -instrument -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

int say(const char *fmt, ...);

// CHECK-LABEL: * say
// CHECK-NEXT: */
// CHECK-EMPTY:
// CHECK-NEXT:#pragma QUORVANTA_AUTO_STUB "say"
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__SINT32 say(__QVT__g__{{[0-9]+}} P_0, __QVT__SINT32 P_1, __QVT__g__{{[0-9]+}} P_2, ... )
// CHECK-NEXT:{
// CHECK-NEXT:    /* parameter 0 is constant */
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 1 is constant */
// CHECK-EMPTY:
// CHECK-NEXT:    /* parameter 2 */
// CHECK-EMPTY:
// CHECK-NEXT:    {
// CHECK-NEXT:        __QVT__CHAR *p_addr = (__QVT__CHAR *)&P_2;
// CHECK-NEXT:        while (qvt_random_int)
// CHECK-NEXT:        {
// CHECK-NEXT:            p_addr += qvt_random_int;
// CHECK-NEXT:            if (qvt_random_int)
// CHECK-NEXT:            {
// CHECK-NEXT:                p_addr = *(__QVT__CHAR **)p_addr;
// CHECK-NEXT:            }
// CHECK-NEXT:            *p_addr = (__QVT__CHAR)qvt_random_char;
// CHECK-NEXT:        }
// CHECK-NEXT:    }
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
