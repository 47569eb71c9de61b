// Fundamental types that the user's code defines replace the target's, in the order of their
// definitions and with the comment "Customer defined"; the others still come from the target.
// No symbol is used: only the fixed lines and the types are written.
// RUN: rm -rf %t && mkdir -p %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -unknown-symbols -adapt-std-stubs-type %t/p.ir %t/h.h
// RUN: %FileCheck-exact %s < %t/h.h

typedef unsigned int size_t;
typedef short wchar_t;

size_t size_of(wchar_t w);

// CHECK:#undef QVT_BUILTIN_TARGET_UCHAR_MAX
// CHECK-NEXT:#define QVT_BUILTIN_TARGET_UCHAR_MAX 255
// CHECK-NEXT:#define NO_NEED_FUNDAMENTAL_TYPES /* To avoid including fundamental types in stddef.h */
// CHECK-NEXT:#define __SIZE_TYPE__ unsigned int
// CHECK-NEXT:#if defined(__QUORVANTA_NEED_SIZE_T_) && !defined(__QUORVANTA_NEED_SIZE_T_DONE_) && !defined(_SIZE_T_DEFINED) && !defined(__size_t_defined) && !defined(_SIZE_T) && !defined(__SIZE_T)
// CHECK-NEXT:#define __QUORVANTA_NEED_SIZE_T_DONE_
// CHECK-NEXT:typedef unsigned int size_t; /*Customer defined*/{{[ ]}}
// CHECK:#ifndef __cplusplus
// CHECK-NEXT:#define __WCHAR_TYPE__ short
// CHECK:typedef short wchar_t; /*Customer defined*/{{[ ]}}
// CHECK:#endif /*__cplusplus*/
// CHECK-NEXT:#define __PTRDIFF_TYPE__ long
// CHECK:typedef long ptrdiff_t; /*Target defined*/{{[ ]}}
// CHECK:#define __WINT_TYPE__ unsigned int
// CHECK:typedef unsigned int wint_t; /*Target defined*/{{[ ]}}
// CHECK:#endif /*__QUORVANTA_NEED_WINT_T_*/
// CHECK-NOT:{{.}}
