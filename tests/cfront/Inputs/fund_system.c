/* size_t and wint_t from the system headers: not the user's. */
#include <stddef.h>
#include <wchar.h>
size_t size;
wint_t wide_int;
