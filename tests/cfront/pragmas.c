// Every pragma of active code is kept on the file set entry, in source order,
// as its words: string literals lose their quotes, "(", ")" and "," only
// separate, a sign stays with its number. Pragmas in lines skipped by the
// preprocessor are not kept; _Pragma counts like #pragma.
// Our own pragmas draw no "unknown pragma" warning, even as an error.
// RUN: qvt-cfront -Wall -Werror %s -o %t.ir
// RUN: qvt-irdump %t.ir > %t.txt
// RUN: %FileCheck-exact %s < %t.txt

#pragma QUORVANTA_PURE "read_sensor"
#pragma QUORVANTA_WORST write_sensor

#if 0
#pragma QUORVANTA_CLEAN "skipped"
#endif

#ifdef NOT_DEFINED
#pragma QUORVANTA_CLEAN "skipped_too"
#else
#pragma QUORVANTA_DRS permanent "level" -5 1e-3 /* a comment */
#endif

#pragma pack(push, 4)
#pragma pack(pop)
_Pragma("QUORVANTA_NO_INSTRUMENT \"raw_io\"")

int read_sensor(int);

// CHECK:IR file {{.*}}
// CHECK-NEXT:target: {{.*}}
// CHECK-NEXT:  @k_pragma "QUORVANTA_PURE" "read_sensor"
// CHECK-NEXT:  @k_pragma "QUORVANTA_WORST" "write_sensor"
// CHECK-NEXT:  @k_pragma "QUORVANTA_DRS" "permanent" "level" "-5" "1e-3"
// CHECK-NEXT:  @k_pragma "pack" "push" "4"
// CHECK-NEXT:  @k_pragma "pack" "pop"
// CHECK-NEXT:  @k_pragma "QUORVANTA_NO_INSTRUMENT" "raw_io"
// CHECK-EMPTY:
// CHECK-NEXT:global table:
