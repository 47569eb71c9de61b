// Types: sizes, qualifiers, sharing, and the layouts the builder computes.
#include <gtest/gtest.h>

#include "ir/test_util.h"

using types = ir_test;

TEST_F(types, qualifiers_stack_and_strip) {
    program_builder b;
    type_node *cv = b.volatile_of(b.const_of(type_signed));
    EXPECT_TRUE(cv->is_const());
    EXPECT_TRUE(cv->is_volatile());
    EXPECT_EQ(cv->unqual(), type_signed);
    EXPECT_EQ(cv->size(), 32);
    EXPECT_FALSE(b.ptr(cv)->is_const());  // the pointer itself isn't
}

TEST_F(types, ptr_to_is_installed_where_its_referent_is) {
    proc_symtab *local = new proc_symtab("p");
    global_st->add_child(local);
    struct_type *s = new struct_type(TYPE_STRUCT, 32, "local", 0);
    local->install_type(s);
    ptr_type *p = s->ptr_to();
    EXPECT_EQ(p->parent(), local);
    EXPECT_EQ(s->ptr_to(), p);
    EXPECT_EQ(type_signed->ptr_to()->parent(), global_st);
    global_st->remove_child(local);
    delete local;
}

TEST_F(types, array_sizes) {
    program_builder b;
    EXPECT_EQ(b.array(type_signed, 10)->size(), 320);
    array_type *open = b.array(type_signed, -1);
    EXPECT_TRUE(open->are_bounds_unknown());
    EXPECT_EQ(open->size(), 0);
    EXPECT_EQ(open->upper_bound().is_unknown(), true);
    EXPECT_EQ(b.array(b.array(type_signed_short, 3), 2)->size(), 96);
    EXPECT_EQ(get_element_type(b.const_of(b.array(type_double, 2))), type_double);
    EXPECT_EQ(get_element_type(type_double), nullptr);
}

TEST_F(types, struct_layout_with_bitfields_and_padding) {
    program_builder b;
    // struct { char c; int a : 3; int b : 30; long l; }
    struct_type *s = b.struct_of("bits", {{"c", type_char},
                                          {"a", type_signed, 3},
                                          {"b", type_signed, 30},
                                          {"l", type_signed_long}});
    EXPECT_EQ(s->field_offset(0), 0);
    EXPECT_EQ(s->field_offset(1), 32);  // a new int unit after the char
    EXPECT_EQ(s->field_storage_width(1), 32);
    EXPECT_EQ(s->field_type(1)->size(), 3);
    EXPECT_EQ(s->field_offset(2), 64);  // 3 + 30 bits don't fit one unit
    EXPECT_EQ(s->field_offset(3), 128);
    EXPECT_EQ(s->size(), 192);
    EXPECT_EQ(s->field_storage_width(3), 0);
    EXPECT_EQ(get_alignment(s), 64);
    b.annotate(s, k_max_align, {immed(1)});
    EXPECT_EQ(get_alignment(s), 8);
    struct_type *u = b.union_of("u", {{"c", type_char}, {"d", type_double}});
    EXPECT_EQ(u->size(), 64);
    EXPECT_EQ(u->field_offset(1), 0);
}

TEST_F(types, function_types_and_their_hidden_parameters) {
    program_builder b;
    func_type *v = b.func(type_signed, {b.ptr(b.const_of(type_char))}, true);
    EXPECT_TRUE(v->has_varargs());
    ASSERT_EQ(v->num_args(), 3u);
    EXPECT_EQ(v->arg_type(1), type_signed);
    EXPECT_EQ(v->arg_type(2), b.ptr(b.ptr(type_void)));
    EXPECT_FALSE(v->check_range(3));
    EXPECT_EQ(v->arg_type(3), nullptr);
    func_type *old = b.func_noproto(type_signed);
    EXPECT_FALSE(old->args_known());
    EXPECT_NE(static_cast<type_node *>(old), b.func(type_signed, {}));
    EXPECT_EQ(b.func(type_signed, {type_signed}), b.func(type_signed, {type_signed}));
    EXPECT_EQ(v->size(), 0);
}

TEST_F(types, annotated_types_are_not_shared_with_new_ones) {
    type_node *p = global_st->install_type(new ptr_type(type_float));
    p->append_annote(intern("type_name"), nullptr);
    // An existing annotated type still answers for its shape...
    ptr_type *again = new ptr_type(type_float);
    EXPECT_EQ(global_st->install_type(again), p);
    delete again;
    // ...but a new type that comes with an annotation stays itself.
    ptr_type *own = new ptr_type(type_float, new annote(k_drs));
    EXPECT_EQ(global_st->install_type(own), own);
}

TEST_F(types, enums_keep_big_values_and_their_base) {
    program_builder b;
    enum_type *e = b.enum_of("e", {{"LOW", -2147483648LL}, {"HIGH", 2147483647}});
    EXPECT_EQ(e->value(0).to_string(10), "-2147483648");
    EXPECT_EQ(base_from_enum(e), type_signed);
    EXPECT_EQ(base_from_enum(type_double), type_double);
    EXPECT_EQ(e->member(5), nullptr);
    EXPECT_TRUE(e->value(5).is_zero());
}
