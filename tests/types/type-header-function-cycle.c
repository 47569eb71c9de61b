// A struct holding a pointer to a function that takes the struct by value: the function
// typedef comes while the struct's fields are visited, before anything has named the tag at
// file scope, so the tag is declared first; otherwise the parameter's struct would be a
// different one, local to the parameter list. Nothing is written twice, and no compiler warns.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -permissive-stubber -no-user-stubs-file -stubs-dir %t/out %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s < %t/out/qvt_stub_types.h
// RUN: %gcc -fsyntax-only -std=gnu11 -Werror %t/out/qvt_stub_types.h
// RUN: %clang -fsyntax-only -std=gnu11 -Werror %t/out/qvt_stub_types.h
// RUN: %cc-check %t/out/qvt_stubs_0.c

struct event {
  void (*handler)(struct event);
  struct event *next;
};

int post(struct event *e, void (*handler)(struct event));

// CHECK:struct event;
// CHECK-NEXT:typedef __QVT__VOID __QVT__g__[[F:[0-9]+]](struct event);
// CHECK-NEXT:typedef __QVT__g__[[F]] *__QVT__g__[[PF:[0-9]+]];
// CHECK-NEXT:typedef struct event *__QVT__g__[[PE:[0-9]+]];
// CHECK-NEXT:struct event
// CHECK-NEXT:  {
// CHECK-NEXT:    __QVT__g__[[PF]] handler;
// CHECK-NEXT:    __QVT__g__[[PE]] next;
// CHECK-NEXT:  };
// CHECK-NOT:{{^}}struct event{{$}}
// CHECK-NOT:(struct event);
