// A user's definition of a function that the target's stubs treat as special is reported at
// its place, the header gets no macro for it, and the status is 1; under -flaw-scan it is
// left alone.
// RUN: rm -rf %t && mkdir -p %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: not qvt-stubber -unknown-symbols %t/p.ir %t/h.h 2> %t/err.txt
// RUN: %FileCheck-exact --check-prefix=ERR %s < %t/err.txt
// RUN: %FileCheck-exact --check-prefix=HDR %s < %t/h.h
// RUN: qvt-stubber -unknown-symbols -flaw-scan %t/p.ir %t/h2.h 2> %t/err2.txt
// RUN: test ! -s %t/err2.txt

void *malloc(unsigned long size) { (void)size; return 0; }
void assert(int condition) { (void)condition; }

int main(void) {
  assert(malloc(4) != 0);
  return 0;
}

// ERR:{{.*}}symbol-header-special-redefined.c:12: error: special function 'malloc' is redefined.
// ERR-NEXT:{{.*}}symbol-header-special-redefined.c:13: error: special function 'assert' is redefined.

// HDR:#define __quorvanta_static_types_for_stubs
// HDR-NEXT:#undef QVT_BUILTIN_TARGET_UCHAR_MAX
