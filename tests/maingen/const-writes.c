// Const objects: C refuses to assign them. A struct or union with a const member is filled
// member by member in place, the const member through a non-const view; a const type's init
// function builds its value in a plain variable; an undefined extern const gets an empty init
// function; a const result is kept in a plain variable.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -main-generator -drs-file %S/Inputs/const-ranges.txt -variables-written-before-loop custom=ek,cfg,bx -functions-called-in-loop custom=twice -stubs-dir %t/out %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/out/__quorvanta_main.c
// RUN: %cc-check %t/out/__quorvanta_main.c

struct conf { const int limit; int count; };
struct box { struct conf inner; int *p; };
extern const int ek;
struct conf cfg;
struct box bx;
const int twice(struct conf c) { return c.limit * 2; }
int use(void) { return ek + cfg.count + bx.inner.limit + twice(cfg); }

// CHECK-LABEL:/* Definition of init procedures */
// CHECK-EMPTY:
// CHECK-NEXT:extern __QVT__SINT32 _main_gen_init_g[[INT:[0-9]+]](void);
// CHECK-EMPTY:
// CHECK-NEXT:extern [[CINT_NAME:__QVT__g__[0-9]+]] _main_gen_init_g[[CINT:[0-9]+]](void);
// CHECK-EMPTY:
// CHECK-NEXT:[[CINT_NAME]] _main_gen_init_g[[CINT]](void)
// CHECK-NEXT:{
// CHECK-NEXT:    __QVT__SINT32 x;
// CHECK-NEXT:    /* base type */
// CHECK-NEXT:    x = qvt_random_g_[[INT]];
// CHECK-NEXT:    return x;
// CHECK-NEXT:}

// CHECK-LABEL:static void _main_gen_init_sym_ek(void)
// CHECK-NEXT:{
// CHECK-NEXT:    extern [[CINT_NAME]] ek;
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:static void _main_gen_init_sym_cfg(void)
// CHECK-NEXT:{
// CHECK-NEXT:    extern struct conf cfg;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* initialization with drs range */
// CHECK-NEXT:    {
// CHECK-NEXT:        (*(__QVT__SINT32 *)&cfg.limit) = _main_gen_init_g[[CINT]]();
// CHECK-NEXT:        {
// CHECK-NEXT:            __QVT__SINT32 _main_gen_tmp_0;
// CHECK-NEXT:            _main_gen_tmp_0 = qvt_random_g_[[INT]];
// CHECK-NEXT:            unchecked_assert(_main_gen_tmp_0 >= 0);
// CHECK-NEXT:            unchecked_assert(_main_gen_tmp_0 <= 7);
// CHECK-NEXT:            cfg.count = _main_gen_tmp_0;
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-NEXT:}

// CHECK-LABEL:    extern struct box bx;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* initialization with random value */
// CHECK-NEXT:    {
// CHECK-NEXT:        /* struct/union type */
// CHECK-NEXT:        /* pointer */
// CHECK:            bx.p = QVT_TRUE() ? 0 : &_main_gen_tmp_1[ARRAY_NBELEM(__QVT__SINT32) / 2];
// CHECK-NEXT:        }
// CHECK-NEXT:        /* struct/union type */
// CHECK-NEXT:        (*(__QVT__SINT32 *)&bx.inner.limit) = _main_gen_init_g[[INT]]();
// CHECK-NEXT:        bx.inner.count = _main_gen_init_g[[INT]]();
// CHECK-NEXT:    }
// CHECK-NEXT:}

// CHECK-LABEL:static void _main_gen_call_twice(void)
// CHECK-NEXT:{
// CHECK-NEXT:    extern [[CINT_NAME]] twice(struct conf);
// CHECK-EMPTY:
// CHECK-NEXT:    __QVT__SINT32 __ret__;
// CHECK-NEXT:    struct conf __arg__0;
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* struct/union type */
// CHECK-NEXT:    (*(__QVT__SINT32 *)&__arg__0.limit) = _main_gen_init_g[[INT]]();
// CHECK-NEXT:    __arg__0.count = _main_gen_init_g[[INT]]();
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* call it */
// CHECK-NEXT:    __ret__ = twice(__arg__0);
// CHECK-NEXT:}
