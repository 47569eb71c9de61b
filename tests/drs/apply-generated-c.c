// A range file reaches the generated C: a stub writes its argument's target and its return
// within their ranges, the generated main initialises a ranged global within its range and
// its call wrapper passes an argument within its range; with a main of the program's own, the
// ranged globals are initialised in _data_range_init. Without the file, no bound appears.
// RUN: rm -rf %t && mkdir -p %t/lib %t/own %t/none
// RUN: qvt-cfront %s -o %t/lib.ir
// RUN: qvt-stubber -stubber -drs-gen -main-generator -functions-called-in-loop custom=step -drs-file %S/Inputs/apply-generated-c.txt -stubs-dir %t/lib %t/lib.ir %t/lib.out.ir 2> %t/lib.err
// RUN: %FileCheck-exact --check-prefix=STUB %s --input-file %t/lib/qvt_stubs_0.c
// RUN: %FileCheck-exact --check-prefix=MAIN %s --input-file %t/lib/__quorvanta_main.c
// RUN: %cc-check %t/lib/qvt_stubs_0.c %t/lib/__quorvanta_main.c
// RUN: qvt-cfront %s %S/Inputs/with_main.c -o %t/own.ir
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/apply-generated-c.txt -stubs-dir %t/own %t/own.ir %t/own.out.ir 2> %t/own.err
// RUN: %FileCheck-exact --check-prefix=OWN %s --input-file %t/own/__quorvanta_main.c
// RUN: %cc-check %t/own/qvt_stubs_0.c %t/own/__quorvanta_main.c
// RUN: qvt-stubber -stubber -drs-gen -stubs-dir %t/none %t/own.ir %t/none.out.ir 2> %t/none.err
// RUN: %FileCheck-exact --check-prefix=NONE %s --input-file %t/none/qvt_stubs_0.c

int cnt;
int fill(int *out, int n);
int get(void);
void step(int k) { cnt += k + fill(&cnt, k) + get(); }
int run(void) { step(1); return cnt; }

// STUB-LABEL:__QVT__SINT32 fill(__QVT__g__{{[0-9]+}} P_0, __QVT__SINT32 P_1)
// STUB:        for (_main_gen_tmp_[[I:[0-9]+]] = _main_gen_tmp_[[I]] - 1; (_main_gen_tmp_[[I]] >= 0) && QVT_TRUE(); _main_gen_tmp_[[I]] --)
// STUB-NEXT:        {
// STUB-NEXT:            __QVT__SINT32 _main_gen_tmp_[[V:[0-9]+]];
// STUB-NEXT:            _main_gen_tmp_[[V]] = qvt_random_g_{{[0-9]+}};
// STUB-NEXT:            unchecked_assert(_main_gen_tmp_[[V]] >= 1);
// STUB-NEXT:            unchecked_assert(_main_gen_tmp_[[V]] <= 2);
// STUB-NEXT:            (P_0[_main_gen_tmp_[[I]]]) = _main_gen_tmp_[[V]];
// STUB-LABEL:__QVT__SINT32 get(__QVT__VOID)
// STUB:        __QVT__SINT32 random_for_return = real_random_for_return;
// STUB-NEXT:        {
// STUB-NEXT:            __QVT__SINT32 _main_gen_tmp_[[R:[0-9]+]];
// STUB-NEXT:            _main_gen_tmp_[[R]] = qvt_random_g_{{[0-9]+}};
// STUB-NEXT:            unchecked_assert(_main_gen_tmp_[[R]] >= 3);
// STUB-NEXT:            unchecked_assert(_main_gen_tmp_[[R]] <= 7);
// STUB-NEXT:            random_for_return = _main_gen_tmp_[[R]];
// STUB-NEXT:        }

// MAIN-LABEL:static void _main_gen_init_sym_cnt(void)
// MAIN:    /* initialization with drs range */
// MAIN-NEXT:    {
// MAIN-NEXT:        __QVT__SINT32 _main_gen_tmp_[[C:[0-9]+]];
// MAIN-NEXT:        _main_gen_tmp_[[C]] = qvt_random_g_{{[0-9]+}};
// MAIN-NEXT:        unchecked_assert(_main_gen_tmp_[[C]] >= 0);
// MAIN-NEXT:        unchecked_assert(_main_gen_tmp_[[C]] <= 9);
// MAIN-NEXT:        cnt = _main_gen_tmp_[[C]];
// MAIN-NEXT:    }
// MAIN-LABEL:static void _main_gen_call_step(void)
// MAIN:        unchecked_assert(_main_gen_tmp_[[A:[0-9]+]] >= 2);
// MAIN-NEXT:        unchecked_assert(_main_gen_tmp_[[A]] <= 6);
// MAIN-NEXT:        __arg__0 = _main_gen_tmp_[[A]];
// MAIN-LABEL:void main(void)
// MAIN:    /* init for variable cnt */
// MAIN-NEXT:    _main_gen_init_sym_cnt();

// OWN-LABEL:static void _main_gen_init_sym_cnt(void)
// OWN:        unchecked_assert(_main_gen_tmp_[[O:[0-9]+]] >= 0);
// OWN-NEXT:        unchecked_assert(_main_gen_tmp_[[O]] <= 9);
// OWN-LABEL:void _data_range_init(void)
// OWN-NEXT:{
// OWN-NEXT:    /* init for variable cnt */
// OWN-NEXT:    _main_gen_init_sym_cnt();

// NONE-NOT:{{.*}}unchecked_assert{{.*}}
