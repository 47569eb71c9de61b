// Bodies: ownership links between nodes, lists and instructions, the
// traversals, and deep copies.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ir/test_util.h"

using trees = ir_test;

namespace {
// x = (a + 3) * b as one expression tree.
in_rrr *sample_expr(var_sym *x, var_sym *a, var_sym *b) {
    in_rrr *add = new in_rrr(io_add, type_signed, operand(), operand(a),
                             operand(new in_ldc(type_signed, operand(), immed(3))));
    return new in_rrr(io_mul, type_signed, operand(x), operand(add), operand(b));
}

void collect_ops(instruction *i, void *x) { static_cast<std::vector<if_ops> *>(x)->push_back(i->opcode()); }

void count_kinds(tree_node *t, void *x) { static_cast<std::string *>(x)->push_back((char)('0' + t->kind())); }
}  // namespace

TEST_F(trees, nested_instructions_know_their_parent_and_owner) {
    var_sym *a = global_st->new_var(type_signed, "a"), *b = global_st->new_var(type_signed, "b"),
            *x = global_st->new_var(type_signed, "x");
    in_rrr *mul = sample_expr(x, a, b);
    tree_instr *ti = new tree_instr(mul);
    EXPECT_EQ(mul->owner(), ti);
    instruction *add = mul->src_op(0).instr();
    ASSERT_NE(add, nullptr);
    EXPECT_EQ(add->parent_instr(), mul);
    EXPECT_EQ(add->owner(), nullptr);
    EXPECT_EQ(mul->src_op(0).type(), type_signed);
    EXPECT_EQ(mul->src_op(1).symbol(), b);
    // Taking a source out gives it back to the caller, unlinked.
    operand taken = mul->take_src_op(0);
    EXPECT_TRUE(mul->src_op(0).is_null());
    EXPECT_EQ(taken.instr()->parent_instr(), nullptr);
    mul->set_src_op(0, taken);
    EXPECT_EQ(add->parent_instr(), mul);
    // operand::remove does the same from the operand's side.
    operand(add).remove();
    EXPECT_TRUE(mul->src_op(0).is_null());
    delete add;
    delete ti;
}

TEST_F(trees, instr_map_visits_sources_before_their_user) {
    var_sym *a = global_st->new_var(type_signed, "a"), *b = global_st->new_var(type_signed, "b"),
            *x = global_st->new_var(type_signed, "x");
    tree_instr ti(sample_expr(x, a, b));
    std::vector<if_ops> seen;
    ti.instr_map(collect_ops, &seen, true);
    EXPECT_EQ(seen, (std::vector<if_ops>{io_ldc, io_add, io_mul}));
    seen.clear();
    ti.instr_map(collect_ops, &seen, false);
    EXPECT_EQ(seen, (std::vector<if_ops>{io_mul}));
}

TEST_F(trees, map_walks_every_node_in_preorder_or_postorder) {
    program_builder b;
    proc_sym *p = b.defined_proc("p", b.func(type_void, {type_signed}));
    b.add_if(p, b.param(p, 0));
    b.add_block(p, type_signed);
    std::string pre, post;
    p->block()->map(count_kinds, &pre, true, true);
    p->block()->map(count_kinds, &post, false, true);
    // proc block, if (header: 2 instrs, then: 1, else: 1), block (1 instr), return.
    EXPECT_EQ(pre, "43000040" "0");
    EXPECT_EQ(post, "0000" "3" "04" "0" "4");
    std::string shallow;
    p->block()->map(count_kinds, &shallow, true, false);
    EXPECT_EQ(shallow, "4");
}

TEST_F(trees, nodes_know_their_procedure_and_scope) {
    program_builder b;
    proc_sym *p = b.defined_proc("p", b.func(type_void, {}));
    var_sym *local = b.add_block(p, type_signed);
    tree_block *blk = nullptr;
    for (tree_node_list_e *e = b.body(p)->head(); e; e = e->next())
        if (e->contents->is_block()) blk = static_cast<tree_block *>(e->contents);
    ASSERT_NE(blk, nullptr);
    tree_node *inner = blk->body()->head()->contents;
    EXPECT_EQ(inner->proc(), p);
    EXPECT_EQ(inner->scope(), blk->symtab());
    EXPECT_EQ(blk->scope(), blk->symtab());
    EXPECT_EQ(local->parent(), blk->symtab());
    EXPECT_TRUE(local->is_auto());
    EXPECT_EQ(blk->symtab()->parent(), b.scope(p));
    EXPECT_EQ(blk->symtab()->lookup_sym("p", SYM_PROC, true), p);
}

TEST_F(trees, clones_are_deep_and_keep_annotations) {
    var_sym *a = global_st->new_var(type_signed, "a"), *b = global_st->new_var(type_signed, "b"),
            *x = global_st->new_var(type_signed, "x");
    in_rrr *orig = sample_expr(x, a, b);
    orig->src_op(0).instr()->append_annote(k_fields, nullptr);
    instruction *copy = orig->clone();
    ASSERT_NE(copy->src_op(0).instr(), orig->src_op(0).instr());
    EXPECT_EQ(copy->src_op(0).instr()->parent_instr(), copy);
    EXPECT_NE(copy->src_op(0).instr()->peek_annote(k_fields), nullptr);
    EXPECT_EQ(copy->dst_op().symbol(), x);
    annote_list copied;
    orig->src_op(0).clone_annotes(&copied);
    EXPECT_EQ(copied.count(), 1);
    delete orig;  // the copy owns its own sources
    EXPECT_EQ(copy->src_op(0).instr()->src_op(0).symbol(), a);
    delete copy;
}

TEST_F(trees, create_assignment_copies_into_the_variable) {
    var_sym *v = global_st->new_var(global_st->install_type(new modifier_type(TYPE_CONST, type_signed)), "v");
    annote_list extra;
    extra.append(new annote(k_fields, nullptr));
    tree_instr *t = create_assignment(v, operand(new in_ldc(type_signed, operand(), immed(5))), &extra);
    instruction *i = t->instr();
    EXPECT_EQ(i->result_type(), type_signed);  // unqualified
    EXPECT_NE(i->peek_annote(k_fields), nullptr);
    EXPECT_EQ(extra.count(), 1);  // the caller's list is left alone
    delete t;
}

TEST_F(trees, recursive_hidden_check_repairs_links_of_hand_built_expressions) {
    in_ldc *c = new in_ldc(type_signed, operand(), immed(1));
    in_rrr *neg = new in_rrr(io_neg, type_signed, operand(), operand(c));
    c->set_parent_instr(nullptr);  // as if built by hand
    recursive_hidden_check(neg);
    EXPECT_EQ(c->parent_instr(), neg);
    delete neg;
}
