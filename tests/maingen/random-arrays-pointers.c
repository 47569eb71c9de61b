// Arrays and pointers are written inline. An array of arrays is one nest of loops, a dimension
// of unknown size running to a random bound, and its elements are filled in place even when
// they are structs. A pointer points into the middle of a static array of random elements, or
// is null; a pointer to void into bytes, a pointer to an array of unknown size into pointers to
// its elements, and a function pointer to the stub of its signature.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop custom=table,grid,handler,opaque,pairs,rows -functions-called-in-loop custom= -stubs-dir %t/out %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/out/__quorvanta_main.c
// RUN: %cc-check %t/out/__quorvanta_main.c

extern int table[];
int grid[3][4];
int (*handler)(int);
void *opaque;
struct pair { int a; } pairs[2];
int (*rows)[];
int use(void) { return table[0] + grid[1][2] + handler(1) + (opaque != 0) + pairs[1].a + (*rows)[0]; }

// CHECK-LABEL:/* Declaration of random variables */
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__CHAR qvt_random_char;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile int qvt_random_int;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__UINT64 qvt_random_g_[[ULONG:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__SINT32 qvt_random_g_[[INT:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__SINT8 qvt_random_g_[[SCHAR:[0-9]+]];
// CHECK-EMPTY:

// CHECK-LABEL:/* Definition of needed stubs for function pointers */
// CHECK-EMPTY:
// CHECK-NEXT:/*
// CHECK-NEXT: * _stub_p_g_[[FN:[0-9]+]]
// CHECK-NEXT: */

// CHECK-LABEL:/* Definition of variables init procedures */
// CHECK-EMPTY:
// CHECK-LABEL:static void _main_gen_init_sym_table(void)
// CHECK:    /* initialization with random value */
// CHECK-NEXT:    {
// CHECK-NEXT:        { /* array type */
// CHECK-NEXT:            __QVT__UINT64 _main_gen_tmp_0_0;
// CHECK-NEXT:{{ {12}$}}
// CHECK-NEXT:            for (_main_gen_tmp_0_0 = 0; _main_gen_tmp_0_0 < qvt_random_g_[[ULONG]]; _main_gen_tmp_0_0++)
// CHECK-NEXT:            {
// CHECK-NEXT:                /* base type */
// CHECK-NEXT:                table[_main_gen_tmp_0_0] = qvt_random_g_[[INT]];
// CHECK-NEXT:            }
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-LABEL:static void _main_gen_init_sym_grid(void)
// CHECK:    /* initialization with random value */
// CHECK-NEXT:    {
// CHECK-NEXT:        { /* array type */
// CHECK-NEXT:            __QVT__UINT64 _main_gen_tmp_1_0;
// CHECK-NEXT:{{ {12}$}}
// CHECK-NEXT:            for (_main_gen_tmp_1_0 = 0; _main_gen_tmp_1_0 < 3; _main_gen_tmp_1_0++)
// CHECK-NEXT:            {
// CHECK-NEXT:                __QVT__UINT64 _main_gen_tmp_1_1;
// CHECK-NEXT:{{ {16}$}}
// CHECK-NEXT:                for (_main_gen_tmp_1_1 = 0; _main_gen_tmp_1_1 < 4; _main_gen_tmp_1_1++)
// CHECK-NEXT:                {
// CHECK-NEXT:                    /* base type */
// CHECK-NEXT:                    grid[_main_gen_tmp_1_0][_main_gen_tmp_1_1] = qvt_random_g_[[INT]];
// CHECK-NEXT:                }
// CHECK-NEXT:            }
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-LABEL:static void _main_gen_init_sym_handler(void)
// CHECK:    /* initialization with random value */
// CHECK-NEXT:    {
// CHECK-NEXT:        /* function pointer */
// CHECK-NEXT:        handler = QVT_TRUE() ? 0 : _stub_p_g_[[FN]];
// CHECK-NEXT:    }
// CHECK-LABEL:static void _main_gen_init_sym_opaque(void)
// CHECK:    /* initialization with random value */
// CHECK-NEXT:    {
// CHECK-NEXT:        /* pointer */
// CHECK-NEXT:        {
// CHECK-NEXT:            static __QVT__SINT8 _main_gen_tmp_2[ARRAY_NBELEM(__QVT__SINT8)];
// CHECK-NEXT:            __QVT__UINT64 _i_main_gen_tmp_3;
// CHECK-NEXT:            for (_i_main_gen_tmp_3 = 0; _i_main_gen_tmp_3 < ARRAY_NBELEM(__QVT__SINT8); _i_main_gen_tmp_3++)
// CHECK-NEXT:            {
// CHECK-NEXT:                _main_gen_tmp_2[_i_main_gen_tmp_3] = _main_gen_init_g[[SCHAR]]();
// CHECK-NEXT:            }
// CHECK-NEXT:            opaque = QVT_TRUE() ? 0 : &_main_gen_tmp_2[ARRAY_NBELEM(__QVT__SINT8) / 2];
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-LABEL:static void _main_gen_init_sym_pairs(void)
// CHECK:    /* initialization with random value */
// CHECK-NEXT:    {
// CHECK-NEXT:        { /* array type */
// CHECK-NEXT:            __QVT__UINT64 _main_gen_tmp_4_0;
// CHECK-NEXT:{{ {12}$}}
// CHECK-NEXT:            for (_main_gen_tmp_4_0 = 0; _main_gen_tmp_4_0 < 2; _main_gen_tmp_4_0++)
// CHECK-NEXT:            {
// CHECK-NEXT:                /* struct/union type */
// CHECK-NEXT:                pairs[_main_gen_tmp_4_0].a = _main_gen_init_g[[INT]]();
// CHECK-NEXT:            }
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-LABEL:static void _main_gen_init_sym_rows(void)
// CHECK:    /* initialization with random value */
// CHECK-NEXT:    {
// CHECK-NEXT:        /* pointer */
// CHECK-NEXT:        {
// CHECK-NEXT:            static __QVT__SINT32 * _main_gen_tmp_5[ARRAY_NBELEM(__QVT__SINT32 *)];
// CHECK-NEXT:            __QVT__UINT64 _i_main_gen_tmp_6;
// CHECK-NEXT:            for (_i_main_gen_tmp_6 = 0; _i_main_gen_tmp_6 < ARRAY_NBELEM(__QVT__SINT32 *); _i_main_gen_tmp_6++)
// CHECK-NEXT:            {
// CHECK-NEXT:                /* pointer */
// CHECK-NEXT:                {
// CHECK-NEXT:                    static __QVT__SINT32 _main_gen_tmp_7[ARRAY_NBELEM(__QVT__SINT32)];
// CHECK-NEXT:                    __QVT__UINT64 _i_main_gen_tmp_8;
// CHECK-NEXT:                    for (_i_main_gen_tmp_8 = 0; _i_main_gen_tmp_8 < ARRAY_NBELEM(__QVT__SINT32); _i_main_gen_tmp_8++)
// CHECK-NEXT:                    {
// CHECK-NEXT:                        _main_gen_tmp_7[_i_main_gen_tmp_8] = _main_gen_init_g[[INT]]();
// CHECK-NEXT:                    }
// CHECK-NEXT:                    _main_gen_tmp_5[_i_main_gen_tmp_6] = QVT_TRUE() ? 0 : &_main_gen_tmp_7[ARRAY_NBELEM(__QVT__SINT32) / 2];
// CHECK-NEXT:                }
// CHECK-NEXT:            }
// CHECK-NEXT:            rows = QVT_TRUE() ? 0 : &_main_gen_tmp_5[ARRAY_NBELEM(__QVT__SINT32 *) / 2];
// CHECK-NEXT:        }
// CHECK-NEXT:    }
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:/* Definition of functions */
