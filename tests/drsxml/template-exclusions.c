// What stays out of the template: a symbol marked k_no_drs (which C can't write, so the mark is
// put into the IR), special function registers, names of assertion and allocation functions and
// of the analyser's own (prefix tests, so "assertive" is out too), and symbols whose type ends at
// the analyser's or the C library's file structures. With -flaw-scan-cpp, functions that take
// only pointers and give nothing but a pointer or nothing stay out, and with -flaw-scan a static
// of a header that two files include is written once.
// RUN: rm -rf %t && mkdir -p %t && cd %t
// RUN: qvt-cfront %s %S/Inputs/shared_user.c -o %t/c.ir
// RUN: awk '$3 == "var" && $5 == "\"hidden\"" { print; print "@ \"k_no_drs\""; next } $5 == "\"reg\"" { id = $2 } { print } $1 == "def" && $2 == id { print "@ \"k_sfr_init\"" }' %t/c.ir > %t/p.ir
// RUN: qvt-stubber -drs-gen %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s --check-prefixes=CHECK,ALL --input-file drs-template.xml
// RUN: qvt-stubber -drs-gen -flaw-scan-cpp -flaw-scan %t/p.ir %t/p.out.ir
// RUN: %FileCheck-exact %s --input-file drs-template.xml

#include "Inputs/shared.h"
struct _IO_FILE { int fd; };
struct _quorvanta_state { int s; };
int keep;
int hidden;
int reg;
int assert_count;
int assertive;
int malloc_pool;
int *alloca_buf;
int __quorvanta_flag;
struct _IO_FILE *log_file;
struct _quorvanta_state states[2];
void only_ptrs(int *a, char *b);
int *ret_ptr(int *a);
int with_int(int *a, int n);

// CHECK:  <file name="{{.*}}template-exclusions.c">
// CHECK-NEXT:    <scalar name="keep" line="18" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// ALL-NEXT:    <function name="only_ptrs" line="28" defined="no" called="no">
// ALL-NEXT:      <pointer name="#0" line="28" type="int *" mode="default-permanent" min="0" max="max" targets="multi_certain_write">
// ALL-NEXT:        <scalar name="" line="28" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// ALL-NEXT:      </pointer>
// ALL-NEXT:      <pointer name="#1" line="28" type="signed char *" mode="default-permanent" min="0" max="max" targets="multi_certain_write">
// ALL-NEXT:        <scalar name="" line="28" type="signed char" sign="signed" size="8" mode="default-permanent" min="min" max="max"/>
// ALL-NEXT:      </pointer>
// ALL-NEXT:    </function>
// ALL-NEXT:    <function name="ret_ptr" line="29" defined="no" called="no">
// ALL-NEXT:      <pointer name="#0" line="29" type="int *" mode="default-permanent" min="0" max="max" targets="multi_certain_write">
// ALL-NEXT:        <scalar name="" line="29" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// ALL-NEXT:      </pointer>
// ALL-NEXT:      <pointer name="return" line="29" type="int *" mode="default-permanent" min="0" max="max" targets="multi">
// ALL-NEXT:        <scalar name="" line="29" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// ALL-NEXT:      </pointer>
// ALL-NEXT:    </function>
// CHECK-NEXT:    <function name="with_int" line="30" defined="no" called="no">
// ALL-NEXT:      <pointer name="#0" line="30" type="int *" mode="default-permanent" min="0" max="max" targets="multi_certain_write">
// ALL-NEXT:        <scalar name="" line="30" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// ALL-NEXT:      </pointer>
// CHECK-NEXT:      <scalar name="#1" line="30" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// CHECK-NEXT:      <scalar name="return" line="30" type="int" sign="signed" size="32" mode="default-permanent" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:  </file>
// CHECK-NEXT:  <file name="{{.*}}Inputs/shared_user.c">
// CHECK-NEXT:    <function name="read_shared" line="2" called="no">
// CHECK-NEXT:      <scalar name="return" line="2" type="int" sign="signed" size="32" mode="default" min="min" max="max"/>
// CHECK-NEXT:    </function>
// CHECK-NEXT:  </file>
// CHECK-NEXT:  <file name="{{.*}}Inputs/shared.h">
// CHECK-NEXT:    <scalar name="shared_state" line="1" type="int" sign="signed" size="32" static="yes" mode="default" min="min" max="max"/>
// ALL-NEXT:    <scalar name="shared_state" line="1" type="int" sign="signed" size="32" static="yes" mode="default" min="min" max="max"/>
// CHECK-NEXT:  </file>
// CHECK-NEXT:</ranges>
