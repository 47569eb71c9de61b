// A main that takes the argument array: the entry point declares it with the generated names, where
// plain char is signed char, and the freestanding compile checks accept that declaration.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/stubs/qvt_stubs_0.c
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/qvt_user_stubs.c

int parse(const char *arg);
int main(int argc, char **argv) { return argc > 1 ? parse(argv[1]) : 0; }

// CHECK-LABEL:void __QVT__MAIN__ENTRY__POINT__(void)
// CHECK-NEXT:{
// CHECK-NEXT:    { /* call of function main */
// CHECK-NEXT:        __QVT__SINT32 main(__QVT__SINT32, __QVT__g__[[ARGV:[0-9]+]]);
// CHECK-NEXT:        volatile __QVT__SINT32 __ARG__0;
// CHECK-NEXT:        volatile __QVT__g__[[ARGV]] __ARG__1;
