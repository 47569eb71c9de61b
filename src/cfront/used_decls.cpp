// A worklist over declarations: the user's file-level declarations are
// walked whole; each function or variable they name is marked, and a marked
// one of a system header with a body or an initialiser is walked in turn, so
// an inline wrapper of the C library that nobody calls brings nothing, and one
// that is called brings what it calls.
#include "cfront/used_decls.h"

#include <clang/AST/ASTContext.h>
#include <clang/AST/Decl.h>
#include <clang/AST/RecursiveASTVisitor.h>
#include <clang/Basic/SourceManager.h>

#include <vector>

namespace {

class ref_collector : public clang::RecursiveASTVisitor<ref_collector> {
public:
    llvm::DenseSet<const clang::Decl *> *used = nullptr;
    std::vector<const clang::Decl *> *pending = nullptr;

    bool VisitDeclRefExpr(clang::DeclRefExpr *e) {
        const clang::Decl *d = e->getDecl();
        const auto *vd = llvm::dyn_cast<clang::VarDecl>(d);
        if (llvm::isa<clang::FunctionDecl>(d) || (vd && vd->isFileVarDecl())) {
            const clang::Decl *canon = d->getCanonicalDecl();
            if (used->insert(canon).second) pending->push_back(canon);
        }
        return true;
    }
};

}  // namespace

bool decl_in_system_header(clang::ASTContext &ctx, const clang::Decl *d) {
    clang::SourceLocation loc = d->getLocation();
    if (loc.isInvalid()) return true;
    const clang::SourceManager &sm = ctx.getSourceManager();
    return sm.isInSystemHeader(sm.getExpansionLoc(loc));
}

void collect_used_decls(clang::ASTContext &ctx, llvm::DenseSet<const clang::Decl *> *used) {
    std::vector<const clang::Decl *> pending;
    ref_collector collector;
    collector.used = used;
    collector.pending = &pending;
    for (clang::Decl *d : ctx.getTranslationUnitDecl()->decls())
        if (!decl_in_system_header(ctx, d)) collector.TraverseDecl(d);
    while (!pending.empty()) {
        const clang::Decl *d = pending.back();
        pending.pop_back();
        // The user's own definitions were walked above.
        if (const auto *fd = llvm::dyn_cast<clang::FunctionDecl>(d)) {
            const clang::FunctionDecl *def = nullptr;
            if (fd->hasBody(def) && def && decl_in_system_header(ctx, def))
                collector.TraverseDecl(const_cast<clang::FunctionDecl *>(def));
        } else if (const auto *vd = llvm::dyn_cast<clang::VarDecl>(d)) {
            const clang::VarDecl *init_decl = nullptr;
            const clang::Expr *init = vd->getAnyInitializer(init_decl);
            if (init && init_decl && decl_in_system_header(ctx, init_decl))
                collector.TraverseStmt(const_cast<clang::Expr *>(init));
        }
    }
}
