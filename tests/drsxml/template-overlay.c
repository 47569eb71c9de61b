// The ranges of a text range file laid over the template's defaults: a range sets the mode and
// the bounds, a globalassert adds an assert element; of several lines for one name the first
// range and the first assert win. After a text file, a pointer parameter of a stub whose target
// has a range is marked allocated-write. Lines for which the program has no object are kept at
// the end as chains of elements rebuilt from their names, each marked unmatched.
// RUN: rm -rf %t && mkdir -p %t && cd %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -drs-gen -no-warnings-for-drs -drs-file %S/Inputs/overlay.txt %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s --input-file drs-template.xml
// RUN: xmllint --noout --schema %src_root/src/drsxml/drs.xsd drs-template.xml

int count;
int level;
int triple;
int g;
int *ptr;
int fill(char *buf, int n);
int use(void) { char b[2]; return fill(b, 2); }

// CHECK:    <scalar name="count" line="12" type="int" sign="signed" size="32" mode="init" min="0" max="10"/>
// CHECK-NEXT:    <scalar name="level" line="13" type="int" sign="signed" size="32" mode="permanent" min="1" max="5">
// CHECK-NEXT:      <assert min="0" max="9"/>
// CHECK-NEXT:    </scalar>
// CHECK-NEXT:    <scalar name="triple" line="14" type="int" sign="signed" size="32" mode="init" min="1" max="2">
// CHECK-NEXT:      <assert min="0" max="8"/>
// CHECK-NEXT:    </scalar>
// CHECK-NEXT:    <scalar name="g" line="15" type="int" sign="signed" size="32" mode="default" min="min" max="max">
// CHECK-NEXT:      <assert min="-1" max="1"/>
// CHECK-NEXT:    </scalar>
// CHECK-NEXT:    <pointer name="ptr" line="16" type="int *" mode="init" min="1" max="max" targets="single">
// CHECK-NEXT:      <scalar name="" line="16" type="int" sign="signed" size="32" mode="init" min="0" max="3"/>
// CHECK-NEXT:    </pointer>
// CHECK-NEXT:    <function name="fill" line="17" defined="no" called="no">
// CHECK-NEXT:      <pointer name="#0" line="17" type="signed char *" mode="permanent" min="1" max="max" targets="multi_certain_write" allocated-write="yes">
// CHECK-NEXT:        <scalar name="" line="17" type="signed char" sign="signed" size="8" mode="permanent" min="0" max="100"/>
// CHECK-NEXT:      </pointer>
// CHECK-NEXT:      <scalar name="#1" line="17" type="int" sign="signed" size="32" mode="permanent" min="0" max="4"/>
// CHECK-NEXT:      <scalar name="return" line="17" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:    <function name="use" line="18" called="no">
// CHECK-NEXT:      <scalar name="return" line="18" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:  </file>
// CHECK-NEXT:  <file>
// CHECK-NEXT:    <scalar name="gone" unmatched="yes" mode="init" min="1" max="2"/>
// CHECK-NEXT:    <pointer name="nothere" unmatched="yes" mode="init" min="1" max="max" targets="single_certain_write"/>
// CHECK-NEXT:    <pointer name="nothere" unmatched="yes" mode="default" min="min" max="max" targets="multi">
// CHECK-NEXT:      <scalar name="" unmatched="yes" mode="init" min="0" max="5"/>
// CHECK-NEXT:    </pointer>
// CHECK-NEXT:    <function name="nofunc" unmatched="yes">
// CHECK-NEXT:      <pointer name="return" unmatched="yes" mode="default" min="min" max="max" targets="3">
// CHECK-NEXT:        <scalar name="" unmatched="yes" mode="permanent" min="1" max="2"/>
// CHECK-NEXT:      </pointer>
// CHECK-NEXT:    </function>
// CHECK-NEXT:  </file>
// CHECK-NEXT:  <file name="a.c">
// CHECK-NEXT:    <struct name="lost" static="yes" unmatched="yes">
// CHECK-NEXT:      <scalar name="x" static="yes" unmatched="yes" mode="permanent" min="0" max="1"/>
// CHECK-NEXT:    </struct>
// CHECK-NEXT:  </file>
// CHECK-NEXT:</ranges>
