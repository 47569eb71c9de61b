// Every complaint of binding, at the line of the range file that causes it, in the order of
// binding (init names, then permanent, then globalassert, each name in order of first
// appearance); a name that doesn't exist is reported once. Only the entries that bind reach
// the log. The special function register mark comes from the IR, as C can't write it.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/c.ir
// RUN: awk '/"sfr_reg"/ { id = $2 } { print } $1 == "def" && $2 == id { print "@ \"k_sfr_init\"" }' %t/c.ir > %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -main-generator -functions-called-in-loop custom=called -drs-file %S/Inputs/bind-messages.txt -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/err.txt
// RUN: %cc-check %t/stubs/qvt_stubs_0.c

int called(int a, int *b) { return a + *b; }
int other(int a) { return a; }
int stub(int *p, const int *q);
volatile int vv;
struct { volatile int f; } vs;
struct pair { int x, y; } s;
int g;
int *p;
long double ld;
unsigned char uc;
int sfr_reg;
const volatile int cvv;

int main(void) { return stub(&g, &g) + vv + vs.f + s.x + g + *p + (int)ld + uc + sfr_reg + cvv; }

// CHECK:{{.*}}bind-messages.txt:2: warning: data-range-specifications: global variable/function 'nosuch' does not exist (or it is not used in the current analysis)
// CHECK-NEXT:{{.*}}bind-messages.txt:4: warning: data-range-specifications: expected a function called by main-generator
// CHECK-NEXT:{{.*}}bind-messages.txt:6: warning: data-range-specifications: function is not allowed
// CHECK-NEXT:{{.*}}bind-messages.txt:7: warning: data-range-specifications: return of userdef function is not allowed
// CHECK-NEXT:{{.*}}bind-messages.txt:8: warning: data-range-specifications: function is not allowed
// CHECK-NEXT:{{.*}}bind-messages.txt:9: warning: data-range-specifications: bad argument number
// CHECK-NEXT:{{.*}}bind-messages.txt:10: warning: data-range-specifications: bad argument number
// CHECK-NEXT:{{.*}}bind-messages.txt:11: warning: data-range-specifications: bad argument number
// CHECK-NEXT:{{.*}}bind-messages.txt:16: warning: data-range-specifications: 'vv': volatile variables are not allowed in init mode
// CHECK-NEXT:{{.*}}bind-messages.txt:18: warning: data-range-specifications: 's.nofield': specified field 'nofield' not found in struct (or it is not used in the current analysis)
// CHECK-NEXT:{{.*}}bind-messages.txt:19: warning: data-range-specifications: 's': specified field '' not found in struct (or it is not used in the current analysis)
// CHECK-NEXT:{{.*}}bind-messages.txt:20: warning: data-range-specifications: incorrect entry 'g.x'
// CHECK-NEXT:{{.*}}bind-messages.txt:22: warning: data-range-specifications: impossible to check validity of 'ld'
// CHECK-NEXT:{{.*}}bind-messages.txt:28: warning: data-range-specifications: 'sfr_reg': variables of type sfr/sbit are not allowed
// CHECK-NEXT:{{.*}}bind-messages.txt:29: warning: data-range-specifications: 'cvv': volatile variables are not allowed in init mode
// CHECK-NEXT:{{.*}}bind-messages.txt:13: warning: data-range-specifications: constant parameter not allowed
// CHECK-NEXT:{{.*}}bind-messages.txt:26: warning: data-range-specifications: function is not allowed
// CHECK-NEXT:{{.*}}bind-messages.txt:27: warning: data-range-specifications: function is not allowed
// CHECK-NEXT:{{.*}}bind-messages.txt:14: warning: data-range-specifications: expected a stubbed function
// CHECK-NEXT:{{.*}}bind-messages.txt:17: warning: data-range-specifications: 'vs.f': volatile fields or array are not yet supported in permanent mode
// CHECK-NEXT:{{.*}}bind-messages.txt:21: warning: data-range-specifications: 'p' : wrong type 'pointer' for permanent mode
// CHECK-NEXT:{{.*}}bind-messages.txt:23: warning: data-range-specifications: maximum value not within type bounds of 'uc' (permanent)
// CHECK-NEXT:{{.*}}bind-messages.txt:15: warning: data-range-specifications: function 'called' is not supported for globalassert mode
// CHECK-NEXT:data-range-specifications: 'called.arg1' in [0..5] (init)
// CHECK-NEXT:data-range-specifications: 'ld' in [1e4000..1e4001] (init)
// CHECK-NEXT:data-range-specifications: 'stub.arg1[]' in [0..10] (permanent)
// CHECK-NEXT:data-range-specifications: 'stub.return' in [0..10] (permanent)
// CHECK-NEXT:* Function stub may write to its arguments and may return random.
