// Stub pragmas set the kind of the named function's stub; the first pragma
// for a function wins, a function that cannot write anything is pure whatever
// its pragma, and unknown words or names are passed over in silence.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/out %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s < %t/err.txt
// RUN: %cc-check %t/out/qvt_stub_types.h
// RUN: mkdir -p %t/instr
// RUN: qvt-stubber -stubber -instrument -stubs-dir %t/instr %t/p.ir %t/p.instr.ir 2> %t/instr.txt
// RUN: %FileCheck-exact --check-prefix=INSTR %s < %t/instr.txt

int clean_fn(int *p);
int worst_fn(int *p);
int nowrite_fn(int *p);
int first_wins(int *p);
void no_args(void);
int noinstr_fn(int *p);
int plain_fn(int *p);

#pragma QUORVANTA_CLEAN clean_fn
#pragma QUORVANTA_WORST worst_fn
#pragma __QUORVANTA_NO_WRITE nowrite_fn
#pragma QUORVANTA_PURE first_wins
#pragma QUORVANTA_WORST first_wins
#pragma QUORVANTA_WORST no_args
#pragma QUORVANTA_NO_INSTRUMENT noinstr_fn
#pragma QUORVANTA_UNKNOWN plain_fn
#pragma QUORVANTA_PURE no_such_function
#pragma QUORVANTA_PURE

int use(int *p) {
  no_args();
  return clean_fn(p) + worst_fn(p) + nowrite_fn(p) + first_wins(p) + noinstr_fn(p) + plain_fn(p);
}

// CHECK:* Function clean_fn is stubbed cleanly.
// CHECK:* Function worst_fn may write to its arguments and may return parts of them.
// CHECK-NEXT:           Modelizes pointer effects.
// CHECK:* Function nowrite_fn is pure.
// CHECK:* Function first_wins is pure.
// CHECK:* Function no_args is pure.
// CHECK:* Function noinstr_fn may write to its arguments and may return random.
// CHECK:* Function plain_fn may write to its arguments and may return random.

// In instrumenting mode the no-instrument pragma means no stub at all.
// INSTR:* Function first_wins is pure.
// INSTR-NOT:* Function noinstr_fn {{.*}}
// INSTR:* Function plain_fn may write to its arguments and may return random.
