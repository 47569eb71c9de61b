// The round trip of the template: written by -drs-gen, edited by a script (a range set on a
// variable, a field and a stub's parameter, a variable switched off, a function called), read
// back with -drs-file, it gives the same generated C and the same IR as the equivalent text
// range file with the same choices by options. A template read back unedited and written again
// is the same file.
// RUN: rm -rf %t && mkdir -p %t/gen %t/xml %t/txt && cd %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -main-generator -variables-written-before-loop all -functions-called-in-loop custom=control -stubs-dir %t/gen %t/p.ir %t/gen.ir
// RUN: cp drs-template.xml first.xml
// RUN: qvt-stubber -stubber -drs-gen -main-generator -variables-written-before-loop all -functions-called-in-loop custom=control -drs-file first.xml -stubs-dir %t/gen %t/p.ir %t/gen.ir
// RUN: cmp first.xml drs-template.xml
// RUN: python3 %S/Inputs/edit-template.py first.xml edited.xml speed mode=init max=120 min=0 -- config.mode mode=permanent min=0 max=3 -- sensor_read.#0 mode=permanent -- sensor_read.#0* mode=permanent min=0 max=100 -- gear mode=off -- tick called=yes
// RUN: qvt-stubber -stubber -drs-gen -main-generator -variables-written-before-loop all -functions-called-in-loop custom=control -drs-file edited.xml -stubs-dir %t/xml %t/p.ir %t/xml.ir 2> %t/xml-err.txt
// RUN: qvt-stubber -stubber -drs-gen -main-generator -variables-written-before-loop custom=speed,buffer,config -functions-called-in-loop custom=control,tick -drs-file %S/Inputs/roundtrip.txt -stubs-dir %t/txt %t/p.ir %t/txt.ir 2> %t/txt-err.txt
// RUN: diff %t/xml-err.txt %t/txt-err.txt
// RUN: diff -r %t/xml %t/txt
// RUN: qvt-irdump %t/xml.ir | tail -n +2 > %t/xml.dump
// RUN: qvt-irdump %t/txt.ir | tail -n +2 > %t/txt.dump
// RUN: diff %t/xml.dump %t/txt.dump
// RUN: %cc-check %t/xml/qvt_stubs_0.c %t/xml/__quorvanta_main.c

int speed;
int gear;
int *buffer;
struct cfg { int mode; int limits[2]; } config;
int sensor_read(int *out);
int tick(int n) { return n + gear; }
int control(void) { int v; sensor_read(&v); return v + speed + config.mode; }
