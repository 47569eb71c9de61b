// A builder for IR programs in a few lines, for tests and examples.
//
//   init_suif(argc, argv);
//   program_builder b("out.ir");
//   struct_type *s = b.struct_of("buf", {{"len", type_signed}, {"data", b.ptr(type_char)}});
//   proc_sym *fill = b.extern_proc("fill", b.func(type_signed, {b.ptr(s), type_signed}));
//   proc_sym *run = b.defined_proc("run", b.func(type_void, {}));
//   b.add_call(run, fill, {});
//   exit_suif();  // writes out.ir
//
// Every symbol gets a k_source_coordinates annotation in the builder's
// source file ("test.c" unless set), on the var_def for defined variables.
#pragma once

#include <initializer_list>
#include <utility>

#include "ir/annotes.h"
#include "ir/trees.h"
#include "ir/types.h"

struct field_desc {
    const char *name;
    type_node *type;
    int bit_width = 0;  // not 0 for a bit-field
};

struct enum_member_desc {
    const char *name;
    long long value;
};

class program_builder {
public:
    // A new in-memory entry of `fileset` written to out_name at exit_suif
    // (nothing written when null). REQUIRES: init_suif() was called.
    explicit program_builder(const char *out_name = nullptr, const char *source_file = "test.c");
    file_set_entry *fse() const { return entry; }
    global_symtab *globals() const;
    file_symtab *file_table() const;
    void set_source_file(const char *name);
    void set_line(int line) { cur_line = line; }

    // Types, installed in the global table.
    type_node *install(type_node *t);
    ptr_type *ptr(type_node *t);
    type_node *const_of(type_node *t);
    type_node *volatile_of(type_node *t);
    // count < 0 gives an array of unknown bound.
    array_type *array(type_node *elem, int count);
    // With varargs, the two hidden parameters (int, void **) are appended.
    func_type *func(type_node *ret, std::initializer_list<type_node *> args, bool varargs = false);
    func_type *func_noproto(type_node *ret);
    // Offsets and size follow the target's alignments; bit-fields pack into
    // units of their type's size.
    struct_type *struct_of(const char *tag, std::initializer_list<field_desc> fields);
    struct_type *union_of(const char *tag, std::initializer_list<field_desc> fields);
    enum_type *enum_of(const char *tag, std::initializer_list<enum_member_desc> members);
    // An integer of any size in bits (for bit-field types).
    type_node *int_of(int bits, bool is_signed);

    // Symbols. A defined global gets a var_def; a static goes to the file
    // table with k_static_sym.
    var_sym *global_var(const char *name, type_node *t, bool defined = true);
    var_sym *static_var(const char *name, type_node *t);
    proc_sym *extern_proc(const char *name, func_type *t);
    // A procedure with a body in memory (a return of nothing, or of 0 for
    // an integer result) and one parameter variable per argument, named
    // "p0", "p1", ...
    proc_sym *defined_proc(const char *name, func_type *t);
    proc_sym *static_proc(const char *name, func_type *t);

    // Bodies. Statements are added before the final return.
    tree_node_list *body(proc_sym *p);
    proc_symtab *scope(proc_sym *p);
    var_sym *param(proc_sym *p, unsigned n);
    void add_node(proc_sym *p, tree_node *t);
    // A call of callee (address: a load-constant of its symbol); the
    // result, if any, goes to a new local.
    in_cal *add_call(proc_sym *caller, proc_sym *callee, std::initializer_list<operand> args);
    // A call through a function pointer variable.
    in_cal *add_indirect_call(proc_sym *caller, var_sym *fptr, std::initializer_list<operand> args);
    // A read of v into a new local.
    void add_use(proc_sym *p, var_sym *v);
    // v = value (a load-constant of an integer).
    void add_assign(proc_sym *p, var_sym *v, long long value);
    // The address of s taken into a new local (load-constant of the symbol).
    void add_addr_of(proc_sym *p, sym_node *s);
    // A nested block with its own table and one local; returns that local.
    var_sym *add_block(proc_sym *p, type_node *local_type);
    // if (v <= 0) then-part: v = 1; else-part: v = 2.
    void add_if(proc_sym *p, var_sym *v);

    // Annotations.
    annote *annotate(suif_object *o, const char *name, std::initializer_list<immed> immeds = {});
    void set_coord(suif_object *o, int line);

private:
    void finish_sym(sym_node *s, suif_object *coord_holder);
    struct_type *aggregate(type_ops op, const char *tag, std::initializer_list<field_desc> fields);
    file_set_entry *entry;
    const char *src_file;
    int cur_line = 1;
};
