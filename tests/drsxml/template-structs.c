// Structs in the template: a type that contains itself shows once, with an empty element at the
// recursive place, or once more with -drs-struct-recursion-depth-max 1; fields go three struct
// levels down by default, two with -drs-struct-depth-max 1, without limit with 0, and a negative
// limit gives no fields at all. The members of an anonymous union stand in an element without a
// name or type, at the path of their parent.
// RUN: rm -rf %t && mkdir -p %t && cd %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -drs-gen %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s --check-prefixes=CHECK,DEF --input-file drs-template.xml
// RUN: qvt-stubber -drs-gen -drs-struct-recursion-depth-max 1 -drs-struct-depth-max 1 %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s --check-prefixes=CHECK,MORE --input-file drs-template.xml
// RUN: qvt-stubber -drs-gen -drs-struct-depth-max 0 %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s --check-prefix=NOLIMIT --input-file drs-template.xml
// RUN: qvt-stubber -drs-gen -drs-struct-depth-max -1 %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s --check-prefix=NEG --input-file drs-template.xml
// RUN: xmllint --noout --schema %src_root/src/drsxml/drs.xsd drs-template.xml

struct node { struct node *next; int value; };
struct node head;
struct inner { int a; };
struct mid { struct inner in; };
struct outer { struct mid m; };
struct top { struct outer o; } deep;
struct tagged { int tag; union { int i; float f; }; } an;

// CHECK:    <struct name="head" line="19" type="struct node">
// CHECK-NEXT:      <pointer name="next" line="19" type="struct node *" mode="default" min="0" max="max" targets="multi">
// DEF-NEXT:        <struct name="" line="19" type="struct node"/>
// MORE-NEXT:        <struct name="" line="19" type="struct node">
// MORE-NEXT:          <pointer name="next" line="19" type="struct node *" mode="default" min="0" max="max" targets="multi">
// MORE-NEXT:            <struct name="" line="19" type="struct node"/>
// MORE-NEXT:          </pointer>
// MORE-NEXT:          <scalar name="value" line="19" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// MORE-NEXT:        </struct>
// CHECK-NEXT:      </pointer>
// CHECK-NEXT:      <scalar name="value" line="19" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:    </struct>
// CHECK-NEXT:    <struct name="deep" line="23" type="struct top">
// CHECK-NEXT:      <struct name="o" line="23" type="struct outer">
// DEF-NEXT:        <struct name="m" line="23" type="struct mid">
// DEF-NEXT:          <struct name="in" line="23" type="struct inner"/>
// DEF-NEXT:        </struct>
// MORE-NEXT:        <struct name="m" line="23" type="struct mid"/>
// CHECK-NEXT:      </struct>
// CHECK-NEXT:    </struct>
// CHECK-NEXT:    <struct name="an" line="24" type="struct tagged">
// CHECK-NEXT:      <scalar name="tag" line="24" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:      <struct name="" line="24">
// CHECK-NEXT:        <scalar name="i" line="24" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:        <scalar name="f" line="24" type="float" sign="float" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:      </struct>
// CHECK-NEXT:    </struct>

// NOLIMIT:          <struct name="in" line="23" type="struct inner">
// NOLIMIT-NEXT:            <scalar name="a" line="23" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// NOLIMIT-NEXT:          </struct>

// NEG:    <struct name="head" line="19" type="struct node"/>
// NEG-NEXT:    <struct name="deep" line="23" type="struct top"/>
// NEG-NEXT:    <struct name="an" line="24" type="struct tagged"/>
