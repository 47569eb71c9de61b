// The template's elements of scalars, pointers and arrays with the stubber's defaults: a plain
// global is "default", a volatile one "default-permanent"; a pointer runs from "0" to "max" and has
// its target below it, a volatile pointer none. -flaw-scan exports a global pointer but no
// pointer behind it. The file validates against the shipped schema.
// RUN: rm -rf %t && mkdir -p %t/stubs && cd %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -drs-gen %t/p.ir %t/p.out.ir
// RUN: xmllint --noout --schema %src_root/src/drsxml/drs.xsd drs-template.xml
// RUN: %FileCheck-exact %s --input-file drs-template.xml
// RUN: qvt-stubber -drs-gen -flaw-scan %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s --check-prefix=FLAW --input-file drs-template.xml

enum level { LOW = -2, HIGH = 5 };
int count;
unsigned char flags;
float ratio;
enum level lvl;
volatile int port;
const short limit = 3;
int *ptr;
int **pp;
int *volatile vptr;
long table[4];

// CHECK:<?xml version="1.0" encoding="UTF-8"?>
// CHECK-NEXT:<ranges version="2">
// CHECK-NEXT:  <file name="{{.*}}template-scalars.c">
// CHECK-NEXT:    <scalar name="count" line="14" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:    <scalar name="flags" line="15" type="unsigned char" sign="unsigned" size="8" mode="default" min="min" max="max"/>
// CHECK-NEXT:    <scalar name="ratio" line="16" type="float" sign="float" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:    <scalar name="lvl" line="17" type="enum level" sign="signed" size="32" mode="default" min="enum_min" max="enum_max"/>
// CHECK-NEXT:    <scalar name="port" line="18" type="int" sign="signed" size="32" volatile="yes" mode="default-permanent" min="min" max="max"/>
// CHECK-NEXT:    <scalar name="limit" line="19" type="short" sign="signed" size="16" const="yes" mode="default" min="min" max="max"/>
// CHECK-NEXT:    <pointer name="ptr" line="20" type="int *" mode="default" min="0" max="max" targets="multi">
// CHECK-NEXT:      <scalar name="" line="20" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:    </pointer>
// CHECK-NEXT:    <pointer name="pp" line="21" type="int * *" mode="default" min="0" max="max" targets="multi">
// CHECK-NEXT:      <pointer name="" line="21" type="int *" mode="default" min="0" max="max" targets="multi">
// CHECK-NEXT:        <scalar name="" line="21" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:      </pointer>
// CHECK-NEXT:    </pointer>
// CHECK-NEXT:    <pointer name="vptr" line="22" type="int *" volatile="yes" mode="default" min="0" max="max" targets="multi"/>
// CHECK-NEXT:    <array name="table" line="23" type="long[4]">
// CHECK-NEXT:      <scalar name="" line="23" type="long" sign="signed" size="64" mode="default" min="min" max="max"/>
// CHECK-NEXT:    </array>
// CHECK-NEXT:  </file>
// CHECK-NEXT:</ranges>

// FLAW:    <pointer name="pp" line="21" type="int * *" mode="default" min="0" max="max" targets="multi"/>
