// Accepted bounds as the log shows them once normalised: integer forms of
// every width, floats rounded outward for integers, the keywords, float
// widths and long double forms, and the element count of a pointer's "max".
// RUN: rm -rf %t && mkdir -p %t && cd %t
// RUN: qvt-cfront %s -o p.ir
// RUN: qvt-stubber -drs-gen -drs-file %S/Inputs/values-forms.txt p.ir out.ir 2> err.txt
// RUN: %FileCheck-exact %s --input-file err.txt
// With -40bits-longdouble every float has the single width.
// RUN: printf 'd min max init\nd 0 1e39 permanent\n' > forty.txt
// RUN: qvt-stubber -drs-gen -40bits-longdouble -drs-file forty.txt p.ir out.ir 2> forty.txt.err
// RUN: %FileCheck-exact %s --check-prefix=FORTY --input-file forty.txt.err

signed char s8;
unsigned char u8, u8b;
short s16, s16b;
unsigned short u16;
struct { unsigned int x : 24; int y : 24; } bits;
int s32, r1, r2, r3, r4, r5;
unsigned int u32;
long long s64;
unsigned long long u64;
__int128 s128;
unsigned __int128 u128;
enum level { LOW = -2, HIGH = 7 } lvl, lvl2;
float f;
double d;
long double ld, ld2, ld3, ld4;
char *cp;
int *ip;
void (*fp)(void);

int main(void) {
  return s8 + u8 + u8b + s16 + s16b + u16 + bits.x + bits.y + s32 + r1 + r2 + r3 + r4 + r5 + u32 + s64 + u64 + s128 + u128 + lvl +
         lvl2 + f + d + ld + ld2 + ld3 + ld4 + *cp + *ip + (fp != 0);
}

// CHECK:{{.*}}values-forms.txt:34: warning: data-range-specifications: impossible to check validity of 'ld2'
// CHECK-NEXT:{{.*}}values-forms.txt:35: warning: data-range-specifications: impossible to check validity of 'ld3'
// CHECK-NEXT:data-range-specifications: 's8' in [-128..127] (init)
// CHECK-NEXT:data-range-specifications: 'u8' in [0..255] (init)
// CHECK-NEXT:data-range-specifications: 's16' in [-32768..32767] (init)
// CHECK-NEXT:data-range-specifications: 'u16' in [0..65535] (init)
// CHECK-NEXT:data-range-specifications: 'bits.x' in [0..16777215] (init)
// CHECK-NEXT:data-range-specifications: 'bits.y' in [-8388608..8388607] (init)
// CHECK-NEXT:data-range-specifications: 's32' in [-2147483648..2147483647] (init)
// CHECK-NEXT:data-range-specifications: 'u32' in [0..4294967295] (init)
// CHECK-NEXT:data-range-specifications: 's64' in [-9223372036854775808..9223372036854775807] (init)
// CHECK-NEXT:data-range-specifications: 'u64' in [0..18446744073709551615] (init)
// CHECK-NEXT:data-range-specifications: 's128' in [-170141183460469231731687303715884105728..170141183460469231731687303715884105727] (init)
// CHECK-NEXT:data-range-specifications: 'u128' in [0..340282366920938463463374607431768211455] (init)
// CHECK-NEXT:data-range-specifications: 'lvl' in [-2..7] (init)
// CHECK-NEXT:data-range-specifications: 'lvl2' in [-2147483648..2147483647] (init)
// CHECK-NEXT:data-range-specifications: 'r1' in [-16..16] (init)
// CHECK-NEXT:data-range-specifications: 'r2' in [8..255] (init)
// CHECK-NEXT:data-range-specifications: 'r3' in [1..2] (init)
// CHECK-NEXT:data-range-specifications: 'r4' in [-2..-1] (init)
// CHECK-NEXT:data-range-specifications: 'r5' in [-1..0] (init)
// CHECK-NEXT:data-range-specifications: 'f' in [-3.402823466E+38F..3.402823466E+38F] (init)
// CHECK-NEXT:data-range-specifications: 'd' in [-1.7976931348623157e+308..1.7976931348623157e+308] (init)
// CHECK-NEXT:data-range-specifications: 'ld' in [-1.18973e+4932L..1.18973e+4932L] (init)
// CHECK-NEXT:data-range-specifications: 'cp' [134217726] (not null) (multi) (init)
// CHECK-NEXT:data-range-specifications: 'ip' [33554431] (maybe null) (multi) (init)
// CHECK-NEXT:data-range-specifications: 'fp' [1] (not null) (multi) (init)
// CHECK-NEXT:data-range-specifications: 'ld2' in [-1e4000..0] (init)
// CHECK-NEXT:data-range-specifications: 'ld3' in [0..0x1.8p20000L] (init)
// CHECK-NEXT:data-range-specifications: 's16b' in [-16..8] (globalassert)
// CHECK-NEXT:data-range-specifications: 'u8b' in [16..31] (permanent)

// FORTY:forty.txt:2: warning: data-range-specifications: maximum value not within type bounds of 'd' (permanent)
// FORTY-NEXT:data-range-specifications: 'd' in [-3.402823466E+38F..3.402823466E+38F] (init)
