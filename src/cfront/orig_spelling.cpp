// clang's type printer already puts a placeholder where the declarator's name
// goes, which is exactly the form the symbol header needs: arrays and
// pointers to functions keep their C shape around the name.
#include "cfront/orig_spelling.h"

#include "ir/ir.h"

#include <clang/AST/ASTContext.h>
#include <clang/AST/Decl.h>
#include <clang/AST/PrettyPrinter.h>

std::string spelling_with_token(const clang::ASTContext &ctx, clang::QualType qt) {
    clang::PrintingPolicy policy(ctx.getLangOpts());
    policy.SuppressTagKeyword = false;
    policy.Bool = false;
    std::string out;
    llvm::raw_string_ostream os(out);
    qt.print(os, policy, orig_type_name_token);
    os.flush();
    return out;
}

void annotate_orig_types(proc_sym *p, const clang::ASTContext &ctx, const clang::FunctionDecl *fd) {
    delete p->get_annote(k_orig_ret_type_name);
    delete p->get_annote(k_orig_param_types_names);
    immed_list *ret = new immed_list;
    ret->append(immed(spelling_with_token(ctx, fd->getReturnType()).c_str()));
    p->append_annote(k_orig_ret_type_name, ret);
    if (!fd->hasPrototype() && fd->param_empty()) return;
    immed_list *params = new immed_list;
    for (const clang::ParmVarDecl *pd : fd->parameters())
        params->append(immed(spelling_with_token(ctx, pd->getOriginalType()).c_str()));
    p->append_annote(k_orig_param_types_names, params);
}
