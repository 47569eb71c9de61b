// The file format: read then write gives the same bytes; what is read is
// what was written; bodies come and go one at a time; late changes reach
// the output.
#include <gtest/gtest.h>

#include <cmath>

#include "ir/test_util.h"

using io = ir_test;

namespace {
// A program with every kind of object the format holds.
void build_everything(program_builder &b) {
    type_node *cchar = b.const_of(type_char);
    func_type *cb = b.func(type_signed, {type_signed});
    struct_type *node = new struct_type(TYPE_STRUCT, 128, "node", 2);
    global_st->install_type(node);
    node->set_field_name(0, "next");
    node->set_field_type(0, b.ptr(node));  // a type that refers back to its struct
    node->set_field_name(1, "val");
    node->set_field_type(1, type_signed);
    node->set_field_offset(1, 64);
    struct_type *s = b.struct_of("s", {{"a", type_unsigned, 5}, {"cb", b.ptr(cb)}, {"n", node}});
    b.annotate(s, k_max_align, {immed(2)});
    b.union_of("u", {{"f", type_float}, {"l", type_signed_longlong}});
    enum_type *e = b.enum_of("e", {{"NEG", -5}, {"BIG", 2147483647}});
    e->set_value(1, i_integer("123456789012345678901234567890", 10));
    global_st->install_type(new struct_type(TYPE_GROUP, 0, "g", 0));
    global_st->install_type(new modifier_type(TYPE_CALL_BY_REF, type_signed));
    global_st->install_type(new modifier_type(TYPE_NULL, type_signed));
    var_sym *n = b.global_var("n", type_signed);
    global_st->install_type(new array_type(type_signed, array_bound(0), array_bound(n)));
    b.global_var("arr", b.array(b.volatile_of(type_double), -1));
    b.global_var("weird \"name\"\n\t\\", type_signed, false);
    var_sym *st = b.static_var("st__2", s);
    st->set_true_name("st");
    b.annotate(st->definition(), k_sfr_init);
    proc_sym *ext = b.extern_proc("ext", b.func(type_void, {b.ptr(cchar)}, true));
    proc_sym *noproto = b.extern_proc("old", b.func_noproto(type_signed));
    proc_sym *f = b.defined_proc("f", b.func(type_signed, {type_signed, b.ptr(s)}));
    proc_sym *g = b.static_proc("g", b.func(type_void, {}));
    b.annotate(b.fse(), k_pragma, {immed("pack"), immed(1)});
    b.annotate(global_st, k_size_t, {immed(0), immed(3)});
    b.annotate(global_st, "all_immeds",
               {immed(-1), immed("s"), immed(n, 8), immed(type_double), immed(im_ext_int, "-99999999999999999999"),
                immed(im_ext_float, "1.5E+10F"), immed(0.1)});
    b.add_call(f, ext, {operand(b.param(f, 0))});
    b.add_call(g, noproto, {});
    b.add_call(g, f, {operand(n), operand()});
    b.add_addr_of(g, ext);
    b.add_if(f, b.param(f, 0));
    b.add_block(g, type_signed_char);
    label_sym *top = b.scope(g)->new_unique_label("top");
    tree_node_list *body = new tree_node_list;
    body->append(new tree_instr(new in_lab(top)));
    in_rrr *add = new in_rrr(io_add, b.ptr(type_signed), operand(),
                             operand(new in_ldc(b.ptr(type_signed), operand(), immed(n, 0))),
                             operand(new in_ldc(type_unsigned, operand(), immed(4))));
    b.annotate(add, k_fields, {immed("val")});
    body->append(new tree_instr(new in_rrr(io_str, type_void, operand(), operand(add), operand(n))));
    body->append(new tree_instr(new in_gen("sizeof", type_unsigned_long, operand(n), 1)));
    tree_node_list *test = new tree_node_list;
    test->append(new tree_instr(new in_bj(io_bfalse, top, operand(n))));
    tree_loop *loop = new tree_loop(body, test, nullptr, nullptr, top);
    b.annotate(loop, k_sequence_point, {immed("x.c"), immed(1)});
    b.add_node(g, loop);
    b.annotate(f->block(), k_enable_exceptions, {immed("int_divide-by-0")});
}

// Reads `in`, writes every body back to `out`, as the stubber does.
file_set_entry *copy_file(const std::string &in, const std::string &out) {
    file_set_entry *fse = fileset->add_file(in.c_str(), out.c_str());
    fse->reset_proc_iter();
    while (proc_sym *p = fse->next_proc()) {
        p->read_proc(true, false);
        p->write_proc(fse);
        p->flush_proc();
    }
    return fse;
}

void restart() {
    exit_suif();
    int argc = 1;
    char name[] = "t";
    char *argv[] = {name, nullptr};
    init_suif(argc, argv);
}

// Writes the program with every kind of object to `file`, then starts afresh.
void write_everything(const std::string &file, const char *source = "test.c") {
    {
        program_builder pb(file.c_str(), source);
        build_everything(pb);
    }
    restart();
}
}  // namespace

TEST_F(io, read_then_write_is_byte_identical) {
    std::string a = path("a.ir"), b = path("b.ir"), c = path("c.ir");
    write_everything(a);
    copy_file(a, b);
    restart();
    copy_file(b, c);
    restart();
    std::string ta = slurp(a), tb = slurp(b);
    ASSERT_FALSE(ta.empty());
    EXPECT_EQ(ta, tb);
    EXPECT_EQ(tb, slurp(c));
    EXPECT_FALSE(file_exists(a + ".tmp"));
}

TEST_F(io, bodies_not_written_are_kept_as_they_were) {
    std::string a = path("a.ir"), b = path("b.ir");
    write_everything(a);
    fileset->add_file(a.c_str(), b.c_str());  // no body touched
    restart();
    EXPECT_EQ(slurp(a), slurp(b));
}

TEST_F(io, what_is_read_is_what_was_written) {
    std::string a = path("a.ir");
    write_everything(a, "orig.c");
    file_set_entry *fse = fileset->add_file(a.c_str(), nullptr);
    EXPECT_STREQ(fse->name(), "orig.c");
    ASSERT_NE(fse->peek_annote(k_pragma), nullptr);
    EXPECT_STREQ(fse->peek_annote(k_pragma)->immeds()->head()->contents.string(), "pack");

    var_sym *n = global_st->lookup_var("n");
    ASSERT_NE(n, nullptr);
    EXPECT_EQ(n->type(), type_signed);
    EXPECT_TRUE(n->has_var_def());
    EXPECT_TRUE(n->is_userdef());
    EXPECT_FALSE(n->is_extern());
    var_sym *weird = global_st->lookup_var("weird \"name\"\n\t\\");
    ASSERT_NE(weird, nullptr);
    EXPECT_TRUE(weird->is_extern());
    var_sym *st = fse->symtab()->lookup_var("st__2", false);
    ASSERT_NE(st, nullptr);
    EXPECT_EQ(global_st->lookup_var("st__2", false), nullptr);
    EXPECT_STREQ(st->true_name(), "st");
    EXPECT_NE(st->peek_annote(k_static_sym), nullptr);
    EXPECT_NE(st->definition()->peek_annote(k_sfr_init), nullptr);

    auto s = static_cast<struct_type *>(st->type());
    ASSERT_EQ(s->op(), TYPE_STRUCT);
    EXPECT_STREQ(s->field_name(0), "a");
    EXPECT_EQ(s->field_storage_width(0), 32);
    EXPECT_EQ(s->field_type(0)->size(), 5);
    EXPECT_EQ(s->peek_annote(k_max_align)->immeds()->head()->contents.integer(), 2);
    auto node = static_cast<struct_type *>(s->field_type(2));
    auto next = static_cast<ptr_type *>(node->field_type(0));
    EXPECT_EQ(next->ref_type(), node);

    annote *all = global_st->peek_annote(intern("all_immeds"));
    ASSERT_NE(all, nullptr);
    immed_list_e *e = all->immeds()->head();
    EXPECT_EQ(e->contents.integer(), -1);
    e = e->next();
    EXPECT_STREQ(e->contents.string(), "s");
    e = e->next();
    EXPECT_EQ(e->contents.symbol(), n);
    EXPECT_EQ(e->contents.offset(), 8);
    e = e->next();
    EXPECT_EQ(e->contents.type(), type_double);
    e = e->next();
    EXPECT_STREQ(e->contents.ext_integer(), "-99999999999999999999");
    e = e->next();
    EXPECT_STREQ(e->contents.ext_flt(), "1.5E+10F");
    e = e->next();
    EXPECT_EQ(e->contents.flt(), 0.1);
    F_types kind;
    EXPECT_TRUE(is_fundamental_type_annote(global_st->annotes()->head()->contents->name(), &kind, true));

    proc_sym *ext = global_st->lookup_proc("ext");
    EXPECT_EQ(ext->src_lang(), 0);
    EXPECT_TRUE(ext->type()->has_varargs());
    EXPECT_EQ(ext->type()->num_args(), 3u);
    EXPECT_FALSE(global_st->lookup_proc("old")->type()->args_known());

    // Procedures come in file order, bodies only on demand.
    fse->reset_proc_iter();
    proc_sym *f = fse->next_proc();
    proc_sym *g = fse->next_proc();
    EXPECT_EQ(fse->next_proc(), nullptr);
    ASSERT_NE(f, nullptr);
    EXPECT_STREQ(f->name(), "f");
    EXPECT_STREQ(g->name(), "g");
    EXPECT_EQ(f->block(), nullptr);
    f->read_proc(true, false);
    ASSERT_NE(f->block(), nullptr);
    EXPECT_EQ(f->block()->proc(), f);
    EXPECT_NE(f->block()->peek_annote(k_enable_exceptions), nullptr);
    EXPECT_EQ(f->block()->proc_syms()->params()->count(), 2);
    tree_instr *first = static_cast<tree_instr *>(f->block()->body()->head()->contents);
    in_cal *call = static_cast<in_cal *>(first->instr());
    ASSERT_EQ(call->opcode(), io_cal);
    auto addr = static_cast<in_ldc *>(call->addr_op().instr());
    EXPECT_EQ(addr->opcode(), io_ldc);
    EXPECT_EQ(addr->value().symbol(), ext);
    EXPECT_EQ(call->argument(0).symbol(), (*f->block()->proc_syms()->params())[0]);
    f->flush_proc();
    EXPECT_EQ(f->block(), nullptr);
    EXPECT_EQ(global_st->lookup_var("p0", true), nullptr);  // the body's table went with it
}

TEST_F(io, changes_after_a_body_was_written_reach_the_output) {
    std::string a = path("a.ir"), b = path("b.ir");
    write_everything(a);
    file_set_entry *fse = copy_file(a, b);
    // After the bodies: a new annotation, a new global, a new procedure with
    // a body made in memory, as the range passes do.
    global_st->lookup_proc("ext")->append_annote(k_drs, nullptr);
    // A type that loses to an installed equal one is the caller's to free.
    auto install = [](type_node *t) {
        type_node *r = global_st->install_type(t);
        if (r != t) delete t;
        return r;
    };
    var_sym *v = global_st->new_unique_var(install(new modifier_type(TYPE_VOLATILE, type_signed)));
    proc_sym *np = global_st->new_proc(static_cast<func_type *>(install(new func_type(false, type_signed))), src_c,
                                       "Qvt_Global_Assert_1");
    np->set_userdef();
    proc_symtab *st = new proc_symtab("Qvt_Global_Assert_1");
    global_st->add_child(st);
    tree_node_list *body = new tree_node_list;
    body->append(new tree_instr(new in_rrr(io_ret, type_signed, operand(), operand(v))));
    np->set_file(fse);
    np->set_block(new tree_proc(body, st));
    fse->reset_proc_iter();
    EXPECT_EQ(fse->next_proc()->name(), intern("f"));
    EXPECT_EQ(fse->next_proc()->name(), intern("g"));
    EXPECT_EQ(fse->next_proc(), np);
    np->read_proc(true, false);  // already in memory: nothing to read
    np->write_proc(fse);
    np->flush_proc();
    restart();

    file_set_entry *back = fileset->add_file(b.c_str(), nullptr);
    EXPECT_NE(global_st->lookup_proc("ext")->peek_annote(k_drs), nullptr);
    proc_sym *p = global_st->lookup_proc("Qvt_Global_Assert_1");
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p->file(), back);
    p->read_proc(true, false);
    ASSERT_NE(p->block(), nullptr);
    instruction *ret = static_cast<tree_instr *>(p->block()->body()->head()->contents)->instr();
    EXPECT_EQ(ret->opcode(), io_ret);
    EXPECT_TRUE(ret->src_op(0).symbol()->type()->is_volatile());
}

TEST_F(io, a_body_made_in_memory_and_never_written_is_not_lost) {
    std::string a = path("a.ir");
    {
        program_builder pb(a.c_str());
        proc_sym *f = pb.defined_proc("f", pb.func(type_void, {}));
        f->flush_proc();  // not written yet: kept
        EXPECT_NE(f->block(), nullptr);
    }
    restart();
    fileset->add_file(a.c_str(), nullptr);
    proc_sym *f = global_st->lookup_proc("f");
    f->read_proc(true, false);
    EXPECT_NE(f->block(), nullptr);
}

TEST_F(io, ids_stay_unique_after_reading) {
    std::string a = path("a.ir");
    write_everything(a);
    file_set_entry *fse = fileset->add_file(a.c_str(), nullptr);
    var_sym *v = global_st->new_var(type_signed, "fresh");
    type_node *t = global_st->install_type(new ptr_type(type_longdouble));
    // Reading every body must not meet the new ids.
    fse->reset_proc_iter();
    while (proc_sym *p = fse->next_proc()) {
        p->read_proc(true, false);
        for (sym_node_list_e *e = p->block()->proc_syms()->symbols()->head(); e; e = e->next())
            EXPECT_NE(e->contents->sym_id(), v->sym_id());
        p->flush_proc();
    }
    for (type_node_list_e *e = global_st->types()->head(); e; e = e->next())
        if (e->contents != t) {
            EXPECT_NE(e->contents->type_id(), t->type_id());
        }
}

TEST_F(io, install_type_shares_equal_types) {
    type_node *p1 = global_st->install_type(new ptr_type(type_signed));
    ptr_type *other = new ptr_type(type_signed);
    EXPECT_EQ(global_st->install_type(other), p1);
    delete other;
    EXPECT_EQ(type_signed->ptr_to(), p1);
    struct_type *s1 = new struct_type(TYPE_STRUCT, 0, "s", 0), *s2 = new struct_type(TYPE_STRUCT, 0, "s", 0);
    EXPECT_EQ(global_st->install_type(s1), s1);
    EXPECT_EQ(global_st->install_type(s2), s2);  // each tag is a type of its own
    EXPECT_NE(s1->type_id(), s2->type_id());
    func_type *f1 = static_cast<func_type *>(global_st->install_type(new func_type(type_void, type_signed, false, nullptr)));
    func_type *f2 = new func_type(type_void, type_signed, true, nullptr);
    EXPECT_NE(global_st->install_type(f2), f1);  // variadic differs
}

TEST_F(io, unique_names_and_lookup) {
    program_builder b;
    proc_sym *f = b.defined_proc("f", b.func(type_void, {}));
    proc_symtab *st = b.scope(f);
    var_sym *x = st->new_var(type_signed, "_tmp1");
    var_sym *u = st->new_unique_var(type_signed);
    EXPECT_NE(u, x);
    EXPECT_STRNE(u->name(), "_tmp1");
    EXPECT_EQ(st->lookup_var(u->name(), false), u);
    EXPECT_EQ(st->lookup_sym("f", SYM_PROC, true), f);
    EXPECT_EQ(st->lookup_sym("f", SYM_PROC, false), nullptr);
    EXPECT_EQ(st->lookup_sym("f", SYM_VAR, true), nullptr);
    u->set_name("renamed");
    EXPECT_EQ(st->lookup_var("renamed", false), u);
    EXPECT_EQ(st->lookup_var("_tmp2", false), nullptr);
    var_sym *late = st->new_var(type_signed, "late");
    EXPECT_EQ(st->lookup_var("late", false), late);
    st->remove_sym(late);
    EXPECT_EQ(st->lookup_var("late", false), nullptr);
    delete late;
    label_sym *l1 = st->new_unique_label(nullptr), *l2 = st->new_unique_label(nullptr);
    EXPECT_NE(l1, l2);
    EXPECT_STRNE(l1->name(), l2->name());
}

TEST_F(io, odd_texts_and_extreme_values_survive) {
    std::string a = path("a.ir"), b = path("b.ir");
    std::string all;
    for (int c = 1; c < 256; ++c) all.push_back((char)c);
    {
        program_builder pb(a.c_str());
        var_sym *v = pb.global_var(all.c_str(), type_signed);
        pb.annotate(v, "values",
                    {immed(-9223372036854775807LL - 1), immed(9223372036854775807LL), immed(-0.0), immed(1e308),
                     immed(5e-324), immed(1.0 / 3.0), immed(all.c_str()), immed(im_ext_float, "")});
    }
    restart();
    copy_file(a, b);
    restart();
    EXPECT_EQ(slurp(a), slurp(b));
    fileset->add_file(a.c_str(), nullptr);
    var_sym *v = global_st->lookup_var(all.c_str());
    ASSERT_NE(v, nullptr);
    immed_list_e *e = v->peek_annote(intern("values"))->immeds()->head();
    EXPECT_EQ(e->contents.integer(), -9223372036854775807LL - 1);
    e = e->next();
    EXPECT_EQ(e->contents.integer(), 9223372036854775807LL);
    e = e->next();
    EXPECT_TRUE(std::signbit(e->contents.flt()));
    e = e->next();
    EXPECT_EQ(e->contents.flt(), 1e308);
    e = e->next();
    EXPECT_EQ(e->contents.flt(), 5e-324);
    e = e->next();
    EXPECT_EQ(e->contents.flt(), 1.0 / 3.0);
    e = e->next();
    EXPECT_EQ(std::string(e->contents.string()), all);
    e = e->next();
    EXPECT_STREQ(e->contents.ext_flt(), "");
}

TEST_F(io, names_registered_as_not_output_stay_in_memory) {
    std::string a = path("a.ir");
    {
        program_builder pb(a.c_str());
        const char *mark = register_annote(new annote_def("type_defined", false));
        const char *kept = register_annote(new annote_def("kept_mark", true));
        pb.annotate(type_signed, mark);
        pb.annotate(type_signed, kept);
        EXPECT_EQ(lookup_annote(mark)->is_output(), false);
    }
    restart();
    fileset->add_file(a.c_str(), nullptr);
    EXPECT_EQ(type_signed->peek_annote(intern("type_defined")), nullptr);
    EXPECT_NE(type_signed->peek_annote(intern("kept_mark")), nullptr);
}

TEST_F(io, an_output_that_cannot_be_written_is_reported_and_absent) {
    std::string out = path("no_such_dir/out.ir");
    EXPECT_EXIT(
        {
            program_builder pb(out.c_str());
            pb.global_var("g", type_signed);
            exit_suif();
            exit(0);
        },
        ::testing::ExitedWithCode(1), "no_such_dir/out.ir:0: cannot write: No such file or directory");
    EXPECT_FALSE(file_exists(out));
}

TEST_F(io, a_body_written_again_or_read_again_has_the_last_changes) {
    std::string a = path("a.ir"), b = path("b.ir");
    {
        program_builder pb(a.c_str());
        pb.defined_proc("f", pb.func(type_void, {}));
    }
    restart();
    file_set_entry *fse = fileset->add_file(a.c_str(), b.c_str());
    proc_sym *f = global_st->lookup_proc("f");
    f->read_proc(true, false);
    f->write_proc(fse);
    f->block()->body()->push(new tree_instr(new in_rrr(io_mrk)));
    f->write_proc(fse);
    f->flush_proc();
    f->read_proc(true, false);
    ASSERT_NE(f->block(), nullptr);
    EXPECT_EQ(f->block()->body()->count(), 2);
    // A second pass writes again; the file holds that last text.
    f->block()->body()->push(new tree_instr(new in_rrr(io_nop)));
    f->write_proc(fse);
    f->flush_proc();
    restart();
    fileset->add_file(b.c_str(), nullptr);
    f = global_st->lookup_proc("f");
    f->read_proc(true, false);
    ASSERT_EQ(f->block()->body()->count(), 3);
    EXPECT_EQ(static_cast<tree_instr *>(f->block()->body()->head()->contents)->instr()->opcode(), io_nop);
    EXPECT_EQ(static_cast<tree_instr *>(f->block()->body()->head()->next()->contents)->instr()->opcode(), io_mrk);
}
