// Random content of scalars, structs, unions and enums comes from one function per type,
// declared at the head of its section and defined in the order the bodies complete. A pointer
// back into its own struct is cut with a random value; a bit-field is drawn in its storage
// integer and bounded to its own width; an enum is clamped to its members.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -main-generator -variables-written-before-loop custom=h,n,c,fl -functions-called-in-loop custom= -stubs-dir %t/out %t/p.ir %t/o.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/out/__quorvanta_main.c
// RUN: %cc-check %t/out/__quorvanta_main.c

struct node { int value; struct node *next; };
struct holder { struct node *head; double weight; };
union number { int i; float f; };
enum color { RED = -1, GREEN = 5, BLUE };
struct flags { int mode : 3; unsigned ready : 1; int rest; };
struct holder h;
union number n;
enum color c;
struct flags fl;
int use(void) { return h.head->value + (int)h.weight + n.i + c + fl.mode; }

// CHECK-LABEL:/* Declaration of random variables */
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__CHAR qvt_random_char;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile int qvt_random_int;
// CHECK-EMPTY:
// CHECK-NEXT:static volatile __QVT__g__[[PNODE:[0-9]+]] qvt_random_g_[[PNODE]];
// CHECK-NEXT:static volatile __QVT__SINT32 qvt_random_g_[[INT:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__FLOAT64 qvt_random_g_[[DBL:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__FLOAT32 qvt_random_g_[[FLT:[0-9]+]];
// CHECK-NEXT:static volatile enum color qvt_random_g_[[ENUM:[0-9]+]];
// CHECK-NEXT:static volatile __QVT__UINT32 qvt_random_g_[[UINT:[0-9]+]];
// CHECK-EMPTY:

// CHECK-LABEL:/* Definition of init procedures */
// CHECK-EMPTY:
// CHECK-NEXT:extern __QVT__UINT32 _main_gen_init_g[[UINT]](void);
// CHECK-EMPTY:
// CHECK-NEXT:extern struct flags _main_gen_init_g[[FLAGS:[0-9]+]](void);
// CHECK-EMPTY:
// CHECK-NEXT:extern enum color _main_gen_init_g[[ENUM]](void);
// CHECK-EMPTY:
// CHECK-NEXT:extern __QVT__FLOAT32 _main_gen_init_g[[FLT]](void);
// CHECK-EMPTY:
// CHECK-NEXT:extern union number _main_gen_init_g[[UNION:[0-9]+]](void);
// CHECK-EMPTY:
// CHECK-NEXT:extern __QVT__FLOAT64 _main_gen_init_g[[DBL]](void);
// CHECK-EMPTY:
// CHECK-NEXT:extern __QVT__SINT32 _main_gen_init_g[[INT]](void);
// CHECK-EMPTY:
// CHECK-NEXT:extern struct node _main_gen_init_g[[NODE:[0-9]+]](void);
// CHECK-EMPTY:
// CHECK-NEXT:extern struct holder _main_gen_init_g[[HOLDER:[0-9]+]](void);
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__SINT32 _main_gen_init_g[[INT]](void)
// CHECK-NEXT:{
// CHECK-NEXT:    __QVT__SINT32 x;
// CHECK-NEXT:    /* base type */
// CHECK-NEXT:    x = qvt_random_g_[[INT]];
// CHECK-NEXT:    return x;
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:struct node _main_gen_init_g[[NODE]](void)
// CHECK-NEXT:{
// CHECK-NEXT:    static struct node x;
// CHECK-NEXT:    /* struct/union type */
// CHECK-NEXT:    x.next = qvt_random_g_[[PNODE]]; /* break cycle */
// CHECK-NEXT:    x.value = _main_gen_init_g[[INT]]();
// CHECK-NEXT:    return x;
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__FLOAT64 _main_gen_init_g[[DBL]](void)
// CHECK-NEXT:{
// CHECK-NEXT:    __QVT__FLOAT64 x;
// CHECK-NEXT:    /* base type */
// CHECK-NEXT:    x = qvt_random_g_[[DBL]];
// CHECK-NEXT:    return x;
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:struct holder _main_gen_init_g[[HOLDER]](void)
// CHECK-NEXT:{
// CHECK-NEXT:    static struct holder x;
// CHECK-NEXT:    /* struct/union type */
// CHECK-NEXT:    /* pointer */
// CHECK-NEXT:    {
// CHECK-NEXT:        static struct node _main_gen_tmp_0[ARRAY_NBELEM(struct node)];
// CHECK-NEXT:        __QVT__UINT64 _i_main_gen_tmp_1;
// CHECK-NEXT:        for (_i_main_gen_tmp_1 = 0; _i_main_gen_tmp_1 < ARRAY_NBELEM(struct node); _i_main_gen_tmp_1++)
// CHECK-NEXT:        {
// CHECK-NEXT:            _main_gen_tmp_0[_i_main_gen_tmp_1] = _main_gen_init_g[[NODE]]();
// CHECK-NEXT:        }
// CHECK-NEXT:        x.head = QVT_TRUE() ? 0 : &_main_gen_tmp_0[ARRAY_NBELEM(struct node) / 2];
// CHECK-NEXT:    }
// CHECK-NEXT:    x.weight = _main_gen_init_g[[DBL]]();
// CHECK-NEXT:    return x;
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__FLOAT32 _main_gen_init_g[[FLT]](void)
// CHECK-NEXT:{
// CHECK-NEXT:    __QVT__FLOAT32 x;
// CHECK-NEXT:    /* base type */
// CHECK-NEXT:    x = qvt_random_g_[[FLT]];
// CHECK-NEXT:    return x;
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:union number _main_gen_init_g[[UNION]](void)
// CHECK-NEXT:{
// CHECK-NEXT:    static union number x;
// CHECK-NEXT:    /* struct/union type */
// CHECK-NEXT:    x.i = _main_gen_init_g[[INT]]();
// CHECK-NEXT:    x.f = _main_gen_init_g[[FLT]]();
// CHECK-NEXT:    return x;
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:enum color _main_gen_init_g[[ENUM]](void)
// CHECK-NEXT:{
// CHECK-NEXT:    enum color x;
// CHECK-NEXT:    /* enum */
// CHECK-NEXT:    x = qvt_random_g_[[ENUM]];
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    /* range value according to enum bounds */
// CHECK-NEXT:    unchecked_assert(x >= -1);
// CHECK-NEXT:    unchecked_assert(x <= 6);
// CHECK-NEXT:{{ {4}$}}
// CHECK-NEXT:    return x;
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:__QVT__UINT32 _main_gen_init_g[[UINT]](void)
// CHECK-NEXT:{
// CHECK-NEXT:    __QVT__UINT32 x;
// CHECK-NEXT:    /* base type */
// CHECK-NEXT:    x = qvt_random_g_[[UINT]];
// CHECK-NEXT:    return x;
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-NEXT:struct flags _main_gen_init_g[[FLAGS]](void)
// CHECK-NEXT:{
// CHECK-NEXT:    static struct flags x;
// CHECK-NEXT:    /* struct/union type */
// CHECK-NEXT:    {
// CHECK-NEXT:        __QVT__SINT32 bitf;
// CHECK-NEXT:        bitf = _main_gen_init_g[[INT]]();
// CHECK-NEXT:        unchecked_assert(bitf >= -4);
// CHECK-NEXT:        unchecked_assert(bitf <= 3);
// CHECK-NEXT:        x.mode = bitf;
// CHECK-NEXT:    }
// CHECK-NEXT:    {
// CHECK-NEXT:        __QVT__UINT32 bitf;
// CHECK-NEXT:        bitf = _main_gen_init_g[[UINT]]();
// CHECK-NEXT:        unchecked_assert(bitf <= 1);
// CHECK-NEXT:        x.ready = bitf;
// CHECK-NEXT:    }
// CHECK-NEXT:    x.rest = _main_gen_init_g[[INT]]();
// CHECK-NEXT:    return x;
// CHECK-NEXT:}
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:/* Definition of variables init procedures */
