// The target description, x86_64 Linux by default.
#include "ir/machine.h"

machine_params target;

const char *fundamental_type_c_name[num_F_types] = {"size_t", "ptrdiff_t", "wchar_t", "wint_t"};
bool fundamental_type_is_sign[num_F_types] = {false, true, true, false};

void set_default_target() {
    target.is_big_endian = false;
    target.addressable_size = 8;
    target.char_is_signed = true;
    static const int sizes[num_C_types] = {8, 16, 32, 64, 64, 64, 32, 64, 128};
    static const int aligns[num_C_types] = {8, 16, 32, 64, 64, 64, 32, 64, 128};
    for (int i = 0; i < num_C_types; ++i) {
        target.size[i] = sizes[i];
        target.align[i] = aligns[i];
    }
    target.array_align = 8;
    target.struct_align = 8;
    target.ptr_diff_type = C_long;
    target.fundamental_type[F_size_t] = C_long;
    target.fundamental_type[F_ptrdiff_t] = C_long;
    target.fundamental_type[F_wchar_t] = C_int;
    target.fundamental_type[F_wint_t] = C_int;
    fundamental_type_is_sign[F_size_t] = false;
    fundamental_type_is_sign[F_ptrdiff_t] = true;
    fundamental_type_is_sign[F_wchar_t] = true;
    fundamental_type_is_sign[F_wint_t] = false;
}

namespace {
struct default_target_init {
    default_target_init() { set_default_target(); }
} default_target_init_now;
}  // namespace
