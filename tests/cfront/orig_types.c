// The source spellings of return and parameter types keep typedef names and
// their C form around the name token "@@": arrays and pointers to functions
// wrap it. A function without prototype has no parameter list.
// RUN: qvt-cfront %s -o %t.ir
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt

typedef unsigned int u32;
typedef int (*handler)(int code);
struct msg;

u32 checksum(const unsigned char data[16], unsigned n);
int (*lookup(const char *name))(int);
void route(struct msg *m, handler h, void (*done)(struct msg *, int), char table[4][8]);
long *no_proto();
void none(void);

// CHECK-LABEL:global table:
// CHECK:  proc unsigned int (const unsigned char *, unsigned int) checksum [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates "{{.*}}orig_types.c" 12 5
// CHECK-NEXT:      @k_orig_ret_type_name "u32 @@"
// CHECK-NEXT:      @k_orig_param_types_names "const unsigned char @@[16]" "unsigned int @@"
// CHECK:  proc {{.*}} lookup [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates "{{.*}}orig_types.c" 13 7
// CHECK-NEXT:      @k_orig_ret_type_name "int (*@@)(int)"
// CHECK-NEXT:      @k_orig_param_types_names "const char *@@"
// CHECK:  proc {{.*}} route [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates "{{.*}}orig_types.c" 14 6
// CHECK-NEXT:      @k_orig_ret_type_name "void @@"
// CHECK-NEXT:      @k_orig_param_types_names "struct msg *@@" "handler @@" "void (*@@)(struct msg *, int)" "char @@[4][8]"
// CHECK:  proc long * () no_proto [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates "{{.*}}orig_types.c" 15 7
// CHECK-NEXT:      @k_orig_ret_type_name "long *@@"
// CHECK-NEXT:  proc void (void) none [no body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates "{{.*}}orig_types.c" 16 6
// CHECK-NEXT:      @k_orig_ret_type_name "void @@"
// CHECK-NEXT:      @k_orig_param_types_names
