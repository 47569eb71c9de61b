// A range file that starts as XML but is not a valid one gets one warning with its line and
// what is wrong, and gives no entry at all, not even from its good elements; the run goes on:
// the pragma's range is applied, the stubs and the template are written. -no-warnings-for-drs
// silences the warning.
// RUN: rm -rf %t && mkdir -p %t/stubs && cd %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/bad-not-xml.xml -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=NOTXML,CHECK --input-file %t/err.txt
// RUN: xmllint --noout --schema %src_root/src/drsxml/drs.xsd drs-template.xml
// RUN: %cc-check %t/stubs/qvt_stubs_0.c
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/bad-root.xml -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=ROOT,CHECK --input-file %t/err.txt
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/bad-element.xml -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=ELEMENT,CHECK --input-file %t/err.txt
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/bad-status.xml -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=STATUS,CHECK --input-file %t/err.txt
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/bad-bounds.xml -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --check-prefixes=BOUNDS,CHECK --input-file %t/err.txt
// RUN: qvt-stubber -stubber -drs-gen -no-warnings-for-drs -drs-file %S/Inputs/bad-bounds.xml -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: head -n 1 %t/err.txt > %t/first.txt
// RUN: %FileCheck-exact %s --check-prefix=QUIET --input-file %t/first.txt

#pragma QUORVANTA_DRS init "g" 0 5
int g;
int h;
int get(int *p);
int use(void) { return get(&g) + h; }

// NOTXML:{{.*}}bad-not-xml.xml:5: warning: data-range-specifications: bad XML range file: Opening and ending tag mismatch: scalar line 4 and file
// ROOT:{{.*}}bad-root.xml:2: warning: data-range-specifications: bad XML range file: Element 'limits': No matching global declaration available for the validation root.
// ELEMENT:{{.*}}bad-element.xml:5: warning: data-range-specifications: bad XML range file: Element 'variable': This element is not expected.
// STATUS:{{.*}}bad-status.xml:5: warning: data-range-specifications: bad XML range file: Element 'scalar', attribute 'mode': [facet 'enumeration'] The value 'always' is not an element of the set {'default', 'default-permanent', 'off', 'init', 'permanent'}.
// BOUNDS:{{.*}}bad-bounds.xml:5: warning: data-range-specifications: bad XML range file: Element 'scalar': The attribute 'max' is required but missing.
// CHECK-NEXT:data-range-specifications: 'g' in [0..5] (init)
// CHECK-NEXT:* Function get may write to its arguments and may return random.
// QUIET:data-range-specifications: 'g' in [0..5] (init)
