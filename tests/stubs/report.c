// The console report of each stub: kind, variable arguments, initialised return, constant
// parameters counted from 1 (parentheses only for several, the total with hidden parameters).
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/err.txt
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

#pragma QUORVANTA_CLEAN "r_clean"
#pragma QUORVANTA_WORST "r_worst"
#pragma QUORVANTA_PURE "r_pure_var"

void r_default(int *p, int n);
int r_clean(int a, int *p, const char *s);
int r_worst(const char *fmt, ...);
int r_pure(int a);
void r_pure_var(int *p, ...);

// CHECK:* Function r_default may write to its arguments and may return random.
// CHECK-NEXT:           Does not model pointer effects.
// CHECK-NEXT:           Const parameters (nb params=2): #2.
// CHECK-EMPTY:
// CHECK-NEXT:* Function r_clean is stubbed cleanly.
// CHECK-NEXT:           Returns an initialized value.
// CHECK-NEXT:           Const parameters (nb params=3): (#1, #3).
// CHECK-EMPTY:
// CHECK-NEXT:* Function r_worst may write to its arguments and may return parts of them.
// CHECK-NEXT:           Modelizes pointer effects.
// CHECK-NEXT:           It may write in the variable arguments.
// CHECK-NEXT:           Returns an initialized value.
// CHECK-NEXT:           Const parameters (nb params=3): #1.
// CHECK-EMPTY:
// CHECK-NEXT:* Function r_pure is pure.
// CHECK-NEXT:           Returns an initialized value.
// CHECK-NEXT:           Const parameters (nb params=1): #1.
// CHECK-EMPTY:
// CHECK-NEXT:* Function r_pure_var is pure.
// CHECK-EMPTY:
