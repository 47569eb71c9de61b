// What a unit's own code reaches of the system headers: the functions and
// variables that the user's code names, then, through the bodies and
// initialisers of those that have one, what they name in turn.
#pragma once

#include <llvm/ADT/DenseSet.h>

namespace clang {
class ASTContext;
class Decl;
}

// Fills *used with the canonical declarations of the functions and variables
// that code outside the system headers reaches, directly or through bodies
// and initialisers of the system headers.
void collect_used_decls(clang::ASTContext &ctx, llvm::DenseSet<const clang::Decl *> *used);

// Whether d lies in a system header (or is the compiler's own, without a place).
bool decl_in_system_header(clang::ASTContext &ctx, const clang::Decl *d);
