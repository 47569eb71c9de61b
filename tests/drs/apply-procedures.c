// What permanent and globalassert ranges on variables become in the IR: generated procedures
// named Qvt_Global_Assert_N, globalassert ones first. A permanent scalar is one range
// procedure; a field or an element is written from a new volatile global, whose range
// procedure declares the range, by a list procedure that then reads the leaf's address. A
// globalassert range is a test that returns 0 under min (then part) and v <= max otherwise
// (else part); on an array it tests element 0, handed in as a parameter.
// RUN: rm -rf %t && mkdir -p %t/stubs
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -stubber -drs-gen -drs-file %S/Inputs/apply-procedures.txt -stubs-dir %t/stubs %t/p.ir %t/p.out.ir 2> %t/err.txt
// RUN: qvt-irdump %t/p.out.ir > %t/dump.txt
// RUN: %FileCheck-exact %s --input-file %t/dump.txt
// RUN: %cc-check %t/stubs/qvt_stubs_0.c

enum mode { OFF, ON, AUTO };
struct point { int x; int y; };
struct setting { short pad; enum mode m; };
struct holder { int tag; union { int u; float v; }; };
int g, h, a[10], b[10];
struct point s;
struct setting cfg;
enum mode md;
float f;
struct holder hd;

int main(void) { return g + h + a[1] + b[1] + s.y + cfg.m + md + (int)f + hd.u; }

// CHECK:  var int g [defined, align 32] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_drs_permanent_var
// CHECK-NEXT:      @k_drs_touched
// CHECK:  proc int () Qvt_Global_Assert_1 [body] [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:      @k_source_coordinates "C-STUBS\\\\qvt_stubs_0.c" 1 1
// CHECK-NEXT:  proc int (int *) Qvt_Global_Assert_2 [body] [userdef]  /* #{{[0-9]+}} */
// CHECK:  var volatile int _tmp1 [addr taken] [defined, align 32]  /* #{{[0-9]+}} */
// CHECK:  var unsigned int __qv_builtin_all [extern]  /* #{{[0-9]+}} */
// CHECK-NEXT:  var volatile int _tmp2 [addr taken] [defined, align 32]  /* #{{[0-9]+}} */
// CHECK:  var volatile unsigned int _tmp3 [addr taken] [defined, align 32]  /* #{{[0-9]+}} */

// CHECK-LABEL:int Qvt_Global_Assert_1()  /* globalassert range test: returns 0 on failure of global assertion condition [h in the range of 0...10] */
// CHECK-NEXT:{
// CHECK-NEXT:    @k_source_coordinates "C-STUBS\\\\qvt_stubs_0.c" 1 1
// CHECK-NEXT:    @k_enable_exceptions "int_divide-by-0"
// CHECK-NEXT:    @k_drs "globalassert" "failure of global assertion condition [h in the range of 0...10]"
// CHECK-NEXT:    label L1  /* #{{[0-9]+}} */
// CHECK-NEXT:    var int _tmp1  /* #{{[0-9]+}} */
// CHECK-NEXT:    var int _tmp2  /* #{{[0-9]+}} */
// CHECK-NEXT:    mark;
// CHECK-NEXT:        @k_sequence_point "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    if-header (else at L1) {
// CHECK-NEXT:        _tmp1 = (0 (ext int) <= h);
// CHECK-NEXT:        if (_tmp1) goto L1;
// CHECK-NEXT:    } then {
// CHECK-NEXT:        _tmp2 = 0;
// CHECK-NEXT:    } else {
// CHECK-NEXT:        _tmp2 = (h <= 10 (ext int));
// CHECK-NEXT:    }
// CHECK-NEXT:    return _tmp2;
// CHECK-NEXT:}

// CHECK-LABEL:int Qvt_Global_Assert_2(int _tmp1)  /* globalassert range test: returns 0 on failure of global assertion condition [b in the range of 5...6] */
// CHECK-NEXT:{
// CHECK-NEXT:    @k_source_coordinates "C-STUBS\\\\qvt_stubs_0.c" 1 1
// CHECK-NEXT:    @k_enable_exceptions "int_divide-by-0"
// CHECK-NEXT:    @k_drs "globalassert" "failure of global assertion condition [b in the range of 5...6]"
// CHECK-NEXT:    var int _tmp2 [userdef]  /* #{{[0-9]+}} */
// CHECK-NEXT:    label L1  /* #{{[0-9]+}} */
// CHECK-NEXT:    var int _tmp3  /* #{{[0-9]+}} */
// CHECK-NEXT:    var int _tmp4  /* #{{[0-9]+}} */
// CHECK-NEXT:    mark;
// CHECK-NEXT:        @k_sequence_point "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    _tmp2 = *((4 * 0) + &b);
// CHECK-NEXT:        @k_source_coordinates "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    mark;
// CHECK-NEXT:        @k_sequence_point "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    if-header (else at L1) {
// CHECK-NEXT:        _tmp3 = (5 (ext int) <= _tmp1);
// CHECK-NEXT:        if (_tmp3) goto L1;
// CHECK-NEXT:    } then {
// CHECK-NEXT:        _tmp4 = 0;
// CHECK-NEXT:    } else {
// CHECK-NEXT:        _tmp4 = (_tmp1 <= 6 (ext int));
// CHECK-NEXT:    }
// CHECK-NEXT:    return _tmp4;
// CHECK-NEXT:}

// CHECK-LABEL:int Qvt_Global_Assert_3()  /* globalassert range test: returns 0 on failure of global assertion condition [md in the range of 0...1] */
// CHECK-NEXT:{
// CHECK-NEXT:    @k_source_coordinates "C-STUBS\\\\qvt_stubs_0.c" 1 1
// CHECK-NEXT:    @k_enable_exceptions "int_divide-by-0"
// CHECK-NEXT:    @k_drs "globalassert" "failure of global assertion condition [md in the range of 0...1]"
// CHECK-NEXT:    var unsigned int _tmp1  /* #{{[0-9]+}} */
// CHECK-NEXT:    label L1  /* #{{[0-9]+}} */
// CHECK-NEXT:    var int _tmp2  /* #{{[0-9]+}} */
// CHECK-NEXT:    var int _tmp3  /* #{{[0-9]+}} */
// CHECK-NEXT:    mark;
// CHECK-NEXT:        @k_sequence_point "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    if-header (else at L1) {
// CHECK-NEXT:        _tmp1 = (unsigned int) md;
// CHECK-NEXT:        _tmp2 = (0 (ext int) <= _tmp1);
// CHECK-NEXT:        if (_tmp2) goto L1;
// CHECK-NEXT:    } then {
// CHECK-NEXT:        _tmp3 = 0;
// CHECK-NEXT:    } else {
// CHECK-NEXT:        _tmp3 = (_tmp1 <= 1 (ext int));
// CHECK-NEXT:    }
// CHECK-NEXT:    return _tmp3;
// CHECK-NEXT:}

// CHECK-LABEL:int Qvt_Global_Assert_4()  /* permanent range: g in [0..10] (irange) */
// CHECK-NEXT:{
// CHECK-NEXT:    @k_source_coordinates "C-STUBS\\\\qvt_stubs_0.c" 1 1
// CHECK-NEXT:    @k_enable_exceptions "int_divide-by-0"
// CHECK-NEXT:    @k_drs "permanent" "g" "irange" "0" "10"
// CHECK-NEXT:    mark;
// CHECK-NEXT:        @k_sequence_point "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    return 1;
// CHECK-NEXT:}

// CHECK-LABEL:int Qvt_Global_Assert_5()  /* permanent range: _tmp1 in [1..2] (irange) */
// CHECK-NEXT:{
// CHECK-NEXT:    @k_source_coordinates "C-STUBS\\\\qvt_stubs_0.c" 1 1
// CHECK-NEXT:    @k_enable_exceptions "int_divide-by-0"
// CHECK-NEXT:    @k_drs "permanent" "_tmp1" "irange" "1" "2"
// CHECK-NEXT:    mark;
// CHECK-NEXT:        @k_sequence_point "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    return 1;
// CHECK-NEXT:}

// CHECK-LABEL:int Qvt_Global_Assert_6()  /* permanent range list: writes the ranged leaves, then reads their addresses */
// CHECK-NEXT:{
// CHECK-NEXT:    @k_source_coordinates "C-STUBS\\\\qvt_stubs_0.c" 1 1
// CHECK-NEXT:    @k_drs_range_func
// CHECK-NEXT:    var int * _tmp2  /* #{{[0-9]+}} */
// CHECK-NEXT:    mark;
// CHECK-NEXT:        @k_sequence_point "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    *(&s + 4) = _tmp1;
// CHECK-NEXT:        @k_fields "y"
// CHECK-NEXT:        @k_source_coordinates "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    _tmp2 = (&s + 4);
// CHECK-NEXT:        @k_fields "y"
// CHECK-NEXT:    return 1;
// CHECK-NEXT:}

// CHECK-LABEL:int Qvt_Global_Assert_7()  /* permanent range: _tmp2 in [3..4] (irange) */
// CHECK-LABEL:int Qvt_Global_Assert_8()  /* permanent range list: writes the ranged leaves, then reads their addresses */
// CHECK-NEXT:{
// CHECK-NEXT:    @k_source_coordinates "C-STUBS\\\\qvt_stubs_0.c" 1 1
// CHECK-NEXT:    @k_drs_range_func
// CHECK-NEXT:    var int * _tmp3  /* #{{[0-9]+}} */
// CHECK-NEXT:    mark;
// CHECK-NEXT:        @k_sequence_point "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    *(__qv_builtin_all + &a) = _tmp2;
// CHECK-NEXT:        @k_source_coordinates "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    _tmp3 = ((4 * 0) + &a);
// CHECK-NEXT:    return 1;
// CHECK-NEXT:}

// CHECK-LABEL:int Qvt_Global_Assert_9()  /* permanent range: _tmp3 in [0..1] (irange) */
// CHECK-LABEL:int Qvt_Global_Assert_10()  /* permanent range list: writes the ranged leaves, then reads their addresses */
// CHECK:    *(&cfg + 4) = _tmp3;
// CHECK-NEXT:        @k_fields "m"
// CHECK-NEXT:        @k_source_coordinates "?qvt_hidden_file?" 1 1
// CHECK-NEXT:    _tmp4 = (&cfg + 4);

// CHECK-LABEL:int Qvt_Global_Assert_11()  /* permanent range: f in [-3.402823466E+38F..3.402823466E+38F] (frange) */
// CHECK-NEXT:{
// CHECK-NEXT:    @k_source_coordinates "C-STUBS\\\\qvt_stubs_0.c" 1 1
// CHECK-NEXT:    @k_enable_exceptions "int_divide-by-0"
// CHECK-NEXT:    @k_drs "permanent" "f" "frange" "-3.402823466E+38F" "3.402823466E+38F"

// CHECK-LABEL:int Qvt_Global_Assert_12()  /* permanent range: _tmp4 in [7..8] (irange) */
// CHECK-LABEL:int Qvt_Global_Assert_13()  /* permanent range list: writes the ranged leaves, then reads their addresses */
// CHECK:    *((&hd + 4) + 0) = _tmp4;
// CHECK-NEXT:        @k_fields "u"
// CHECK-NEXT:        @k_source_coordinates "?qvt_hidden_file?" 1 1
// CHECK-NEXT:        @k_fields "{{qvtunnsubs[0-9]+}}"
// CHECK-NEXT:    _tmp5 = ((&hd + 4) + 0);
// CHECK-NEXT:        @k_fields "u"
// CHECK-NEXT:        @k_fields "{{qvtunnsubs[0-9]+}}"
// CHECK-NEXT:    return 1;
// CHECK-NEXT:}
