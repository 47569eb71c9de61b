// The calls of the generated main: a function of no argument and no result is called in place;
// every other gets one wrapper "_main_gen_call_%s" that declares it, fills its parameters and
// keeps its result. Variadic arguments are not filled, except the two hidden ones, which are
// parameters of their own under -instrument.
// RUN: rm -rf %t && mkdir -p %t/plain %t/instr
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -main-generator -functions-called-in-loop custom=simple,counted,sum,take -functions-called-before-loop counted -stubs-dir %t/plain %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=CHECK,PLAIN --input-file %t/plain/__quorvanta_main.c
// RUN: qvt-stubber -stubber -instrument -main-generator -functions-called-in-loop custom=simple,counted,sum,take -functions-called-before-loop counted -stubs-dir %t/instr %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=CHECK,INSTR --input-file %t/instr/__quorvanta_main.c
// RUN: %cc-check %t/plain/__quorvanta_main.c %t/instr/__quorvanta_main.c

struct point { int x, y; };
enum mode { SLOW, FAST };
void simple(void) { }
int counted(void) { return 1; }
int sum(int n, ...) { return n; }
void take(struct point *p, enum mode m, double d) { p->x = m + (int)d; }

// CHECK-LABEL:/* Definition of functions */
// CHECK-EMPTY:
// CHECK-NEXT:static void _main_gen_call_counted(void)
// CHECK-NEXT:{
// CHECK-NEXT:    extern __QVT__SINT32 counted(__QVT__VOID);
// CHECK-EMPTY:
// CHECK-NEXT:    __QVT__SINT32 __ret__;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* call it */
// CHECK-NEXT:    __ret__ = counted();
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:static void _main_gen_call_sum(void)
// CHECK-NEXT:{
// PLAIN-NEXT:    extern __QVT__SINT32 sum(__QVT__SINT32, ... );
// INSTR-NEXT:    extern __QVT__SINT32 sum(__QVT__SINT32, __QVT__SINT32, [[VARARG:__QVT__g__[0-9]+]], ... );
// CHECK-EMPTY:
// CHECK-NEXT:    __QVT__SINT32 __ret__;
// CHECK-NEXT:    __QVT__SINT32 __arg__0;
// INSTR-NEXT:    __QVT__SINT32 __arg__1;
// INSTR-NEXT:    [[VARARG]] __arg__2;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    __arg__0 = _main_gen_init_g{{[0-9]+}}();
// INSTR-NEXT:    __arg__1 = _main_gen_init_g{{[0-9]+}}();
// INSTR-NEXT:    /* pointer */
// INSTR:    /* Warning: function sum's varargs are not processed */
// PLAIN-NEXT:    /* Warning: function sum's varargs are not processed */
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* call it */
// PLAIN-NEXT:    __ret__ = sum(__arg__0);
// INSTR-NEXT:    __ret__ = sum(__arg__0, __arg__1, __arg__2);
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:static void _main_gen_call_take(void)
// CHECK-NEXT:{
// CHECK-NEXT:    extern __QVT__VOID take([[PTR:__QVT__g__[0-9]+]], enum mode, __QVT__FLOAT64);
// CHECK-EMPTY:
// CHECK-NEXT:    [[PTR]] __arg__0;
// CHECK-NEXT:    enum mode __arg__1;
// CHECK-NEXT:    __QVT__FLOAT64 __arg__2;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* pointer */
// CHECK:    __arg__1 = _main_gen_init_g{{[0-9]+}}();
// CHECK-NEXT:    __arg__2 = _main_gen_init_g{{[0-9]+}}();
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* call it */
// CHECK-NEXT:    take(__arg__0, __arg__1, __arg__2);
// CHECK-NEXT:}
// CHECK-EMPTY:

// CHECK-LABEL:void main(void)
// CHECK-NEXT:{
// CHECK:    /* call of initialization function counted */
// CHECK-NEXT:    {
// CHECK-NEXT:        _main_gen_call_counted();
// CHECK-NEXT:    }
// CHECK:        /* call of function simple */
// CHECK-NEXT:        if ({{.*}})
// CHECK-NEXT:        { /* call it */
// CHECK-NEXT:            extern __QVT__VOID simple(__QVT__VOID);
// CHECK-EMPTY:
// CHECK-NEXT:            simple();
// CHECK-NEXT:        }
// CHECK-NEXT:{{ {8}$}}
// CHECK-NEXT:        /* call of function counted */
// CHECK-NEXT:        if ({{.*}})
// CHECK-NEXT:        {
// CHECK-NEXT:            _main_gen_call_counted();
// CHECK-NEXT:        }
// CHECK-NOT:{{.*}}_main_gen_call_simple{{.*}}
