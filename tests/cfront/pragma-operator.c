// _Pragma counts like #pragma wherever it stands: written out, in a macro,
// with its operand made by # from a macro argument, or in a macro of a
// system header used in the program. A macro used only in a skipped region
// adds nothing. Its words follow the rules of #pragma.
// RUN: rm -rf %t && mkdir -p %t/sys
// RUN: echo '#define SYS_PACK _Pragma("pack(2)")' > %t/sys/sys_pragmas.h
// RUN: qvt-cfront -Wall -Werror -isystem %t/sys %s -o %t/p.ir
// RUN: qvt-irdump %t/p.ir > %t/p.txt
// RUN: %FileCheck-exact %s < %t/p.txt

#include <sys_pragmas.h>

#define PACK _Pragma("pack(push, 1)")
#define UNPACK _Pragma("pack(pop)")
#define STUB(words) _Pragma(#words)
#define TWICE(x) x x

PACK
STUB(QUORVANTA_CLEAN "read_port")
TWICE(_Pragma("QUORVANTA_WORST write_port"))
_Pragma("QUORVANTA_DRS permanent \"level\" -5")
UNPACK
SYS_PACK
#if 0
STUB(QUORVANTA_PURE "skipped")
#endif

int read_port(int);
int write_port(int);

// CHECK:IR file {{.*}}
// CHECK-NEXT:target: {{.*}}
// CHECK-NEXT:  @k_pragma "pack" "push" "1"
// CHECK-NEXT:  @k_pragma "QUORVANTA_CLEAN" "read_port"
// CHECK-NEXT:  @k_pragma "QUORVANTA_WORST" "write_port"
// CHECK-NEXT:  @k_pragma "QUORVANTA_WORST" "write_port"
// CHECK-NEXT:  @k_pragma "QUORVANTA_DRS" "permanent" "level" "-5"
// CHECK-NEXT:  @k_pragma "pack" "pop"
// CHECK-NEXT:  @k_pragma "pack" "2"
// CHECK-EMPTY:
// CHECK-NEXT:global table:
