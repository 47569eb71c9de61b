// Functions with bodies in the system headers (the fortified wrappers of the C library) enter
// the program only when the user's code calls them, and bring then what their bodies call.
// RUN: qvt-cfront -O2 -D_FORTIFY_SOURCE=2 %s -o %t.none.ir
// RUN: qvt-irdump %t.none.ir > %t.none.txt
// RUN: %FileCheck-exact --check-prefix=NONE %s < %t.none.txt
// RUN: qvt-cfront -O2 -D_FORTIFY_SOURCE=2 -DLOAD %s -o %t.load.ir
// RUN: qvt-irdump %t.load.ir > %t.load.txt
// RUN: %FileCheck-exact --check-prefix=LOAD %s < %t.load.txt
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int answer(void) { return 42; }

#ifdef LOAD
size_t load(char *buf, FILE *f) { return fread(buf, 1, 4, f); }
#endif

// NONE-LABEL:global table:
// NONE-NOT:  {{proc|var}} {{.*}}
// NONE:  proc int (void) answer [body] [userdef]  /* #1 */
// NONE-NOT:  {{proc|var}} {{.*}}
// NONE-LABEL:file table:
// NONE-NOT:  {{proc|var}} {{.*}}

// LOAD-LABEL:global table:
// LOAD:  proc unsigned long (void *, unsigned long, unsigned long, struct _IO_FILE *) fread [body] [userdef]  /* #{{[0-9]+}} */
// LOAD:  proc unsigned long (void *, unsigned long, unsigned long, unsigned long, struct _IO_FILE *) __fread_chk [no body] [userdef]  /* #{{[0-9]+}} */
// LOAD-NOT:  proc {{.*}} {{printf|fwrite|__vfprintf_chk}} {{.*}}
// LOAD:  proc unsigned long (signed char *, struct _IO_FILE *) load [body] [userdef]  /* #{{[0-9]+}} */
