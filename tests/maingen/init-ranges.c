// Globals with ranges are initialised within them: a scalar drawn and bounded; a pointer null,
// maybe null, to one object or to an array; a function pointer to the stub of its signature, a
// void pointer, or one to a struct that is only declared, to a byte. In a struct the fields that
// no range names come first, with random content when the main writes the variable and none
// when only its ranges ask for it; then the named ones, pointers first and scalars last, a field
// of an anonymous union through its member.
// RUN: rm -rf %t && mkdir -p %t/main %t/ranges
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -main-generator -drs-file %S/Inputs/init-ranges.txt -variables-written-before-loop custom=level,none,one,many,r,cb,vp,hp -functions-called-in-loop custom= -stubs-dir %t/main %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=CHECK,MAIN --input-file %t/main/__quorvanta_main.c
// RUN: qvt-stubber -stubber -drs-gen -main-generator -drs-file %S/Inputs/init-ranges.txt -variables-written-before-loop custom= -functions-called-in-loop custom= -stubs-dir %t/ranges %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=CHECK,RANGES --input-file %t/ranges/__quorvanta_main.c
// RUN: %cc-check %t/main/__quorvanta_main.c %t/ranges/__quorvanta_main.c

struct rec { int *data; int count; union { int a; float b; }; unsigned bits : 3; double w; };
int level;
int *none;
int *one;
int *many;
struct rec r;
int (*cb)(int);
void *vp;
struct hidden *hp;
int use(void) { return level + *none + *one + *many + r.count + r.a + r.bits + (int)r.w + *r.data + cb(1) + (vp != 0) + (hp != 0); }

// MAIN-LABEL:static void _main_gen_init_sym_level(void)
// MAIN:    /* initialization with drs range */
// MAIN-NEXT:    {
// MAIN-NEXT:        __QVT__SINT32 _main_gen_tmp_0;
// MAIN-NEXT:        _main_gen_tmp_0 = qvt_random_g_[[INT:[0-9]+]];
// MAIN-NEXT:        unchecked_assert(_main_gen_tmp_0 >= 1);
// MAIN-NEXT:        unchecked_assert(_main_gen_tmp_0 <= 9);
// MAIN-NEXT:        level = _main_gen_tmp_0;
// MAIN-NEXT:    }
// MAIN-LABEL:static void _main_gen_init_sym_none(void)
// MAIN:    /* initialization with drs range */
// MAIN-NEXT:    {
// MAIN-NEXT:        none = 0;
// MAIN-NEXT:    }
// MAIN-LABEL:static void _main_gen_init_sym_one(void)
// MAIN:    /* initialization with drs range */
// MAIN-NEXT:    {
// MAIN-NEXT:        if (qvt_random_int)
// MAIN-NEXT:        {
// MAIN-NEXT:            one = 0;
// MAIN-NEXT:        }
// MAIN-NEXT:        else
// MAIN-NEXT:        {
// MAIN-NEXT:            static __QVT__SINT32 _main_gen_tmp_1;
// MAIN-NEXT:            __QVT__SINT32 _main_gen_tmp_2;
// MAIN-NEXT:            _main_gen_tmp_2 = qvt_random_g_[[INT]];
// MAIN-NEXT:            unchecked_assert(_main_gen_tmp_2 >= 2);
// MAIN-NEXT:            unchecked_assert(_main_gen_tmp_2 <= 3);
// MAIN-NEXT:            _main_gen_tmp_1 = _main_gen_tmp_2;
// MAIN-NEXT:            one = &(_main_gen_tmp_1);
// MAIN-NEXT:        }
// MAIN-NEXT:    }
// MAIN-LABEL:static void _main_gen_init_sym_many(void)
// MAIN:    /* initialization with drs range */
// MAIN-NEXT:    {
// MAIN-NEXT:        {
// MAIN-NEXT:            static __QVT__SINT32 _main_gen_tmp_3[4];
// MAIN-NEXT:            __QVT__SINT64 _main_gen_tmp_4;
// MAIN-NEXT:            for (_main_gen_tmp_4 = 0; _main_gen_tmp_4 < 4; _main_gen_tmp_4++)
// MAIN-NEXT:            {
// MAIN-NEXT:                /* random */
// MAIN-NEXT:                _main_gen_tmp_3[_main_gen_tmp_4] = _main_gen_init_g[[INT]]();
// MAIN-NEXT:            }
// MAIN-NEXT:            many = &(_main_gen_tmp_3)[0];
// MAIN-NEXT:        }
// MAIN-NEXT:    }
// MAIN-LABEL:static void _main_gen_init_sym_r(void)
// MAIN:    /* initialization with drs range */
// MAIN-NEXT:    {
// MAIN-NEXT:        {
// MAIN-NEXT:            __QVT__UINT32 bitf;
// MAIN-NEXT:            bitf = _main_gen_init_g{{[0-9]+}}();
// MAIN-NEXT:            unchecked_assert(bitf <= 7);
// MAIN-NEXT:            r.bits = bitf;
// MAIN-NEXT:        }
// MAIN-NEXT:        r.w = _main_gen_init_g{{[0-9]+}}();
// MAIN-NEXT:        {
// MAIN-NEXT:            {
// MAIN-NEXT:                static __QVT__SINT32 _main_gen_tmp_5;
// MAIN-NEXT:                /* random */
// MAIN-NEXT:                _main_gen_tmp_5 = _main_gen_init_g[[INT]]();
// MAIN-NEXT:                r.data = &(_main_gen_tmp_5);
// MAIN-NEXT:            }
// MAIN-NEXT:        }
// MAIN-NEXT:        {
// MAIN-NEXT:            __QVT__SINT32 _main_gen_tmp_6;
// MAIN-NEXT:            _main_gen_tmp_6 = qvt_random_g_[[INT]];
// MAIN-NEXT:            unchecked_assert(_main_gen_tmp_6 >= -1);
// MAIN-NEXT:            unchecked_assert(_main_gen_tmp_6 <= 1);
// MAIN-NEXT:            r.qvtunnsubs0.a = _main_gen_tmp_6;
// MAIN-NEXT:        }
// MAIN-NEXT:        {
// MAIN-NEXT:            __QVT__SINT32 _main_gen_tmp_7;
// MAIN-NEXT:            _main_gen_tmp_7 = qvt_random_g_[[INT]];
// MAIN-NEXT:            unchecked_assert(_main_gen_tmp_7 >= 0);
// MAIN-NEXT:            unchecked_assert(_main_gen_tmp_7 <= 7);
// MAIN-NEXT:            r.count = _main_gen_tmp_7;
// MAIN-NEXT:        }
// MAIN-NEXT:    }
// MAIN-NEXT:}
// MAIN-EMPTY:

// RANGES-LABEL:static void _main_gen_init_sym_r(void)
// RANGES:    /* initialization with drs range */
// RANGES-NEXT:    {
// RANGES-NEXT:        {
// RANGES-NEXT:            {
// RANGES-NEXT:                static __QVT__SINT32 _main_gen_tmp_[[DATA:[0-9]+]];

// CHECK-LABEL:static void _main_gen_init_sym_cb(void)
// CHECK:    /* initialization with drs range */
// CHECK-NEXT:    {
// CHECK-NEXT:        {
// CHECK-NEXT:            cb = &_stub_p_g_{{[0-9]+}};
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-LABEL:static void _main_gen_init_sym_vp(void)
// CHECK:    /* initialization with drs range */
// CHECK-NEXT:    {
// CHECK-NEXT:        {
// CHECK-NEXT:            static __QVT__SINT8 _main_gen_tmp_[[VP:[0-9]+]];
// CHECK-NEXT:            /* random */
// CHECK-NEXT:            _main_gen_tmp_[[VP]] = _main_gen_init_g{{[0-9]+}}();
// CHECK-NEXT:            vp = &(_main_gen_tmp_[[VP]]);
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-NEXT:}
// CHECK-LABEL:static void _main_gen_init_sym_hp(void)
// CHECK:    /* initialization with drs range */
// CHECK-NEXT:    {
// CHECK-NEXT:        {
// CHECK-NEXT:            static __QVT__SINT8 _main_gen_tmp_[[HP:[0-9]+]];
// CHECK-NEXT:            /* random */
// CHECK-NEXT:            _main_gen_tmp_[[HP]] = _main_gen_init_g{{[0-9]+}}();
// CHECK-NEXT:            hp = &(_main_gen_tmp_[[HP]]);
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-NEXT:}
