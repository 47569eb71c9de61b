// Constructs beyond plain expressions keep every reference they hold:
// statement expressions, asm operands, computed gotos, compound literals,
// designated initialisers, _Generic, flexible and zero-length arrays,
// variable-length arrays and 128-bit integers.
// RUN: qvt-cfront %s -o %t.ir 2> %t.err
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt

struct list { struct list *next; int vals[]; };
struct z { int n; char data[0]; };
struct pt { int x, y; };
int g1, g2, g3, g4;
__int128 wide;
int callee(int);

struct pt make(int a) { return (struct pt){ .y = a, .x = g1 }; }
int vla(int n) { int a[n]; a[0] = n; return sizeof a + a[0]; }
int stmt_expr(int v) { return ({ int t = g2; t + callee(v); }); }
int asm_op(int x) { __asm__ volatile ("" : "+r"(g3) : "r"(x)); return x; }
int computed(int x)
{
    static void *targets[] = { &&one, &&two };
    goto *targets[x & 1];
one:
    return g4;
two:
    return _Generic(x, int: 1, default: 2);
}

// CHECK-LABEL:global table:
// CHECK:  T{{[0-9]+}}: struct list {  /* 64 bits */
// CHECK-NEXT:      struct list * next;  /* at bit 0 */
// CHECK-NEXT:      int[] vals;  /* at bit 64 */
// CHECK:  T{{[0-9]+}}: struct z {  /* 32 bits */
// CHECK-NEXT:      int n;  /* at bit 0 */
// CHECK-NEXT:      signed char[] data;  /* at bit 32 */
// CHECK:  var {{.*}} wide [defined, align 128] [userdef]  /* #{{[0-9]+}} */
// CHECK-LABEL:struct pt make(int a)
// CHECK:    return CompoundLiteralExpr(InitListExpr(g1, a));
// CHECK-LABEL:int vla(int n)
// CHECK:    var int[] a  /* #{{[0-9]+}} */
// CHECK-LABEL:int stmt_expr(int v)
// CHECK:    t = g2;
// CHECK:    return (t + callee(v));
// CHECK-LABEL:int asm_op(int x)
// CHECK:    GCCAsmStmt(g3, x);
// CHECK-LABEL:int computed(int x)
// CHECK:    IndirectGotoStmt([](targets, (x & 1)));
// CHECK:    return g4;
