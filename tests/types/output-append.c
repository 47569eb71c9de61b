// Generated files are opened for appending: a second run into the same directory keeps what
// the first one wrote and adds its own text after it.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-user-stubs-file -stubs-dir %t/out %t/p.ir %t/p.out.ir 2> %t/err1.txt
// RUN: cp %t/out/qvt_stub_types.h %t/first.h
// RUN: qvt-stubber -stubber -no-user-stubs-file -stubs-dir %t/out %t/p.ir %t/p.out.ir 2> %t/err2.txt
// RUN: %FileCheck-exact %s < %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=STUBS %s < %t/out/qvt_stubs_0.c
// RUN: cat %t/first.h %t/first.h > %t/twice.h
// RUN: diff %t/twice.h %t/out/qvt_stub_types.h

int get_level(int *where);

// CHECK:typedef char __QVT__CHAR;
// CHECK:typedef __QVT__SINT32 __QVT__g__{{[0-9]+}}(__QVT__g__{{[0-9]+}});
// CHECK-NEXT:typedef char __QVT__CHAR;
// CHECK:typedef __QVT__SINT32 __QVT__g__{{[0-9]+}}(__QVT__g__{{[0-9]+}});

// STUBS:#include "qvt_stub_types.h"
// STUBS:__QVT__SINT32 get_level(__QVT__g__{{[0-9]+}} P_0)
// STUBS:#include "qvt_stub_types.h"
// STUBS:__QVT__SINT32 get_level(__QVT__g__{{[0-9]+}} P_0)
