// A function pointer parameter can be modelled only at top level, with a
// prototype, and without pointers among its own parameters; a pointer to a
// structure is not looked into, a structure passed by value is.
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: not qvt-stubber -stubber -stubs-dir %t/out %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s < %t/err.txt
// RUN: %FileCheck-exact --check-prefix=REPORT %s < %t/err.txt
// RUN: %cc-check %t/out/qvt_stub_types.h

struct s { void (*cb)(int); };

void simple_cb(void (*cb)(int));
void ptr_cb(void (*cb)(int *));
void noproto_cb(void (*cb)());
void struct_ptr(struct s *p);
void struct_val(struct s v);
int (*maker(void))(int);

void use(void) {
  simple_cb(0);
  ptr_cb(0);
  noproto_cb(0);
  struct_ptr(0);
  struct s v = {0};
  struct_val(v);
  maker();
}

// CHECK:{{.*}}function-pointers.c:14: error: function 'ptr_cb' refers to a function pointer that is either too complex,
// CHECK-NEXT:|        or within a complex data-structure, or with unknown parameters.
// CHECK-NEXT:|        It cannot be stubbed automatically.
// CHECK-NEXT:|        This error can be ignored by using the -permissive-stubber option.
// CHECK-NEXT:{{.*}}function-pointers.c:15: error: function 'noproto_cb' refers to a function pointer that is either too complex,
// CHECK:{{.*}}function-pointers.c:17: error: function 'struct_val' refers to a function pointer that is either too complex,
// CHECK:{{.*}}function-pointers.c:18: error: function 'maker' returns a function pointer.
// CHECK-NEXT:|        It cannot be stubbed automatically.
// CHECK-NEXT:|        This error can be ignored by using the -permissive-stubber option.
// CHECK:Error message explanation:

// Only the two accepted functions get a stub.
// REPORT-NOT:* Function ptr_cb {{.*}}
// REPORT:* Function simple_cb may write to its arguments and may return random.
// REPORT-NOT:* Function {{(ptr_cb|noproto_cb|struct_val|maker)}} {{.*}}
// REPORT:* Function struct_ptr may write to its arguments and may return random.
// REPORT-NOT:* Function {{.*}}
