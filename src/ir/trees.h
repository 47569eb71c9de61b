// Procedure bodies: operands, instructions and tree nodes.
//
// A body is a tree_proc holding a tree_node_list. Each tree_instr holds one
// instruction; an instruction's source operands are symbols or nested
// instructions (expression trees), which it owns. A tree_node_list owns its
// nodes; a tree node owns its child lists.
#pragma once

#include "ir/annotes.h"
#include "ir/symbols.h"

#include <vector>

// Opcodes. The numbers are part of the file format.
enum if_ops {
    io_error = 0,
    io_mrk = 1,      // mark: carries annotations only
    io_nop = 2,
    io_cpy = 3,      // dst = src1
    io_neg = 4,
    io_add = 5,
    io_sub = 6,
    io_not = 7,
    io_mul = 8,
    io_div = 9,
    io_rem = 10,
    io_mod = 11,
    io_min = 12,
    io_max = 13,
    io_abs = 14,
    io_and = 15,
    io_ior = 16,
    io_xor = 17,
    io_asr = 18,
    io_lsl = 19,
    io_lsr = 20,
    io_rot = 21,
    io_memcpy = 22,  // *src1 = *src2
    io_cvt = 23,     // dst = (type) src1
    io_ldc = 24,     // dst = constant (in_ldc)
    io_lod = 25,     // dst = *src1
    io_str = 26,     // *src1 = src2
    io_seq = 27,
    io_sne = 28,
    io_sl = 29,
    io_sle = 30,     // dst = src1 <= src2
    io_btrue = 31,   // if (src1) goto label (in_bj)
    io_bfalse = 32,
    io_jmp = 33,
    io_cal = 34,     // dst = addr(args...) (in_cal)
    io_ret = 35,     // return src1 (may be null)
    io_lab = 36,     // label: (in_lab)
    io_gen = 37,     // any other operation, by name (in_gen)
    io_last = 38,
};
// The opcode's name as written by the dump and the file format ("add", ...).
const char *if_ops_name(if_ops op);
// The opcode of a name, or io_error.
if_ops if_ops_from_name(const char *name);

enum operand_kinds {
    OPER_NULL = 0,
    OPER_SYM = 1,
    OPER_INSTR = 2,
};

// The data of an operand: nothing, a variable, or an instruction.
class operand_dataonly {
public:
    operand_kinds kind() const { return k; }
    bool is_null() const { return k == OPER_NULL; }
    bool is_symbol() const { return k == OPER_SYM; }
    bool is_instr() const { return k == OPER_INSTR; }
    bool is_expr() const { return k == OPER_INSTR; }
    var_sym *symbol() const { return k == OPER_SYM ? sym : nullptr; }
    instruction *instr() const { return k == OPER_INSTR ? ins : nullptr; }

protected:
    operand_kinds k = OPER_NULL;
    union {
        var_sym *sym = nullptr;
        instruction *ins;
    };
};

// An operand, copied by value. An instruction operand used as a source is
// owned by the instruction it is placed in.
class operand : public operand_dataonly {
public:
    operand() = default;
    operand(var_sym *v);
    operand(instruction *i);
    // The variable's type, the instruction's result type, or null.
    type_node *type() const;
    // A deep copy (nested instructions copied too). Symbols are kept as they
    // are; dst_scope is accepted for compatibility.
    operand clone(base_symtab *dst_scope = nullptr) const;
    // Appends copies of the annotations of the operand's instruction to
    // list (nothing for a symbol operand).
    void clone_annotes(annote_list *list) const;
    // Detaches an instruction operand from its parent instruction, if any.
    void remove();
    bool operator==(const operand &o) const { return k == o.k && sym == o.sym; }
};
// The null operand.
inline const operand nullop{};

// Called on each source operand of an instruction.
typedef void (*src_map_f)(instruction *i, operand *r, void *x);
// Called on each instruction of a tree.
typedef void (*instr_map_f)(instruction *i, void *x);

// The common part of every instruction.
class instruction : public suif_object {
public:
    ~instruction() override;
    object_kinds object_kind() const override { return INSTR_OBJ; }
    if_ops opcode() const { return op; }
    void set_opcode(if_ops o) { op = o; }
    type_node *result_type() const { return rtype; }
    void set_result_type(type_node *t) { rtype = t; }
    // The destination: a variable, or null.
    operand dst_op() const { return dst; }
    void set_dst(operand d) { dst = d; }

    unsigned num_srcs() const { return (unsigned)srcs.size(); }
    // REQUIRES: n < num_srcs().
    operand src_op(unsigned n) const { return srcs[n]; }
    // Replaces source n; a nested instruction operand is owned from then on.
    // The old operand is released to the caller (not deleted).
    void set_src_op(unsigned n, operand r);
    // Removes source n and gives it back to the caller.
    operand take_src_op(unsigned n);

    // The tree_instr holding this instruction, or the instruction it is a
    // source of (one of the two, or neither).
    tree_instr *owner() const { return owner_node; }
    instruction *parent_instr() const { return parent; }
    // Calls fn on every source operand (not recursively).
    void src_map(src_map_f fn, void *x);
    // A deep copy.
    virtual instruction *clone() const = 0;

    // Used by tree_instr and by source placement.
    void set_owner(tree_instr *t) { owner_node = t; }
    void set_parent_instr(instruction *i) { parent = i; }

protected:
    instruction(if_ops o, type_node *t, operand d, unsigned nsrcs);
    void copy_into(instruction *other) const;  // operands cloned, annotations copied
    std::vector<operand> srcs;

private:
    if_ops op;
    type_node *rtype;
    operand dst;
    tree_instr *owner_node = nullptr;
    instruction *parent = nullptr;
};

// Zero to two sources: mark, copy, convert, load, store, return, the
// arithmetic and the comparisons.
class in_rrr : public instruction {
public:
    in_rrr(if_ops op = io_mrk, type_node *type = nullptr, operand dst = operand(),
           operand src1 = operand(), operand src2 = operand());
    operand src1_op() const { return src_op(0); }
    operand src2_op() const { return src_op(1); }
    void set_src1(operand r) { set_src_op(0, r); }
    void set_src2(operand r) { set_src_op(1, r); }
    instruction *clone() const override;
};

// Load constant: the value is an immed (an integer, a float, an extended
// number, a string, or a symbol's address).
class in_ldc : public instruction {
public:
    in_ldc(type_node *type, operand dst, const immed &value);
    const immed &value() const { return val; }
    void set_value(const immed &v) { val = v; }
    instruction *clone() const override;

private:
    immed val;
};

// Branch or jump to a label, with an optional condition.
class in_bj : public instruction {
public:
    in_bj(if_ops op, label_sym *target, operand src = operand());
    label_sym *target() const { return lab; }
    void set_target(label_sym *l) { lab = l; }
    operand src_op() const { return instruction::src_op(0); }
    instruction *clone() const override;

private:
    label_sym *lab;
};

// A call: source 0 is the address, sources 1.. the arguments.
class in_cal : public instruction {
public:
    in_cal(type_node *type, operand dst, operand addr, unsigned nargs);
    operand addr_op() const { return src_op(0); }
    void set_addr_op(operand r) { set_src_op(0, r); }
    unsigned num_args() const { return num_srcs() - 1; }
    operand argument(unsigned n) const { return src_op(n + 1); }
    void set_argument(unsigned n, operand r) { set_src_op(n + 1, r); }
    instruction *clone() const override;
};

// A label position.
class in_lab : public instruction {
public:
    explicit in_lab(label_sym *l);
    label_sym *label() const { return lab; }
    instruction *clone() const override;

private:
    label_sym *lab;
};

// Any other operation, named (e.g. "field", "index", "cond", "sizeof").
class in_gen : public instruction {
public:
    in_gen(const char *name, type_node *type, operand dst, unsigned nsrcs);
    const char *name() const { return nm; }
    instruction *clone() const override;

private:
    const char *nm;
};

// Tree node kinds.
enum tree_kinds {
    TREE_INSTR = 0,
    TREE_LOOP = 1,
    TREE_FOR = 2,
    TREE_IF = 3,
    TREE_BLOCK = 4,
};

class tree_node_list;
typedef void (*tree_map_f)(tree_node *t, void *x);

// The common part of every tree node.
class tree_node : public suif_object {
public:
    object_kinds object_kind() const override { return TREE_OBJ; }
    virtual tree_kinds kind() const = 0;
    bool is_instr() const { return kind() == TREE_INSTR; }
    bool is_block() const { return kind() == TREE_BLOCK; }
    bool is_if() const { return kind() == TREE_IF; }
    bool is_loop() const { return kind() == TREE_LOOP; }
    virtual bool is_proc() const { return false; }

    // The list holding this node, or null.
    tree_node_list *parent() const { return up; }
    // The procedure of the body this node is in (null if unattached).
    proc_sym *proc() const;
    // The innermost block table around this node.
    block_symtab *scope() const;
    virtual unsigned num_child_lists() const { return 0; }
    // REQUIRES: n < num_child_lists().
    virtual tree_node_list *child_list_num(unsigned n) const;
    // Calls fn on this node and, with descend, on every node below it,
    // parents before children (preorder) or after them.
    void map(tree_map_f fn, void *x, bool preorder = true, bool descend = true);
    virtual tree_node *clone() const = 0;

    // Used by tree_node_list.
    void set_parent(tree_node_list *l) { up = l; }

private:
    tree_node_list *up = nullptr;
};

// A list of tree nodes; owns them.
class tree_node_list_base : public typed_list<tree_node *, dlist, dlist_elem<tree_node *>> {};
using tree_node_list_e = dlist_elem<tree_node *>;
class tree_node_list : public tree_node_list_base {
public:
    explicit tree_node_list(tree_node *owner = nullptr) : own(owner) {}
    ~tree_node_list() override;
    void set_elem(glist_e *e) override;  // records the list in the node
    tree_node *parent() const { return own; }
    void set_parent(tree_node *t) { own = t; }
    // Applies map() to every node.
    void map(tree_map_f fn, void *x, bool preorder = true, bool descend = true);
    tree_node_list *clone() const;

private:
    tree_node *own;
};
using tree_node_list_iter = typed_list_iter<tree_node_list>;

class tree_instr : public tree_node {
public:
    explicit tree_instr(instruction *i);
    ~tree_instr() override;
    tree_kinds kind() const override { return TREE_INSTR; }
    instruction *instr() const { return ins; }
    // Replaces the instruction (owned from then on; the old one is given back).
    instruction *set_instr(instruction *i);
    // Calls fn on the instruction and, with descend, every nested one
    // (sources first).
    void instr_map(instr_map_f fn, void *x, bool descend = true);
    tree_node *clone() const override;

private:
    instruction *ins = nullptr;
};

class tree_block : public tree_node {
public:
    tree_block(tree_node_list *body, block_symtab *symtab);
    ~tree_block() override;
    tree_kinds kind() const override { return TREE_BLOCK; }
    tree_node_list *body() const { return bdy; }
    void set_body(tree_node_list *l);
    block_symtab *symtab() const { return st; }
    // Gives the block its table (owned from then on).
    void set_symtab(block_symtab *s);
    unsigned num_child_lists() const override { return 1; }
    tree_node_list *child_list_num(unsigned n) const override;
    tree_node *clone() const override;

private:
    tree_node_list *bdy;
    block_symtab *st;
};

// The outermost block of a body; its table is the procedure's table.
class tree_proc : public tree_block {
public:
    tree_proc(tree_node_list *body, proc_symtab *symtab);
    bool is_proc() const override { return true; }
    proc_sym *proc() const { return psym; }
    proc_symtab *proc_syms() const;
    void set_proc(proc_sym *p) { psym = p; }

private:
    proc_sym *psym = nullptr;
};

// if: the header runs first; a branch in it to `jumpto` enters the else
// part, otherwise the then part runs.
class tree_if : public tree_node {
public:
    tree_if(label_sym *jumpto, tree_node_list *header, tree_node_list *then_part,
            tree_node_list *else_part);
    ~tree_if() override;
    tree_kinds kind() const override { return TREE_IF; }
    label_sym *jumpto() const { return lab; }
    tree_node_list *header() const { return hdr; }
    tree_node_list *then_part() const { return thn; }
    tree_node_list *else_part() const { return els; }
    unsigned num_child_lists() const override { return 3; }
    tree_node_list *child_list_num(unsigned n) const override;
    tree_node *clone() const override;

private:
    label_sym *lab;
    tree_node_list *hdr, *thn, *els;
};

// A loop: the body runs, then the test; a branch in the test to `toplab`
// repeats it. Labels may be null.
class tree_loop : public tree_node {
public:
    tree_loop(tree_node_list *body, tree_node_list *test, label_sym *contlab = nullptr,
              label_sym *brklab = nullptr, label_sym *toplab = nullptr);
    ~tree_loop() override;
    tree_kinds kind() const override { return TREE_LOOP; }
    tree_node_list *body() const { return bdy; }
    tree_node_list *test() const { return tst; }
    label_sym *contlab() const { return cont; }
    label_sym *brklab() const { return brk; }
    label_sym *toplab() const { return top; }
    unsigned num_child_lists() const override { return 2; }
    tree_node_list *child_list_num(unsigned n) const override;
    tree_node *clone() const override;

private:
    tree_node_list *bdy, *tst;
    label_sym *cont, *brk, *top;
};

// `var = op` as a tree node: a copy instruction of the variable's type,
// with copies of the annotations of `annotes` (may be null) on it.
tree_instr *create_assignment(var_sym *var, operand op, annote_list *annotes);
// Checks that every nested instruction of i is linked to its parent and
// repairs the links; call after building an expression by hand.
void recursive_hidden_check(instruction *i);
