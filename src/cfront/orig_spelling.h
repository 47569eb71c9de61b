// Source spellings of a function's return and parameter types, with the
// IR's name token where a declared name would stand.
#pragma once

#include <string>

namespace clang {
class ASTContext;
class FunctionDecl;
class QualType;
}
class proc_sym;

// The spelling of qt as the source wrote it (typedef names kept), with
// `orig_type_name_token` in the place of the name: "int @@", "char *@@",
// "int (*@@)(int)", "char @@[10]".
std::string spelling_with_token(const clang::ASTContext &ctx, clang::QualType qt);

// Replaces p's k_orig_ret_type_name and k_orig_param_types_names by those of
// fd. Parameters are listed when fd has a prototype or parameters of its own.
void annotate_orig_types(proc_sym *p, const clang::ASTContext &ctx, const clang::FunctionDecl *fd);
