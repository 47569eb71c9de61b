// The type header: one program whose parts share no name, a check prefix for each concern.
// Whatever the order of the walk, no struct body is written twice:
// ONCE-NOT:struct {{[A-Za-z_0-9]+}}
// RUN: rm -rf %t && mkdir -p %t/out
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -no-stubs -stubs-dir %t/out %t/p.ir %t/p.out.ir
// RUN: %cc-check %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=ENUM %s < %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=PROTO %s < %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=ARRAY %s < %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=SELF %s < %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=MUTUAL %s < %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=CONST %s < %t/out/qvt_stub_types.h
// RUN: %FileCheck-exact --check-prefix=STRUCT %s < %t/out/qvt_stub_types.h
// RUN: sort %t/out/qvt_stub_types.h | uniq -d | %FileCheck-exact --check-prefix=ONCE --allow-empty %s

// (ENUM) Enumerators: the minimum of the base type is written so that C never reads an
// out-of-range literal (also 0 for an unsigned base); an enum is written whole, also when
// only a pointer reaches it; an unnamed enum is named by its number.
enum range { LOWEST = -2147483647 - 1, MIDDLE = -3, HIGHEST = 2147483647 };
enum { ANON_A, ANON_B };

void set_range(enum range *r);
int anon_value(int v);

// ENUM:enum range
// ENUM-NEXT:  {
// ENUM-NEXT:    LOWEST = (-2147483647-1),
// ENUM-NEXT:    MIDDLE = -3,
// ENUM-NEXT:    HIGHEST = 2147483647
// ENUM-NEXT:  };
// An enum with no negative value has an unsigned base, whose minimum is 0.
// ENUM:enum __QVT__g__{{[0-9]+}}
// ENUM-NEXT:  {
// ENUM-NEXT:    ANON_A = (1-1),
// ENUM-NEXT:    ANON_B = 1
// ENUM-NEXT:  };
// ENUM:typedef enum range *__QVT__g__{{[0-9]+}};

// (PROTO) Function types: "void" for no parameter, empty parentheses without a prototype (here of a
// defined function, since an undefined one is refused), the ellipsis after the visible
// parameters of a variadic function (whose two hidden parameters are not written).
short none(void);
float unknown() { return 0; }
int print(const char *format, ...);
void two(int a, double b);

// PROTO-DAG:typedef __QVT__SINT16 __QVT__g__{{[0-9]+}}(void);
// PROTO-DAG:typedef __QVT__FLOAT32 __QVT__g__{{[0-9]+}}();
// PROTO-DAG:typedef __QVT__SINT32 __QVT__g__{{[0-9]+}}(__QVT__g__{{[0-9]+}}, ...);
// PROTO-DAG:typedef __QVT__VOID __QVT__g__{{[0-9]+}}(__QVT__SINT32, __QVT__FLOAT64);

// (ARRAY) Arrays: a known bound is the upper bound plus one, an unknown one is empty; an array of
// structs reached behind a pointer stands after the struct's body, since C has no array of an
// incomplete type.
struct cell {
  int id;
};

void fill_rows(struct cell (*rows)[4], int n);
extern int table[10];
extern char names[];

// ARRAY:struct cell
// ARRAY-NEXT:  {
// ARRAY-NEXT:    __QVT__SINT32 id;
// ARRAY-NEXT:  };
// ARRAY-NEXT:typedef struct cell __QVT__g__[[A:[0-9]+]][4];
// ARRAY-NEXT:typedef __QVT__g__[[A]] *__QVT__g__{{[0-9]+}};
// ARRAY-DAG:typedef __QVT__SINT32 __QVT__g__{{[0-9]+}}[10];
// ARRAY-DAG:typedef __QVT__SINT8 __QVT__g__{{[0-9]+}}[];

// (SELF) A struct that points to itself: the tag alone serves the pointer typedef, which stands
// ahead of the body; the body names the typedef as a field type; nothing is written twice.
struct node {
  int value;
  struct node *next;
};

int length(struct node *list);

// SELF:typedef char __QVT__CHAR;
// SELF:typedef signed int __QVT__SINT32;
// SELF:typedef struct node *__QVT__g__[[P:[0-9]+]];
// SELF-NEXT:struct node
// SELF-NEXT:  {
// SELF-NEXT:    __QVT__SINT32 value;
// SELF-NEXT:    __QVT__g__[[P]] next;
// SELF-NEXT:  };
// SELF:typedef __QVT__SINT32 __QVT__g__{{[0-9]+}}(__QVT__g__[[P]]);

// (MUTUAL) Two structs that point to each other: each body follows the pointer typedef it needs, and
// neither is written twice.
struct a;
struct b;
struct a {
  struct b *to_b;
};
struct b {
  struct a *to_a;
};

void link_both(struct a *x, struct b *y);

// MUTUAL:typedef struct b *__QVT__g__[[PB:[0-9]+]];
// MUTUAL-NEXT:struct a
// MUTUAL-NEXT:  {
// MUTUAL-NEXT:    __QVT__g__[[PB]] to_b;
// MUTUAL-NEXT:  };
// MUTUAL:typedef struct a *__QVT__g__[[PA:[0-9]+]];
// MUTUAL-NEXT:struct b
// MUTUAL-NEXT:  {
// MUTUAL-NEXT:    __QVT__g__[[PA]] to_a;
// MUTUAL-NEXT:  };

// (CONST) A const struct first reached behind a pointer (from the fields of an earlier struct): the
// const typedef needs only the tag; the body comes later, once, when the list reaches it.
struct holder {
  const struct config *cfg;
};
struct config {
  int level;
  double scale;
};

void apply(struct holder *h);
int read_config(const struct config *c);

// CONST:typedef const struct config __QVT__g__[[C:[0-9]+]];
// CONST-NEXT:typedef __QVT__g__[[C]] *__QVT__g__[[P:[0-9]+]];
// CONST-NEXT:struct holder
// CONST-NEXT:  {
// CONST-NEXT:    __QVT__g__[[P]] cfg;
// CONST-NEXT:  };
// CONST:struct config
// CONST-NEXT:  {
// CONST-NEXT:    __QVT__SINT32 level;
// CONST-NEXT:    __QVT__FLOAT64 scale;
// CONST-NEXT:  };

// (STRUCT) Packed structs are bracketed by the pack pragmas, after the types of their fields; an empty
// struct has its braces alone; bit-fields are declared with their storage type and width;
// anonymous members and unnamed tags get names that C accepts.
struct __attribute__((packed)) wire {
  char tag;
  long long stamp;
};

#pragma pack(2)
struct half {
  char c;
  int i;
};
#pragma pack()

struct empty {};

struct flags {
  unsigned int ready : 1;
  int level : 5;
};

struct outer {
  int kind;
  union {
    int as_int;
    float as_float;
  };
  struct {
    short x, y;
  } point;
};

void send(struct wire *w, struct half *h, struct empty *e, struct flags *f, struct outer *o);

// STRUCT:typedef signed long __QVT__SINT64;
// STRUCT:#pragma pack(1)
// STRUCT-NEXT:struct wire
// STRUCT-NEXT:  {
// STRUCT-NEXT:    __QVT__SINT8 tag;
// STRUCT-NEXT:    __QVT__SINT64 stamp;
// STRUCT-NEXT:  };
// STRUCT-NEXT:#pragma pack()
// STRUCT:#pragma pack(2)
// STRUCT-NEXT:struct half
// STRUCT-NEXT:  {
// STRUCT-NEXT:    __QVT__SINT8 c;
// STRUCT-NEXT:    __QVT__SINT32 i;
// STRUCT-NEXT:  };
// STRUCT-NEXT:#pragma pack()
// STRUCT:struct empty
// STRUCT-NEXT:  {
// STRUCT-NEXT:  };
// STRUCT:struct flags
// STRUCT-NEXT:  {
// STRUCT-NEXT:    __QVT__UINT32 ready : 1;
// STRUCT-NEXT:    __QVT__SINT32 level : 5;
// STRUCT-NEXT:  };
// STRUCT:struct outer
// STRUCT-NEXT:  {
// STRUCT-NEXT:    __QVT__SINT32 kind;
// STRUCT-NEXT:    union __QVT__g__{{[0-9]+}} qvtunnsubs{{[0-9]+}};
// STRUCT-NEXT:    struct __QVT__g__{{[0-9]+}} point;
// STRUCT-NEXT:  };
