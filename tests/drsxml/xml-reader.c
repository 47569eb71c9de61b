// What the reader makes of each element of an XML range file: a range in mode init, permanent or
// an assert range gives an entry, as the log shows; "default" gives none; a pointer "written"
// gives a permanent entry of the full range with its pointer kind, unless the kind is unknown. A
// static is named with its file. An assert range pairs with an init range, never with a permanent
// one (the binding rule of the text file), and the warning names the assert's line. A variable switched off leaves the generated initialisation,
// and "called" adds a function to the main loop or takes it out: the generated main is the one
// that the same choices by options and a text range file give.
// RUN: rm -rf %t && mkdir -p %t/a %t/b && cd %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -main-generator -variables-written-before-loop all -functions-called-in-loop custom=idle,use -drs-file %S/Inputs/reader.xml -stubs-dir %t/a %t/p.ir %t/a.ir 2> %t/err.txt
// RUN: %FileCheck-exact %s --input-file %t/err.txt
// RUN: qvt-stubber -stubber -drs-gen -main-generator -drs-file %S/Inputs/reader.txt -variables-written-before-loop custom=kept,level,both,pa,checked,wp,counter -functions-called-in-loop custom=use,step -stubs-dir %t/b %t/p.ir %t/b.ir 2> %t/err-b.txt
// RUN: diff %t/a/__quorvanta_main.c %t/b/__quorvanta_main.c
// RUN: diff %t/a/qvt_stubs_0.c %t/b/qvt_stubs_0.c
// RUN: %cc-check %t/a/qvt_stubs_0.c %t/a/__quorvanta_main.c

int kept;
int off_var;
int level;
int both;
int pa;
int checked;
int *off_ptr;
int *wp;
static int counter;
int ext(int *p);
int ext2(int *p);
int step(int x) { return x + counter; }
int idle(int x) { return x; }
int use(void) { return ext(&kept) + ext2(&level); }

// CHECK:{{.*}}reader.xml:11: warning: data-range-specifications: 'pa' previously specified in the file, ignoring this line
// CHECK-NEXT:data-range-specifications: 'level' in [0..10] (init)
// CHECK-NEXT:data-range-specifications: 'both' in [1..5] (init)
// CHECK-NEXT:data-range-specifications: 'wp' [4] (not null) (single) (init)
// CHECK-NEXT:data-range-specifications: 'wp[]' in [0..7] (init)
// CHECK-NEXT:data-range-specifications: 'xml-reader.c:counter' in [2..3] (init)
// CHECK-NEXT:data-range-specifications: 'ext.arg1' [{{[0-9]+}}] (maybe null) (multi_certain_write) (permanent)
// CHECK-NEXT:data-range-specifications: 'ext.return' in [0..3] (permanent)
// CHECK-NEXT:data-range-specifications: 'both' in [0..9] (globalassert)
// CHECK-NEXT:data-range-specifications: 'checked' in [-1..1] (globalassert)
// CHECK-NEXT:data-range-specifications: 'pa' in [1..5] (permanent)
