/* A target header's use of the symbol header: it asks for two fundamental types and
   declares a standard stub through the macros of "copy" and "log_line". */
#define __QUORVANTA_NEED_SIZE_T_
#define __QUORVANTA_NEED_WCHAR_T_
#include "h.h"
#include "h.h"

__quorvanta_copy_ret_t_typedef
__quorvanta_copy_arg1_t_typedef
__quorvanta_log_line_ret_t_typedef

size_t length;
wchar_t wide;

__quorvanta_copy_ret_t copy(char *dst, __quorvanta_copy_arg1_t src) {
  (void)src;
  __quorvanta_copy_return(dst);
}

__quorvanta_log_line_ret_t log_line(const char *text) {
  __quorvanta_log_line_return(text);
}
