// Symbol tables: the base (symbols, types, variable definitions, children),
// block and procedure tables, and the global and file tables.
//
// A table owns its symbols, types, var_defs and child tables. The global
// table `global_st` (the file set's `globals`) also carries the predefined
// types, named below.
#pragma once

#include "ir/annotes.h"
#include "ir/symbols.h"

class base_symtab : public suif_object {
public:
    explicit base_symtab(const char *name);
    ~base_symtab() override;
    object_kinds object_kind() const override { return SYMTAB_OBJ; }

    const char *name() const { return nm; }
    void set_name(const char *name);  // interns
    base_symtab *parent() const { return up; }
    base_symtab_list *children() { return &kids; }
    sym_node_list *symbols() { return &syms; }
    type_node_list *types() { return &typs; }
    var_def_list *var_defs() { return &defs; }

    virtual bool is_global() const { return false; }
    virtual bool is_file() const { return false; }
    virtual bool is_block() const { return false; }
    virtual bool is_proc() const { return false; }

    // Lookup by name and kind, here and then (with search_parents) in the
    // enclosing tables. Null when absent.
    sym_node *lookup_sym(const char *name, sym_kinds kind, bool search_parents = true) const;
    var_sym *lookup_var(const char *name, bool search_parents = true) const;
    proc_sym *lookup_proc(const char *name, bool search_parents = true) const;
    label_sym *lookup_label(const char *name, bool search_parents = true) const;
    // The var_def of v in this table, or null.
    var_def *lookup_var_def(const var_sym *v) const;

    // New variables. new_unique_var picks a name not used in this table or
    // its parents, from base (or "_tmp" when base is null) and a number.
    var_sym *new_var(type_node *type, const char *name);
    var_sym *new_unique_var(type_node *type, const char *base = nullptr);

    // Adds a symbol (the table takes it and gives it an id); removes one
    // (the caller takes it back).
    sym_node *add_sym(sym_node *s);
    sym_node *remove_sym(sym_node *s);
    // Adds a definition; the variable gets it as definition().
    var_def *add_def(var_def *d);
    // Adds a child table (owned from then on); removes one (given back).
    void add_child(base_symtab *child);
    void remove_child(base_symtab *child);

    // The canonical form of t: an equal type already installed here or in
    // a parent, or t itself, which is then added to this table with a new
    // type_id. A t that loses to an existing type is left to the caller.
    type_node *install_type(type_node *t);
    // Adds t with its type_id as it stands (used by the reader); removes
    // t (given back to the caller).
    void add_type(type_node *t);
    void remove_type(type_node *t);
    type_node *lookup_type_id(unsigned id) const;

    // Used by add_child, and by sym_node::set_name to keep the name index.
    void set_parent(base_symtab *s) { up = s; }
    void rename_sym(sym_node *s, const char *old_name);

    struct lookup_index;

private:
    lookup_index *idx;
    unsigned unique_counter = 0;
    const char *nm;
    base_symtab *up = nullptr;
    base_symtab_list kids;
    sym_node_list syms;
    type_node_list typs;
    var_def_list defs;
};

// A table of a block of a procedure body; labels live here.
class block_symtab : public base_symtab {
public:
    explicit block_symtab(const char *name);
    bool is_block() const override { return true; }
    // A new label with a name not used in this table or its parents.
    label_sym *new_unique_label(const char *base = nullptr);
    tree_block *block() const { return blk; }
    void set_block(tree_block *b) { blk = b; }

private:
    tree_block *blk = nullptr;
    unsigned label_counter = 0;
};

// The outermost table of a procedure body; keeps the parameter order.
class proc_symtab : public block_symtab {
public:
    explicit proc_symtab(const char *name);
    bool is_proc() const override { return true; }
    sym_node_list *params() { return &prms; }

private:
    sym_node_list prms;
};

// Tables at file level.
class global_or_file_symtab : public base_symtab {
public:
    explicit global_or_file_symtab(const char *name) : base_symtab(name) {}
    // A new procedure symbol in this table.
    proc_sym *new_proc(func_type *type, src_lang_type lang, const char *name);
    // Gives an id to every symbol of this table that has none.
    void number_globals();
};

// The table of every file; one object, `global_st`.
class global_symtab : public global_or_file_symtab {
public:
    explicit global_symtab(const char *name);
    bool is_global() const override { return true; }
};

// The table of one file set entry.
class file_symtab : public global_or_file_symtab {
public:
    file_symtab(const char *name, file_set_entry *fse);
    bool is_file() const override { return true; }
    file_set_entry *fse() const { return entry; }

private:
    file_set_entry *entry;
};

// The predefined types of the global table, by role. They are created by
// init_suif() from `target` and installed in the global table; a front end
// that changes `target` calls make_predefined_types() again before creating
// anything else.
extern type_node *type_void;
extern type_node *type_ptr;            // void *: its size is the pointer size
extern type_node *type_char;           // plain char, signed as the target says
extern type_node *type_signed_char;
extern type_node *type_unsigned_char;
extern type_node *type_signed_short;
extern type_node *type_unsigned_short;
extern type_node *type_signed;         // int
extern type_node *type_unsigned;       // unsigned int
extern type_node *type_signed_long;
extern type_node *type_unsigned_long;
extern type_node *type_signed_longlong;
extern type_node *type_unsigned_longlong;
extern type_node *type_float;
extern type_node *type_double;
extern type_node *type_longdouble;
extern type_node *type_ptr_diff;       // the signed integer of pointer size
extern type_node *type_ptr_uint;       // the unsigned integer of pointer size
// (Re)creates the predefined types in global_st from `target`.
void make_predefined_types();
