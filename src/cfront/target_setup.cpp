// Everything comes from clang's TargetInfo for the triple the driver chose,
// so the IR describes the machine the sources were parsed for.
#include "cfront/target_setup.h"

#include "ir/ir.h"

#include <clang/AST/ASTContext.h>
#include <clang/Basic/TargetInfo.h>

namespace {

C_types c_type_of(clang::TargetInfo::IntType t) {
    switch (t) {
    case clang::TargetInfo::SignedChar:
    case clang::TargetInfo::UnsignedChar: return C_char;
    case clang::TargetInfo::SignedShort:
    case clang::TargetInfo::UnsignedShort: return C_short;
    case clang::TargetInfo::SignedInt:
    case clang::TargetInfo::UnsignedInt: return C_int;
    case clang::TargetInfo::SignedLong:
    case clang::TargetInfo::UnsignedLong: return C_long;
    case clang::TargetInfo::SignedLongLong:
    case clang::TargetInfo::UnsignedLongLong: return C_longlong;
    default: return C_none;
    }
}

}  // namespace

void setup_target(const clang::ASTContext &ctx) {
    const clang::TargetInfo &ti = ctx.getTargetInfo();
    machine_params &m = target;
    m.is_big_endian = ti.isBigEndian();
    m.addressable_size = (int)ti.getCharWidth();
    m.char_is_signed = ctx.getLangOpts().CharIsSigned;
    m.size[C_char] = (int)ti.getCharWidth();
    m.align[C_char] = (int)ti.getCharAlign();
    m.size[C_short] = (int)ti.getShortWidth();
    m.align[C_short] = (int)ti.getShortAlign();
    m.size[C_int] = (int)ti.getIntWidth();
    m.align[C_int] = (int)ti.getIntAlign();
    m.size[C_long] = (int)ti.getLongWidth();
    m.align[C_long] = (int)ti.getLongAlign();
    m.size[C_longlong] = (int)ti.getLongLongWidth();
    m.align[C_longlong] = (int)ti.getLongLongAlign();
    m.size[C_ptr] = (int)ti.getPointerWidth(0);
    m.align[C_ptr] = (int)ti.getPointerAlign(0);
    m.size[C_float] = (int)ti.getFloatWidth();
    m.align[C_float] = (int)ti.getFloatAlign();
    m.size[C_double] = (int)ti.getDoubleWidth();
    m.align[C_double] = (int)ti.getDoubleAlign();
    m.size[C_longdouble] = (int)ti.getLongDoubleWidth();
    m.align[C_longdouble] = (int)ti.getLongDoubleAlign();
    m.array_align = (int)ti.getCharAlign();
    m.struct_align = (int)ti.getCharAlign();
    m.ptr_diff_type = c_type_of(ti.getPtrDiffType(0));
    m.fundamental_type[F_size_t] = c_type_of(ti.getSizeType());
    m.fundamental_type[F_ptrdiff_t] = c_type_of(ti.getPtrDiffType(0));
    m.fundamental_type[F_wchar_t] = c_type_of(ti.getWCharType());
    m.fundamental_type[F_wint_t] = c_type_of(ti.getWIntType());
    make_predefined_types();
}
