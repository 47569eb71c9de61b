// The symbol header: each used function without a body gets its name macro and the typedefs
// of its return and parameter types in the source's own spelling; a void function returns
// through the do-while form; without a prototype no parameter is annotated; unused and
// defined functions get nothing. The fundamental types come from the target.
// RUN: rm -rf %t && mkdir -p %t
// RUN: qvt-cfront %s -o %t/p.ir
// RUN: qvt-stubber -unknown-symbols %t/p.ir %t/h.h
// RUN: %FileCheck-exact %s < %t/h.h
// RUN: %gcc -fsyntax-only -std=gnu11 -I %t %S/Inputs/use-symbol-header.c
// RUN: %clang -fsyntax-only -std=gnu11 -I %t %S/Inputs/use-symbol-header.c

char *copy(char *dst, const char *src);
void log_line(const char *text);
int count();
int (*pick(int which))(int);
int unused(int);

int main(void) {
  char buf[8];
  copy(buf, "x");
  log_line(buf);
  return count() + pick(1)(2);
}

// CHECK:#define __quorvanta_static_types_for_stubs
// CHECK-NEXT:#define __quorvanta_copy
// CHECK-NEXT:#ifndef __quorvanta_copy_ret_t_typedef
// CHECK-NEXT:#define __quorvanta_copy_ret_t_typedef typedef char *__quorvanta_copy_ret_t;
// CHECK-NEXT:#endif /* __quorvanta_copy_ret_t_typedef */
// CHECK-NEXT:#ifndef __quorvanta_copy_return
// CHECK-NEXT:#define __quorvanta_copy_return(__x) return (__quorvanta_copy_ret_t)(__x)
// CHECK-NEXT:#endif /* __quorvanta_copy_return */
// CHECK-NEXT:#define __quorvanta_copy_nb_args 2
// CHECK-NEXT:#ifndef __quorvanta_copy_arg0_t_typedef
// CHECK-NEXT:#define __quorvanta_copy_arg0_t_typedef typedef char *__quorvanta_copy_arg0_t;
// CHECK-NEXT:#endif /* __quorvanta_copy_arg0_t_typedef */
// CHECK-NEXT:#ifndef __quorvanta_copy_arg1_t_typedef
// CHECK-NEXT:#define __quorvanta_copy_arg1_t_typedef typedef const char *__quorvanta_copy_arg1_t;
// CHECK-NEXT:#endif /* __quorvanta_copy_arg1_t_typedef */
// CHECK-NEXT:#define __quorvanta_copy_known_type
// CHECK-EMPTY:
// CHECK-NEXT:#define __quorvanta_log_line
// CHECK-NEXT:#ifndef __quorvanta_log_line_ret_t_typedef
// CHECK-NEXT:#define __quorvanta_log_line_ret_t_typedef typedef void __quorvanta_log_line_ret_t;
// CHECK-NEXT:#endif /* __quorvanta_log_line_ret_t_typedef */
// CHECK-NEXT:#ifndef __quorvanta_log_line_return
// CHECK-NEXT:#define __quorvanta_log_line_return(__x) do { (void)(__x); return; } while(0){{[ ]}}
// CHECK-NEXT:#endif /* __quorvanta_log_line_return */
// CHECK-NEXT:#define __quorvanta_log_line_nb_args 1
// CHECK-NEXT:#ifndef __quorvanta_log_line_arg0_t_typedef
// CHECK-NEXT:#define __quorvanta_log_line_arg0_t_typedef typedef const char *__quorvanta_log_line_arg0_t;
// CHECK-NEXT:#endif /* __quorvanta_log_line_arg0_t_typedef */
// CHECK-NEXT:#define __quorvanta_log_line_known_type
// CHECK-EMPTY:
// CHECK-NEXT:#define __quorvanta_count
// CHECK-NEXT:#ifndef __quorvanta_count_ret_t_typedef
// CHECK-NEXT:#define __quorvanta_count_ret_t_typedef typedef int __quorvanta_count_ret_t;
// CHECK-NEXT:#endif /* __quorvanta_count_ret_t_typedef */
// CHECK-NEXT:#ifndef __quorvanta_count_return
// CHECK-NEXT:#define __quorvanta_count_return(__x) return (__quorvanta_count_ret_t)(__x)
// CHECK-NEXT:#endif /* __quorvanta_count_return */
// CHECK-NEXT:/* no arguments types annotated */
// CHECK-EMPTY:
// CHECK-NEXT:#define __quorvanta_pick
// CHECK-NEXT:#ifndef __quorvanta_pick_ret_t_typedef
// CHECK-NEXT:#define __quorvanta_pick_ret_t_typedef typedef int (*__quorvanta_pick_ret_t)(int);
// CHECK-NEXT:#endif /* __quorvanta_pick_ret_t_typedef */
// CHECK-NEXT:#ifndef __quorvanta_pick_return
// CHECK-NEXT:#define __quorvanta_pick_return(__x) return (__quorvanta_pick_ret_t)(__x)
// CHECK-NEXT:#endif /* __quorvanta_pick_return */
// CHECK-NEXT:#define __quorvanta_pick_nb_args 1
// CHECK-NEXT:#ifndef __quorvanta_pick_arg0_t_typedef
// CHECK-NEXT:#define __quorvanta_pick_arg0_t_typedef typedef int __quorvanta_pick_arg0_t;
// CHECK-NEXT:#endif /* __quorvanta_pick_arg0_t_typedef */
// CHECK-NEXT:#define __quorvanta_pick_known_type
// CHECK-EMPTY:
// CHECK-NEXT:#undef QVT_BUILTIN_TARGET_UCHAR_MAX
// CHECK-NEXT:#define QVT_BUILTIN_TARGET_UCHAR_MAX 255
// CHECK-NEXT:#define NO_NEED_FUNDAMENTAL_TYPES /* To avoid including fundamental types in stddef.h */
// The four fundamental types follow, from the target (their lines are checked whole in
// symbol-header-customer-types.c and in the unit tests).
// CHECK-NEXT:#define __SIZE_TYPE__ unsigned long
// CHECK:typedef unsigned long size_t; /*Target defined*/{{[ ]}}
// CHECK:#endif /*__QUORVANTA_NEED_WINT_T_*/
// CHECK-NOT:{{.}}
