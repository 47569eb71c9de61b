// A body keeps the shape of the source: one block per compound statement,
// if and loop nodes for the control statements, one instruction tree per
// expression statement. Expressions are lowered only as far as the passes
// after us look: symbols, calls, addresses and loads are the IR's own
// instructions; other operations are generic instructions named after the C
// operation, with their operands as sources, so no reference is lost.
#include "cfront/body_builder.h"

#include "cfront/symbol_linker.h"
#include "cfront/type_converter.h"
#include "ir/ir.h"

#include <clang/AST/ASTContext.h>
#include <clang/AST/Decl.h>
#include <clang/AST/Expr.h>
#include <clang/AST/Stmt.h>
#include <llvm/ADT/StringExtras.h>

#include <string>
#include <unordered_map>
#include <vector>

namespace {

clang::ASTContext *ctx = nullptr;
proc_symtab *proc_table = nullptr;
block_symtab *scope = nullptr;
tree_node_list *cur_out = nullptr;  // where statements inside expressions go
std::unordered_map<const clang::VarDecl *, var_sym *> locals;
std::unordered_map<const clang::LabelDecl *, label_sym *> labels;
int block_count = 0;

operand lower_expr(const clang::Expr *e);
operand lower_addr(const clang::Expr *e);
void lower_stmt(const clang::Stmt *s, tree_node_list *out);

type_node *type_of(const clang::Expr *e) {
    return ir_type(e->getType());
}

void emit(instruction *i, tree_node_list *out) {
    out->append(new tree_instr(i));
}

// An expression whose value is dropped still names what it refers to.
void emit_operand(operand op, tree_node_list *out) {
    if (op.is_instr()) emit(op.instr(), out);
    else if (op.is_symbol()) emit(new in_rrr(io_cpy, op.type(), operand(), op), out);
}

var_sym *variable_of(const clang::VarDecl *vd) {
    auto it = locals.find(vd);
    if (it != locals.end()) return it->second;
    if (vd->hasLinkage() || vd->isFileVarDecl()) return linked_var(vd);
    // A local met before its declaration statement can't happen in C; be
    // safe and give it a place in the procedure's table.
    var_sym *v = proc_table->new_unique_var(ir_type(vd->getType()), vd->getName().str().c_str());
    locals[vd] = v;
    return v;
}

instruction *load_address(sym_node *s, type_node *pointee) {
    return new in_ldc(ir_ptr_to(pointee), operand(), immed(s));
}

label_sym *label_of(const clang::LabelDecl *ld) {
    auto it = labels.find(ld);
    if (it != labels.end()) return it->second;
    label_sym *l = proc_table->new_unique_label(ld->getName().str().c_str());
    labels[ld] = l;
    return l;
}

// An integer constant as an immed: a machine integer when it fits, else
// its decimal text.
immed int_immed(const llvm::APSInt &v) {
    if (v.getMinSignedBits() <= 64) return immed((long long)v.getExtValue());
    return immed(im_ext_int, llvm::toString(v, 10).c_str());
}

// A generic instruction over the operands that have a value (a statement
// expression ending in a statement has none).
in_gen *generic(const char *name, type_node *t, const std::vector<operand> &srcs) {
    std::vector<operand> vals;
    for (const operand &o : srcs)
        if (!o.is_null()) vals.push_back(o);
    in_gen *g = new in_gen(name, t, operand(), (unsigned)vals.size());
    for (unsigned i = 0; i < vals.size(); i++) g->set_src_op(i, vals[i]);
    return g;
}

operand binary(if_ops op, const clang::BinaryOperator *b, bool swap) {
    operand l = lower_expr(b->getLHS());
    operand r = lower_expr(b->getRHS());
    if (swap) std::swap(l, r);
    return operand(new in_rrr(op, type_of(b), operand(), l, r));
}

const char *binary_name(clang::BinaryOperatorKind k) {
    return intern(clang::BinaryOperator::getOpcodeStr(k).str().c_str());
}

operand lower_binary(const clang::BinaryOperator *b) {
    using clang::BinaryOperatorKind;
    switch (b->getOpcode()) {
    case clang::BO_Assign: {
        const clang::Expr *lhs = b->getLHS()->IgnoreParens();
        operand target;
        // A plain store into a variable doesn't read it.
        if (const auto *dr = llvm::dyn_cast<clang::DeclRefExpr>(lhs)) {
            if (const auto *vd = llvm::dyn_cast<clang::VarDecl>(dr->getDecl())) target = operand(variable_of(vd));
        }
        if (target.is_null()) target = lower_expr(lhs);
        return operand(generic("=", type_of(b), {target, lower_expr(b->getRHS())}));
    }
    case clang::BO_Add: return binary(io_add, b, false);
    case clang::BO_Sub: return binary(io_sub, b, false);
    case clang::BO_Mul: return binary(io_mul, b, false);
    case clang::BO_Div: return binary(io_div, b, false);
    case clang::BO_Rem: return binary(io_rem, b, false);
    case clang::BO_And: return binary(io_and, b, false);
    case clang::BO_Or: return binary(io_ior, b, false);
    case clang::BO_Xor: return binary(io_xor, b, false);
    case clang::BO_Shl: return binary(io_lsl, b, false);
    case clang::BO_Shr:
        return binary(b->getLHS()->getType()->isUnsignedIntegerOrEnumerationType() ? io_lsr : io_asr, b, false);
    case clang::BO_EQ: return binary(io_seq, b, false);
    case clang::BO_NE: return binary(io_sne, b, false);
    case clang::BO_LT: return binary(io_sl, b, false);
    case clang::BO_LE: return binary(io_sle, b, false);
    case clang::BO_GT: return binary(io_sl, b, true);
    case clang::BO_GE: return binary(io_sle, b, true);
    default: break;
    }
    return operand(generic(binary_name(b->getOpcode()), type_of(b), {lower_expr(b->getLHS()), lower_expr(b->getRHS())}));
}

operand lower_unary(const clang::UnaryOperator *u) {
    switch (u->getOpcode()) {
    case clang::UO_AddrOf: return lower_addr(u->getSubExpr());
    case clang::UO_Deref: return operand(new in_rrr(io_lod, type_of(u), operand(), lower_expr(u->getSubExpr())));
    case clang::UO_Minus: return operand(new in_rrr(io_neg, type_of(u), operand(), lower_expr(u->getSubExpr())));
    case clang::UO_Not: return operand(new in_rrr(io_not, type_of(u), operand(), lower_expr(u->getSubExpr())));
    case clang::UO_Plus:
    case clang::UO_Extension: return lower_expr(u->getSubExpr());
    default: break;
    }
    std::string name = (u->isPostfix() ? "post" : "") + clang::UnaryOperator::getOpcodeStr(u->getOpcode()).str();
    return operand(generic(name.c_str(), type_of(u), {lower_expr(u->getSubExpr())}));
}

operand lower_call(const clang::CallExpr *c) {
    operand addr;
    const clang::Expr *callee = c->getCallee()->IgnoreParenImpCasts();
    const auto *dr = llvm::dyn_cast<clang::DeclRefExpr>(callee);
    const auto *fd = dr ? llvm::dyn_cast<clang::FunctionDecl>(dr->getDecl()) : nullptr;
    if (fd) {
        proc_sym *p = linked_proc(fd);
        addr = operand(load_address(p, p->type()));
    } else {
        addr = lower_expr(c->getCallee());
    }
    in_cal *call = new in_cal(type_of(c), operand(), addr, c->getNumArgs());
    for (unsigned i = 0; i < c->getNumArgs(); i++) call->set_argument(i, lower_expr(c->getArg(i)));
    return operand(call);
}

// The address of an lvalue: a load-constant of the symbol for a variable or
// a function, an address computation over it for a part of one.
operand lower_addr(const clang::Expr *e) {
    e = e->IgnoreParens();
    type_node *t = ir_type(ctx->getPointerType(e->getType()));
    if (const auto *dr = llvm::dyn_cast<clang::DeclRefExpr>(e)) {
        if (const auto *vd = llvm::dyn_cast<clang::VarDecl>(dr->getDecl())) {
            var_sym *v = variable_of(vd);
            v->set_addr_taken();
            note_read(v);
            return operand(new in_ldc(t, operand(), immed(v)));
        }
        if (const auto *fd = llvm::dyn_cast<clang::FunctionDecl>(dr->getDecl()))
            return operand(new in_ldc(t, operand(), immed(linked_proc(fd))));
    }
    if (const auto *m = llvm::dyn_cast<clang::MemberExpr>(e)) {
        operand base = m->isArrow() ? lower_expr(m->getBase()) : lower_addr(m->getBase());
        std::string name = (m->isArrow() ? "&->" : "&.") + m->getMemberDecl()->getName().str();
        return operand(generic(name.c_str(), t, {base}));
    }
    // A string literal is its own address.
    if (const auto *sl = llvm::dyn_cast<clang::StringLiteral>(e)) {
        std::string text = sl->getCharByteWidth() == 1 ? sl->getString().str() : std::string();
        return operand(new in_ldc(t, operand(), immed(text.c_str())));
    }
    if (const auto *a = llvm::dyn_cast<clang::ArraySubscriptExpr>(e))
        return operand(generic("&[]", t, {lower_expr(a->getBase()), lower_expr(a->getIdx())}));
    if (const auto *u = llvm::dyn_cast<clang::UnaryOperator>(e))
        if (u->getOpcode() == clang::UO_Deref) return lower_expr(u->getSubExpr());
    return operand(generic("&", t, {lower_expr(e)}));
}

operand lower_cast(const clang::CastExpr *c) {
    const clang::Expr *sub = c->getSubExpr();
    switch (c->getCastKind()) {
    case clang::CK_LValueToRValue:
    case clang::CK_NoOp:
    case clang::CK_ToVoid: return lower_expr(sub);
    case clang::CK_FunctionToPointerDecay:
    case clang::CK_ArrayToPointerDecay:
    case clang::CK_BuiltinFnToFnPtr: return lower_addr(sub);
    default: break;
    }
    return operand(new in_rrr(io_cvt, type_of(c), operand(), lower_expr(sub)));
}

operand lower_literal(const clang::Expr *e) {
    type_node *t = type_of(e);
    if (const auto *il = llvm::dyn_cast<clang::IntegerLiteral>(e)) {
        const llvm::APInt &v = il->getValue();
        if (v.getActiveBits() < 64) return operand(new in_ldc(t, operand(), immed((long long)v.getZExtValue())));
        return operand(new in_ldc(t, operand(), immed(im_ext_int, llvm::toString(v, 10, false).c_str())));
    }
    if (const auto *cl = llvm::dyn_cast<clang::CharacterLiteral>(e))
        return operand(new in_ldc(t, operand(), immed((long long)cl->getValue())));
    if (const auto *fl = llvm::dyn_cast<clang::FloatingLiteral>(e))
        return operand(new in_ldc(t, operand(), immed(fl->getValueAsApproximateDouble())));
    if (const auto *sl = llvm::dyn_cast<clang::StringLiteral>(e)) {
        std::string text = sl->getCharByteWidth() == 1 ? sl->getString().str() : std::string();
        return operand(new in_ldc(t, operand(), immed(text.c_str())));
    }
    return operand();
}

operand lower_expr(const clang::Expr *e) {
    if (!e) return operand();
    if (const auto *p = llvm::dyn_cast<clang::ParenExpr>(e)) return lower_expr(p->getSubExpr());
    if (const auto *dr = llvm::dyn_cast<clang::DeclRefExpr>(e)) {
        const clang::ValueDecl *d = dr->getDecl();
        if (const auto *vd = llvm::dyn_cast<clang::VarDecl>(d)) {
            var_sym *v = variable_of(vd);
            note_read(v);
            return operand(v);
        }
        if (const auto *fd = llvm::dyn_cast<clang::FunctionDecl>(d)) {
            proc_sym *p = linked_proc(fd);
            return operand(new in_ldc(type_of(e), operand(), immed(p)));
        }
        if (const auto *ec = llvm::dyn_cast<clang::EnumConstantDecl>(d))
            return operand(new in_ldc(type_of(e), operand(), int_immed(ec->getInitVal())));
        return operand();
    }
    if (llvm::isa<clang::IntegerLiteral, clang::CharacterLiteral, clang::FloatingLiteral, clang::StringLiteral>(e))
        return lower_literal(e);
    if (const auto *c = llvm::dyn_cast<clang::CastExpr>(e)) {
        if (llvm::isa<clang::ImplicitCastExpr>(c) || c->getCastKind() != clang::CK_ToVoid) return lower_cast(c);
        return lower_expr(c->getSubExpr());
    }
    if (const auto *b = llvm::dyn_cast<clang::BinaryOperator>(e)) return lower_binary(b);
    if (const auto *u = llvm::dyn_cast<clang::UnaryOperator>(e)) return lower_unary(u);
    if (const auto *c = llvm::dyn_cast<clang::CallExpr>(e)) return lower_call(c);
    if (const auto *m = llvm::dyn_cast<clang::MemberExpr>(e)) {
        operand base = lower_expr(m->getBase());
        std::string name = (m->isArrow() ? "->" : ".") + m->getMemberDecl()->getName().str();
        return operand(generic(name.c_str(), type_of(e), {base}));
    }
    if (const auto *a = llvm::dyn_cast<clang::ArraySubscriptExpr>(e)) {
        // Indexing an array variable uses the variable; it doesn't take its address.
        const clang::Expr *base = a->getBase();
        operand b;
        if (const auto *ic = llvm::dyn_cast<clang::ImplicitCastExpr>(base)) {
            if (ic->getCastKind() == clang::CK_ArrayToPointerDecay) {
                const clang::Expr *arr = ic->getSubExpr()->IgnoreParens();
                if (const auto *dr = llvm::dyn_cast<clang::DeclRefExpr>(arr))
                    if (llvm::isa<clang::VarDecl>(dr->getDecl())) b = lower_expr(arr);
            }
        }
        if (b.is_null()) b = lower_expr(base);
        return operand(generic("[]", type_of(e), {b, lower_expr(a->getIdx())}));
    }
    if (const auto *ue = llvm::dyn_cast<clang::UnaryExprOrTypeTraitExpr>(e)) {
        clang::Expr::EvalResult r;
        if (!ue->isArgumentType() && ue->getArgumentExpr()->getType()->isVariablyModifiedType())
            return operand(generic("sizeof", type_of(e), {lower_expr(ue->getArgumentExpr())}));
        if (ue->EvaluateAsInt(r, *ctx))
            return operand(new in_ldc(type_of(e), operand(), int_immed(r.Val.getInt())));
        return operand(new in_ldc(type_of(e), operand(), immed(0LL)));
    }
    if (const auto *se = llvm::dyn_cast<clang::StmtExpr>(e)) {
        // The statements run where the expression stands; the value is that
        // of the last one.
        tree_node_list *out = cur_out;
        const clang::CompoundStmt *cs = se->getSubStmt();
        const clang::Stmt *last = cs->body_empty() ? nullptr : cs->body_back();
        for (const clang::Stmt *s : cs->body())
            if (s != last) lower_stmt(s, out);
        if (const auto *le = llvm::dyn_cast_or_null<clang::Expr>(last)) return lower_expr(le);
        if (last) lower_stmt(last, out);
        return operand();
    }
    // Everything else: a generic instruction over its sub-expressions.
    std::vector<operand> srcs;
    for (const clang::Stmt *child : e->children()) {
        if (const auto *ce = llvm::dyn_cast_or_null<clang::Expr>(child)) {
            operand o = lower_expr(ce);
            if (!o.is_null()) srcs.push_back(o);
        }
    }
    return operand(generic(e->getStmtClassName(), type_of(e), srcs));
}

void lower_local(const clang::VarDecl *vd, tree_node_list *out) {
    if (vd->hasLinkage() || vd->hasExternalStorage()) {
        linked_var(vd);
        return;
    }
    std::string name = vd->getName().str();
    var_sym *v = scope->lookup_var(name.c_str(), false) ? scope->new_unique_var(ir_type(vd->getType()), name.c_str())
                                                       : scope->new_var(ir_type(vd->getType()), name.c_str());
    locals[vd] = v;
    if (vd->isStaticLocal()) {
        // A static local keeps its storage in the procedure, with its origin.
        v->set_userdef();
        v->set_true_name(name.c_str());
        v->append_annote(k_static_sym);
        var_def *d = new var_def(v, (int)ctx->toBits(ctx->getDeclAlign(vd)));
        scope->add_def(d);
        d->annotes()->append(coordinate_to_annote(k_source_coordinates, coord_of(vd)));
    } else {
        v->annotes()->append(coordinate_to_annote(k_source_coordinates, coord_of(vd)));
    }
    if (const clang::Expr *init = vd->getInit()) {
        operand val = lower_expr(init);
        if (!val.is_null()) out->append(create_assignment(v, val, nullptr));
    }
}

tree_node_list *lower_body(const clang::Stmt *s) {
    tree_node_list *l = new tree_node_list;
    if (s) lower_stmt(s, l);
    return l;
}

void lower_compound(const clang::CompoundStmt *cs, tree_node_list *out) {
    block_symtab *outer = scope;
    block_symtab *bst = new block_symtab(("block" + std::to_string(++block_count)).c_str());
    outer->add_child(bst);
    scope = bst;
    tree_node_list *list = new tree_node_list;
    for (const clang::Stmt *s : cs->body()) lower_stmt(s, list);
    scope = outer;
    out->append(new tree_block(list, bst));
}

void lower_condition_jump(const clang::Expr *cond, if_ops op, label_sym *l, tree_node_list *out) {
    operand c = lower_expr(cond);
    emit(new in_bj(op, l, c), out);
}

void lower_stmt(const clang::Stmt *s, tree_node_list *out) {
    if (!s) return;
    tree_node_list *saved_out = cur_out;
    cur_out = out;
    if (const auto *cs = llvm::dyn_cast<clang::CompoundStmt>(s)) {
        lower_compound(cs, out);
    } else if (const auto *ds = llvm::dyn_cast<clang::DeclStmt>(s)) {
        for (const clang::Decl *d : ds->decls()) {
            if (const auto *vd = llvm::dyn_cast<clang::VarDecl>(d)) lower_local(vd, out);
            else if (const auto *fd = llvm::dyn_cast<clang::FunctionDecl>(d)) linked_proc(fd);
        }
    } else if (const auto *is = llvm::dyn_cast<clang::IfStmt>(s)) {
        label_sym *l = scope->new_unique_label("else");
        tree_node_list *hdr = new tree_node_list;
        cur_out = hdr;
        lower_condition_jump(is->getCond(), io_bfalse, l, hdr);
        cur_out = out;
        out->append(new tree_if(l, hdr, lower_body(is->getThen()), lower_body(is->getElse())));
    } else if (const auto *ws = llvm::dyn_cast<clang::WhileStmt>(s)) {
        label_sym *top = scope->new_unique_label("top");
        tree_node_list *test = new tree_node_list;
        cur_out = test;
        lower_condition_jump(ws->getCond(), io_btrue, top, test);
        cur_out = out;
        out->append(new tree_loop(lower_body(ws->getBody()), test, nullptr, nullptr, top));
    } else if (const auto *dw = llvm::dyn_cast<clang::DoStmt>(s)) {
        label_sym *top = scope->new_unique_label("top");
        tree_node_list *body = lower_body(dw->getBody());
        tree_node_list *test = new tree_node_list;
        cur_out = test;
        lower_condition_jump(dw->getCond(), io_btrue, top, test);
        cur_out = out;
        out->append(new tree_loop(body, test, nullptr, nullptr, top));
    } else if (const auto *fs = llvm::dyn_cast<clang::ForStmt>(s)) {
        lower_stmt(fs->getInit(), out);
        label_sym *top = scope->new_unique_label("top");
        tree_node_list *body = lower_body(fs->getBody());
        cur_out = body;
        if (fs->getInc()) emit_operand(lower_expr(fs->getInc()), body);
        tree_node_list *test = new tree_node_list;
        cur_out = test;
        if (fs->getCond()) lower_condition_jump(fs->getCond(), io_btrue, top, test);
        cur_out = out;
        out->append(new tree_loop(body, test, nullptr, nullptr, top));
    } else if (const auto *rs = llvm::dyn_cast<clang::ReturnStmt>(s)) {
        const clang::Expr *v = rs->getRetValue();
        emit(new in_rrr(io_ret, v ? type_of(v) : type_void, operand(), lower_expr(v)), out);
    } else if (const auto *ls = llvm::dyn_cast<clang::LabelStmt>(s)) {
        emit(new in_lab(label_of(ls->getDecl())), out);
        lower_stmt(ls->getSubStmt(), out);
    } else if (const auto *gs = llvm::dyn_cast<clang::GotoStmt>(s)) {
        emit(new in_bj(io_jmp, label_of(gs->getLabel())), out);
    } else if (const auto *e = llvm::dyn_cast<clang::Expr>(s)) {
        emit_operand(lower_expr(e), out);
    } else if (const auto *sw = llvm::dyn_cast<clang::SwitchStmt>(s)) {
        emit(generic("switch", type_void, {lower_expr(sw->getCond())}), out);
        lower_stmt(sw->getBody(), out);
    } else if (const auto *cs = llvm::dyn_cast<clang::CaseStmt>(s)) {
        lower_stmt(cs->getSubStmt(), out);
    } else if (const auto *df = llvm::dyn_cast<clang::DefaultStmt>(s)) {
        lower_stmt(df->getSubStmt(), out);
    } else if (llvm::isa<clang::BreakStmt>(s)) {
        emit(generic("break", type_void, {}), out);
    } else if (llvm::isa<clang::ContinueStmt>(s)) {
        emit(generic("continue", type_void, {}), out);
    } else if (llvm::isa<clang::NullStmt>(s)) {
        // nothing
    } else {
        // asm and the rest: the expressions they hold, then their statements.
        std::vector<operand> srcs;
        for (const clang::Stmt *child : s->children()) {
            if (const auto *ce = llvm::dyn_cast_or_null<clang::Expr>(child)) {
                operand o = lower_expr(ce);
                if (!o.is_null()) srcs.push_back(o);
            } else if (child) {
                lower_stmt(child, out);
            }
        }
        emit(generic(s->getStmtClassName(), type_void, srcs), out);
    }
    cur_out = saved_out;
}

}  // namespace

void build_body(proc_sym *p, const clang::FunctionDecl *fd, clang::ASTContext &c) {
    ctx = &c;
    locals.clear();
    labels.clear();
    block_count = 0;
    // Named as the source names the function: a static local is known by it.
    proc_table = new proc_symtab(p->true_name());
    p->parent()->add_child(proc_table);
    scope = proc_table;
    for (const clang::ParmVarDecl *pd : fd->parameters()) {
        std::string name = pd->getName().str();
        if (name.empty()) name = "__qvt_unnamed_param";
        var_sym *v = proc_table->lookup_var(name.c_str(), false) ? proc_table->new_unique_var(ir_type(pd->getType()), name.c_str())
                                                                : proc_table->new_var(ir_type(pd->getType()), name.c_str());
        v->set_param();
        v->annotes()->append(coordinate_to_annote(k_source_coordinates, coord_of(pd)));
        proc_table->params()->append(v);
        locals[pd] = v;
    }
    if (p->type()->has_varargs() && p->type()->num_args() >= 2) {
        // The two hidden parameters of a variadic function, named as the
        // analysis target knows them.
        unsigned n = p->type()->num_args();
        var_sym *count = proc_table->new_var(p->type()->arg_type(n - 2), "__quorvanta_nb_varargs");
        var_sym *args = proc_table->new_var(p->type()->arg_type(n - 1), "__quorvanta_vararg");
        count->set_param();
        args->set_param();
        proc_table->params()->append(count);
        proc_table->params()->append(args);
    }
    tree_node_list *body = new tree_node_list;
    cur_out = body;
    if (const auto *cs = llvm::dyn_cast_or_null<clang::CompoundStmt>(fd->getBody())) {
        for (const clang::Stmt *s : cs->body()) lower_stmt(s, body);
    } else {
        lower_stmt(fd->getBody(), body);
    }
    tree_proc *tp = new tree_proc(body, proc_table);
    tp->set_proc(p);
    p->set_block(tp);
    p->write_proc(p->file());
    p->flush_proc();
    cur_out = nullptr;
    ctx = nullptr;
}
