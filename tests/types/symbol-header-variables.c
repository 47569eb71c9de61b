// Variables in the symbol header: an extern one that is used gets its name macro, a tentative
// array definition also the array size macro; unused and ordinary defined ones get nothing.
// RUN: rm -rf %t && mkdir -p %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -unknown-symbols %t/p.ir %t/h.h
// RUN: %FileCheck-exact %s < %t/h.h

extern int shared_counter;
extern int never_touched;
int buffer[];
int plain = 3;

int main(void) { return shared_counter + buffer[0] + plain; }

// CHECK:#define __quorvanta_static_types_for_stubs
// CHECK-NEXT:#define __quorvanta_shared_counter
// CHECK-NEXT:#define __quorvanta_buffer
// CHECK-NEXT:#define __quorvanta_buffer_array_size_d1_needed
// CHECK-NEXT:#undef QVT_BUILTIN_TARGET_UCHAR_MAX
