// Functions in the template: each parameter is "#N" and the result "return". Those of a defined
// function are "default"; those of an undefined one "default-permanent", a pointer parameter
// with certain writes, or with no writes at all for a pure stub; a variadic function shows its
// named parameters only. "called" says whether the generated main calls the function, "dead"
// that nobody calls it. A static is marked so under its own file, and a static of the same
// name in another file is another element there.
// RUN: rm -rf %t && mkdir -p %t/stubs && cd %t
// RUN: qvt-cfront %s %S/Inputs/statics.c -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -main-generator -functions-called-in-loop custom=add -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file drs-template.xml
// RUN: xmllint --noout --schema %src_root/src/drsxml/drs.xsd drs-template.xml
// RUN: %cc-check %t/stubs/qvt_stubs_0.c %t/stubs/__quorvanta_main.c

#pragma QUORVANTA_PURE "pure_get"
int add(int a, int *out) { *out = a; return a; }
int fill(char *buf, int n);
int pure_get(int *p);
void trace(const char *format, ...);
static int helper(int x) { return x; }
int use(void) { char b[4]; int v; trace("x"); return fill(b, 4) + pure_get(&v) + helper(1); }

// CHECK:  <file name="{{.*}}template-functions.c">
// CHECK-NEXT:    <function name="add" line="15" dead="yes" called="yes">
// CHECK-NEXT:      <scalar name="#0" line="15" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:      <pointer name="#1" line="15" type="int *" mode="default" min="0" max="max" targets="multi">
// CHECK-NEXT:        <scalar name="" line="15" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:      </pointer>
// CHECK-NEXT:      <scalar name="return" line="15" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:    <function name="fill" line="16" defined="no" called="no">
// CHECK-NEXT:      <pointer name="#0" line="16" type="signed char *" mode="default-permanent" min="0" max="max" targets="multi_certain_write">
// CHECK-NEXT:        <scalar name="" line="16" type="signed char" sign="signed" size="8" mode="default-permanent" min="min" max="max"/>
// CHECK-NEXT:      </pointer>
// CHECK-NEXT:      <scalar name="#1" line="16" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// CHECK-NEXT:      <scalar name="return" line="16" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:    <function name="pure_get" line="17" defined="no" called="no">
// CHECK-NEXT:      <pointer name="#0" line="17" type="int *" mode="default-permanent" min="0" max="max" targets="none">
// CHECK-NEXT:        <scalar name="" line="17" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// CHECK-NEXT:      </pointer>
// CHECK-NEXT:      <scalar name="return" line="17" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:    <function name="trace" line="18" defined="no" called="no">
// CHECK-NEXT:      <pointer name="#0" line="18" type="const signed char *" mode="default-permanent" min="0" max="max" targets="multi_certain_write">
// CHECK-NEXT:        <scalar name="" line="18" type="signed char" sign="signed" size="8" const="yes" mode="default-permanent" min="min" max="max"/>
// CHECK-NEXT:      </pointer>
// CHECK-NEXT:    </function>
// CHECK-NEXT:    <function name="use" line="20" dead="yes" called="no">
// CHECK-NEXT:      <scalar name="return" line="20" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:    <function name="helper" line="19" static="yes" called="no">
// CHECK-NEXT:      <scalar name="#0" line="19" type="int" sign="signed" size="32" static="yes" mode="default" min="min" max="max"/>
// CHECK-NEXT:      <scalar name="return" line="19" type="int" sign="signed" size="32" static="yes" mode="default" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:  </file>
// CHECK-NEXT:  <file name="{{.*}}Inputs/statics.c">
// CHECK-NEXT:    <function name="other_use" line="3" dead="yes" called="no">
// CHECK-NEXT:      <scalar name="return" line="3" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:    <scalar name="counter" line="1" type="int" sign="signed" size="32" static="yes" mode="default" min="min" max="max"/>
// CHECK-NEXT:    <function name="helper" line="2" static="yes" called="no">
// CHECK-NEXT:      <scalar name="#0" line="2" type="int" sign="signed" size="32" static="yes" mode="default" min="min" max="max"/>
// CHECK-NEXT:      <scalar name="return" line="2" type="int" sign="signed" size="32" static="yes" mode="default" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:  </file>
