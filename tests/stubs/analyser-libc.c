// With -analyser-libc the front end leaves the C library to the analyser: a function that only
// system headers declare is marked k_builtin, and the stubber writes no stub for it and says
// nothing of it. A library function that the user declares again, and the program's own
// undefined function, are stubbed as before.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront -analyser-libc %s -o %t/p.ir
// RUN: qvt-irdump %t/p.ir > %t/dump.txt
// RUN: %FileCheck-exact --check-prefix=IR %s --input-file %t/dump.txt
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact --check-prefix=STUBS %s --input-file %t/err.txt
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

size_t strlen(const char *s);
int lookup(const char *key);

int run(int argc, char **argv)
{
  char *copy;
  if (argc < 2)
    exit(2);
  copy = malloc(strlen(argv[1]) + 1);
  if (!copy)
    return fgetc(stdin);
  return lookup(strcpy(copy, argv[1]));
}

// IR-LABEL:global table:
// IR:  proc int (struct _IO_FILE *) fgetc [no body] [userdef]  /* #{{[0-9]+}} */
// IR:      @k_builtin
// IR-NEXT:  proc void * (unsigned long) malloc [no body] [userdef]  /* #{{[0-9]+}} */
// IR:      @k_builtin
// IR-NEXT:  proc void (int) exit [no body] [userdef]  /* #{{[0-9]+}} */
// IR:      @k_builtin
// IR-NEXT:  proc {{.*}} strcpy [no body] [userdef]  /* #{{[0-9]+}} */
// IR:      @k_builtin
// IR-NEXT:  proc unsigned long (const signed char *) strlen [no body] [userdef]  /* #{{[0-9]+}} */
// IR-NOT:      @k_builtin
// IR:  proc int (const signed char *) lookup [no body] [userdef]  /* #{{[0-9]+}} */
// IR-NOT:      @k_builtin
// IR:  proc int (int, signed char * *) run [body] [userdef]  /* #{{[0-9]+}} */

// STUBS-NOT:{{.*}}exit{{.*}}
// STUBS-NOT:{{.*}}malloc{{.*}}
// STUBS:* Function strlen is pure.
// STUBS-NOT:{{.*}}fgetc{{.*}}
// STUBS-NOT:{{.*}}strcpy{{.*}}
// STUBS:* Function lookup is pure.
// STUBS-NOT:{{.*}}malloc{{.*}}
