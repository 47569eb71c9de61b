// The target machine: sizes and alignments of the C types, the addressable
// unit, and the C types behind the fundamental typedef names.
#pragma once

// C types of the target, in order of size for the integers.
enum C_types {
    C_char = 0,
    C_short = 1,
    C_int = 2,
    C_long = 3,
    C_longlong = 4,
    C_ptr = 5,
    C_float = 6,
    C_double = 7,
    C_longdouble = 8,
    num_C_types = 9,
    C_none = 9,  // no C type fits
};

// The fundamental typedef names.
enum F_types {
    F_size_t = 0,
    F_ptrdiff_t = 1,
    F_wchar_t = 2,
    F_wint_t = 3,
    num_F_types = 4,
};

struct machine_params {
    bool is_big_endian;
    int addressable_size;           // bits of the addressable unit
    bool char_is_signed;
    int size[num_C_types];          // bits
    int align[num_C_types];         // bits
    int array_align;                // bits
    int struct_align;               // bits
    C_types ptr_diff_type;          // the integer of pointer size
    C_types fundamental_type[num_F_types];
};

// The target of the run; x86_64 Linux until a front end or the reader sets it.
extern machine_params target;
// Resets `target` to x86_64 Linux.
void set_default_target();

// C name and signedness of each fundamental type ("size_t", ...).
extern const char *fundamental_type_c_name[num_F_types];
extern bool fundamental_type_is_sign[num_F_types];
