// Operands, instructions and tree nodes: ownership links and traversals.
#include "ir/trees.h"

#include <cstring>

#include "ir/strings.h"
#include "ir/symtabs.h"
#include "ir/types.h"

static const char *const op_names[io_last] = {
    "error", "mrk", "nop", "cpy", "neg", "add", "sub", "not", "mul", "div", "rem", "mod", "min",
    "max", "abs", "and", "ior", "xor", "asr", "lsl", "lsr", "rot", "memcpy", "cvt", "ldc", "lod",
    "str", "seq", "sne", "sl", "sle", "btrue", "bfalse", "jmp", "cal", "ret", "lab", "gen",
};

const char *if_ops_name(if_ops op) { return op >= 0 && op < io_last ? op_names[op] : "error"; }

if_ops if_ops_from_name(const char *name) {
    for (int i = 1; i < io_last; ++i)
        if (std::strcmp(op_names[i], name) == 0) return (if_ops)i;
    return io_error;
}

operand::operand(var_sym *v) {
    if (v) {
        k = OPER_SYM;
        sym = v;
    }
}

operand::operand(instruction *i) {
    if (i) {
        k = OPER_INSTR;
        ins = i;
    }
}

type_node *operand::type() const {
    if (k == OPER_SYM) return sym->type();
    if (k == OPER_INSTR) return ins->result_type();
    return nullptr;
}

operand operand::clone(base_symtab *) const {
    if (k == OPER_INSTR) return operand(ins->clone());
    return *this;
}

void operand::clone_annotes(annote_list *list) const {
    if (k != OPER_INSTR || !list || !ins->annotes_if_any()) return;
    for (annote_list_e *e = ins->annotes_if_any()->head(); e; e = e->next()) list->append(e->contents->clone());
}

void operand::remove() {
    if (k != OPER_INSTR) return;
    instruction *p = ins->parent_instr();
    if (!p) return;
    for (unsigned n = 0; n < p->num_srcs(); ++n)
        if (p->src_op(n).instr() == ins) {
            p->take_src_op(n);
            return;
        }
}

instruction::instruction(if_ops o, type_node *t, operand d, unsigned nsrcs)
    : srcs(nsrcs), op(o), rtype(t), dst(d) {}

instruction::~instruction() {
    for (operand &r : srcs)
        if (r.is_instr()) delete r.instr();
}

void instruction::set_src_op(unsigned n, operand r) {
    if (n >= srcs.size()) srcs.resize(n + 1);
    if (srcs[n].is_instr() && srcs[n].instr()->parent_instr() == this) srcs[n].instr()->set_parent_instr(nullptr);
    srcs[n] = r;
    if (r.is_instr()) {
        r.instr()->set_parent_instr(this);
        r.instr()->set_owner(nullptr);
    }
}

operand instruction::take_src_op(unsigned n) {
    if (n >= srcs.size()) return operand();
    operand r = srcs[n];
    srcs[n] = operand();
    if (r.is_instr()) r.instr()->set_parent_instr(nullptr);
    return r;
}

void instruction::src_map(src_map_f fn, void *x) {
    for (operand &r : srcs) fn(this, &r, x);
}

void instruction::copy_into(instruction *other) const {
    for (unsigned n = 0; n < srcs.size(); ++n) other->set_src_op(n, srcs[n].clone());
    other->copy_annotes(this);
}

in_rrr::in_rrr(if_ops op, type_node *type, operand dst, operand src1, operand src2)
    : instruction(op, type, dst, 0) {
    // Only the sources given count, so that a mark has none and a copy one.
    if (!src1.is_null() || !src2.is_null()) set_src_op(0, src1);
    if (!src2.is_null()) set_src_op(1, src2);
}

instruction *in_rrr::clone() const {
    in_rrr *c = new in_rrr(opcode(), result_type(), dst_op());
    copy_into(c);
    return c;
}

in_ldc::in_ldc(type_node *type, operand dst, const immed &value)
    : instruction(io_ldc, type, dst, 0), val(value) {}

instruction *in_ldc::clone() const {
    in_ldc *c = new in_ldc(result_type(), dst_op(), val);
    copy_into(c);
    return c;
}

in_bj::in_bj(if_ops op, label_sym *t, operand src) : instruction(op, nullptr, operand(), 0), lab(t) {
    if (!src.is_null()) set_src_op(0, src);
}

instruction *in_bj::clone() const {
    in_bj *c = new in_bj(opcode(), lab);
    copy_into(c);
    return c;
}

in_cal::in_cal(type_node *type, operand dst, operand addr, unsigned nargs)
    : instruction(io_cal, type, dst, nargs + 1) {
    set_src_op(0, addr);
}

instruction *in_cal::clone() const {
    in_cal *c = new in_cal(result_type(), dst_op(), operand(), num_args());
    copy_into(c);
    return c;
}

in_lab::in_lab(label_sym *l) : instruction(io_lab, nullptr, operand(), 0), lab(l) {}

instruction *in_lab::clone() const {
    in_lab *c = new in_lab(lab);
    copy_into(c);
    return c;
}

in_gen::in_gen(const char *name, type_node *type, operand dst, unsigned nsrcs)
    : instruction(io_gen, type, dst, nsrcs), nm(intern(name ? name : "")) {}

instruction *in_gen::clone() const {
    in_gen *c = new in_gen(nm, result_type(), dst_op(), num_srcs());
    copy_into(c);
    return c;
}

proc_sym *tree_node::proc() const {
    const tree_node *t = this;
    while (t) {
        if (t->is_proc()) return static_cast<const tree_proc *>(t)->proc();
        t = t->parent() ? t->parent()->parent() : nullptr;
    }
    return nullptr;
}

block_symtab *tree_node::scope() const {
    const tree_node *t = this;
    while (t) {
        if (t->is_block()) return static_cast<const tree_block *>(t)->symtab();
        t = t->parent() ? t->parent()->parent() : nullptr;
    }
    return nullptr;
}

tree_node_list *tree_node::child_list_num(unsigned) const { return nullptr; }

void tree_node::map(tree_map_f fn, void *x, bool preorder, bool descend) {
    if (preorder) fn(this, x);
    if (descend)
        for (unsigned n = 0; n < num_child_lists(); ++n)
            if (tree_node_list *l = child_list_num(n)) l->map(fn, x, preorder, descend);
    if (!preorder) fn(this, x);
}

tree_node_list::~tree_node_list() {
    for (tree_node_list_e *e = head(); e; e = e->next()) delete e->contents;
}

void tree_node_list::set_elem(glist_e *e) { static_cast<tree_node_list_e *>(e)->contents->set_parent(this); }

void tree_node_list::map(tree_map_f fn, void *x, bool preorder, bool descend) {
    for (tree_node_list_e *e = head(); e;) {
        tree_node_list_e *next = e->next();
        e->contents->map(fn, x, preorder, descend);
        e = next;
    }
}

tree_node_list *tree_node_list::clone() const {
    tree_node_list *l = new tree_node_list;
    for (tree_node_list_e *e = head(); e; e = e->next()) l->append(e->contents->clone());
    return l;
}

static void adopt(tree_node_list *l, tree_node *owner) {
    if (l) l->set_parent(owner);
}

tree_instr::tree_instr(instruction *i) { set_instr(i); }
tree_instr::~tree_instr() { delete ins; }

instruction *tree_instr::set_instr(instruction *i) {
    instruction *old = ins;
    if (old) old->set_owner(nullptr);
    ins = i;
    if (i) {
        i->set_owner(this);
        i->set_parent_instr(nullptr);
    }
    return old;
}

static void instr_walk(instruction *i, instr_map_f fn, void *x, bool descend) {
    if (descend)
        for (unsigned n = 0; n < i->num_srcs(); ++n)
            if (instruction *s = i->src_op(n).instr()) instr_walk(s, fn, x, true);
    fn(i, x);
}

void tree_instr::instr_map(instr_map_f fn, void *x, bool descend) {
    if (ins) instr_walk(ins, fn, x, descend);
}

tree_node *tree_instr::clone() const {
    tree_instr *t = new tree_instr(ins ? ins->clone() : nullptr);
    t->copy_annotes(this);
    return t;
}

tree_block::tree_block(tree_node_list *body, block_symtab *symtab) : bdy(body), st(symtab) {
    adopt(bdy, this);
    if (st) st->set_block(this);
}

tree_block::~tree_block() {
    delete bdy;
    if (st) {
        if (st->parent()) st->parent()->remove_child(st);
        delete st;
    }
}

void tree_block::set_body(tree_node_list *l) {
    bdy = l;
    adopt(l, this);
}

void tree_block::set_symtab(block_symtab *s) {
    st = s;
    if (st) st->set_block(this);
}

tree_node_list *tree_block::child_list_num(unsigned n) const { return n == 0 ? bdy : nullptr; }

tree_node *tree_block::clone() const {
    // The copy shares the table: bodies are cloned within one scope only.
    tree_block *t = new tree_block(bdy ? bdy->clone() : nullptr, nullptr);
    t->copy_annotes(this);
    return t;
}

tree_proc::tree_proc(tree_node_list *body, proc_symtab *symtab) : tree_block(body, symtab) {}

proc_symtab *tree_proc::proc_syms() const { return static_cast<proc_symtab *>(symtab()); }

tree_if::tree_if(label_sym *jumpto, tree_node_list *header, tree_node_list *then_part,
                 tree_node_list *else_part)
    : lab(jumpto), hdr(header ? header : new tree_node_list), thn(then_part ? then_part : new tree_node_list),
      els(else_part ? else_part : new tree_node_list) {
    adopt(hdr, this);
    adopt(thn, this);
    adopt(els, this);
}

tree_if::~tree_if() {
    delete hdr;
    delete thn;
    delete els;
}

tree_node_list *tree_if::child_list_num(unsigned n) const {
    return n == 0 ? hdr : n == 1 ? thn : n == 2 ? els : nullptr;
}

tree_node *tree_if::clone() const {
    tree_if *t = new tree_if(lab, hdr->clone(), thn->clone(), els->clone());
    t->copy_annotes(this);
    return t;
}

tree_loop::tree_loop(tree_node_list *body, tree_node_list *test, label_sym *contlab, label_sym *brklab,
                     label_sym *toplab)
    : bdy(body ? body : new tree_node_list), tst(test ? test : new tree_node_list), cont(contlab),
      brk(brklab), top(toplab) {
    adopt(bdy, this);
    adopt(tst, this);
}

tree_loop::~tree_loop() {
    delete bdy;
    delete tst;
}

tree_node_list *tree_loop::child_list_num(unsigned n) const { return n == 0 ? bdy : n == 1 ? tst : nullptr; }

tree_node *tree_loop::clone() const {
    tree_loop *t = new tree_loop(bdy->clone(), tst->clone(), cont, brk, top);
    t->copy_annotes(this);
    return t;
}

tree_instr *create_assignment(var_sym *var, operand op, annote_list *annotes) {
    in_rrr *i = new in_rrr(io_cpy, var->type() ? var->type()->unqual() : nullptr, operand(var), op);
    if (annotes)
        for (annote_list_e *e = annotes->head(); e; e = e->next()) i->annotes()->append(e->contents->clone());
    return new tree_instr(i);
}

void recursive_hidden_check(instruction *i) {
    if (!i) return;
    for (unsigned n = 0; n < i->num_srcs(); ++n)
        if (instruction *s = i->src_op(n).instr()) {
            s->set_parent_instr(i);
            s->set_owner(nullptr);
            recursive_hidden_check(s);
        }
}
