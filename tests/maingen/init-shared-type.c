// A variable gets one init function however often the main asks for it, and variables of one
// type share the type's init function. The next file that needs that function only declares
// it. The temporaries are numbered on across variables. A variable that nothing reads gets a
// comment and no function.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop custom=first,second,p1,p2,unread -variables-written-in-loop custom=first -functions-called-in-loop custom= -stubs-dir %t/out %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefix=MAIN --input-file %t/out/__quorvanta_main.c
// RUN: %FileCheck-exact %s --check-prefix=EXTERN --input-file %t/out/qvt_stubs_1.c
// RUN: %cc-check %t/out/__quorvanta_main.c %t/out/qvt_stubs_1.c

struct cell { int v; struct cell *next; };
struct cell first, second;
extern struct cell outside;
int *p1, *p2;
int unread;
int use(void) { return first.v + second.v + outside.v + *p1 + *p2; }

// MAIN-LABEL:/* Definition of init procedures */
// MAIN-EMPTY:
// MAIN-NEXT:extern __QVT__SINT32 _main_gen_init_g[[INT:[0-9]+]](void);
// MAIN-EMPTY:
// MAIN-NEXT:extern struct cell _main_gen_init_g[[CELL:[0-9]+]](void);
// MAIN-EMPTY:
// MAIN-NEXT:__QVT__SINT32 _main_gen_init_g[[INT]](void)
// MAIN:struct cell _main_gen_init_g[[CELL]](void)
// MAIN-NEXT:{
// MAIN-NEXT:    static struct cell x;
// MAIN-NEXT:    /* struct/union type */
// MAIN-NEXT:    x.next = qvt_random_g_{{[0-9]+}}; /* break cycle */
// MAIN-NEXT:    x.v = _main_gen_init_g[[INT]]();
// MAIN-NEXT:    return x;
// MAIN-NEXT:}
// MAIN-EMPTY:
// MAIN-EMPTY:
// MAIN-NEXT:/* Definition of variables init procedures */
// MAIN-EMPTY:
// MAIN-NEXT:static void _main_gen_init_sym_first(void)
// MAIN-NEXT:{
// MAIN-NEXT:    extern struct cell first;
// MAIN-NEXT:{{ {4}$}}
// MAIN-NEXT:    /* initialization with random value */
// MAIN-NEXT:    {
// MAIN-NEXT:        first = _main_gen_init_g[[CELL]]();
// MAIN-NEXT:    }
// MAIN-NEXT:}
// MAIN-EMPTY:
// MAIN-NEXT:static void _main_gen_init_sym_second(void)
// MAIN-NEXT:{
// MAIN-NEXT:    extern struct cell second;
// MAIN-NEXT:{{ {4}$}}
// MAIN-NEXT:    /* initialization with random value */
// MAIN-NEXT:    {
// MAIN-NEXT:        second = _main_gen_init_g[[CELL]]();
// MAIN-NEXT:    }
// MAIN-NEXT:}
// MAIN-EMPTY:
// MAIN-NEXT:static void _main_gen_init_sym_p1(void)
// MAIN-NEXT:{
// MAIN-NEXT:    extern __QVT__g__[[PINT:[0-9]+]] p1;
// MAIN-NEXT:{{ {4}$}}
// MAIN-NEXT:    /* initialization with random value */
// MAIN-NEXT:    {
// MAIN-NEXT:        /* pointer */
// MAIN-NEXT:        {
// MAIN-NEXT:            static __QVT__SINT32 _main_gen_tmp_0[ARRAY_NBELEM(__QVT__SINT32)];
// MAIN-NEXT:            __QVT__UINT64 _i_main_gen_tmp_1;
// MAIN:static void _main_gen_init_sym_p2(void)
// MAIN-NEXT:{
// MAIN-NEXT:    extern __QVT__g__[[PINT]] p2;
// MAIN-NEXT:{{ {4}$}}
// MAIN-NEXT:    /* initialization with random value */
// MAIN-NEXT:    {
// MAIN-NEXT:        /* pointer */
// MAIN-NEXT:        {
// MAIN-NEXT:            static __QVT__SINT32 _main_gen_tmp_2[ARRAY_NBELEM(__QVT__SINT32)];
// MAIN-NEXT:            __QVT__UINT64 _i_main_gen_tmp_3;
// MAIN-NOT:_main_gen_init_sym_{{.*}}(void)
// MAIN-LABEL:    /* Initialization of global variables */
// MAIN:    /* init for variable unread : useless (never read) */
// MAIN-EMPTY:
// MAIN-LABEL:        /* Re-initialization of global variables */
// MAIN-EMPTY:
// MAIN-NEXT:        /* init for variable first */
// MAIN-NEXT:        _main_gen_init_sym_first();

// EXTERN-LABEL:static volatile int qvt_random_int;
// EXTERN-EMPTY:
// EXTERN-EMPTY:
// EXTERN-NEXT:/* Definition of needed stubs for function pointers */
// EXTERN-EMPTY:
// EXTERN-EMPTY:
// EXTERN-NEXT:/* Definition of init procedures */
// EXTERN-EMPTY:
// EXTERN-NEXT:extern struct cell _main_gen_init_g{{[0-9]+}}(void);
// EXTERN-EMPTY:
// EXTERN-EMPTY:
// EXTERN-NEXT:/* Definition of variables init procedures */
// EXTERN-EMPTY:
// EXTERN-NEXT:static void _main_gen_init_sym_outside(void)
// EXTERN-NEXT:{
// EXTERN-NEXT:    extern struct cell outside;
// EXTERN-NEXT:{{ {4}$}}
// EXTERN-NEXT:    /* initialization with random value */
// EXTERN-NEXT:    {
// EXTERN-NEXT:        outside = _main_gen_init_g{{[0-9]+}}();
// EXTERN-NEXT:    }
// EXTERN-NEXT:}
