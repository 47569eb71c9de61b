// The user skeleton: every undefined function without a pragma, the pure-by-signature one
// included; a void prototype reads the generated void; the variadic forms end in the ellipsis.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_user_stubs.c
// RUN: %cc-check %t/stubs/qvt_user_stubs.c
// RUN: rm -rf %t/none && mkdir -p %t/none
// RUN: qvt-stubber -stubber -no-user-stubs-file -stubs-dir %t/none %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: test ! -e %t/none/qvt_user_stubs.c

#pragma QUORVANTA_PURE "chosen"

void chosen(int *p);
int by_sig(int a);
void nothing(void);
int say(const char *f, ...);
void defined(void) { chosen(0); }

// CHECK:#include "qvt_user_stubs.h"
// CHECK-EMPTY:
// CHECK-EMPTY:
// CHECK-NEXT:// Pragmas for function by_sig
// CHECK-NEXT://
// CHECK-NEXT:// #pragma QUORVANTA_PURE "by_sig"
// CHECK-NEXT:// #pragma QUORVANTA_CLEAN "by_sig"
// CHECK-NEXT:// #pragma QUORVANTA_WORST "by_sig"
// CHECK-NEXT://
// CHECK-NEXT:// __QVT__SINT32 by_sig(__QVT__SINT32 P_0)
// CHECK-NEXT:// {
// CHECK-NEXT://    ...
// CHECK-NEXT:// }
// CHECK-EMPTY:
// CHECK-EMPTY:
// The other blocks differ only in the name and the signature.
// CHECK-NEXT:// Pragmas for function nothing
// CHECK:// __QVT__VOID nothing(__QVT__VOID)
// CHECK:// Pragmas for function say
// CHECK:// __QVT__SINT32 say(__QVT__g__{{[0-9]+}} P_0, ... )
// CHECK-NEXT:// {
// CHECK-NEXT://    ...
// CHECK-NEXT:// }
// CHECK-EMPTY:
// CHECK-NOT:{{.}}
