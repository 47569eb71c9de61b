// Symbols (procedures, labels, variables) and variable definitions.
#pragma once

#include "ir/annotes.h"

enum sym_kinds {
    SYM_PROC = 0,
    SYM_LABEL = 1,
    SYM_VAR = 2,
};

// Bits of sym_node::flags().
enum sym_flags : unsigned {
    SYMFLAG_USERDEF = 1u << 0,            // the generators may touch the symbol
    SYMFLAG_ADDR_TAKEN = 1u << 1,         // variable whose address is taken
    SYMFLAG_PARAM = 1u << 2,              // variable that is a parameter
    SYMFLAG_STANDARD_STUBBED = 1u << 3,   // extern variable declared only in system headers
    SYMFLAG_TENTATIVE_ARRAY = 1u << 4,    // `int a[];` at file scope
    SYMFLAG_EXTERN_DECL = 1u << 5,        // variable declared here, defined elsewhere
};

// Language of a procedure: 0 for a procedure with no body.
typedef int src_lang_type;
enum { src_unknown = 0, src_c = 1 };

// The common part of every symbol.
class sym_node : public suif_object {
public:
    object_kinds object_kind() const override { return SYM_OBJ; }
    virtual sym_kinds kind() const = 0;
    const char *name() const { return nm; }
    // True for a symbol declared here and defined nowhere.
    virtual bool is_extern() const { return false; }
    void set_name(const char *name);  // interns
    // The name as written in the source (defaults to name()).
    const char *true_name() const { return tn ? tn : nm; }
    void set_true_name(const char *name);  // interns; null resets to name()

    base_symtab *parent() const { return owner; }
    unsigned sym_id() const { return id; }
    unsigned flags() const { return flg; }
    void set_flags(unsigned f) { flg = f; }
    void set_flag(unsigned bit) { flg |= bit; }
    void reset_flag(unsigned bit) { flg &= ~bit; }
    bool is_userdef() const { return flg & SYMFLAG_USERDEF; }
    void set_userdef() { flg |= SYMFLAG_USERDEF; }
    void reset_userdef() { flg &= ~SYMFLAG_USERDEF; }

    bool is_proc() const { return kind() == SYM_PROC; }
    bool is_var() const { return kind() == SYM_VAR; }
    bool is_label() const { return kind() == SYM_LABEL; }
    // Declared in the global or a file table.
    bool is_global() const;

    // Used by symbol tables when a symbol enters them.
    void set_parent(base_symtab *s) { owner = s; }
    void set_sym_id(unsigned i) { id = i; }

protected:
    explicit sym_node(const char *name);

private:
    const char *nm;
    const char *tn = nullptr;
    base_symtab *owner = nullptr;
    unsigned id = 0;
    unsigned flg = 0;
};

class var_sym : public sym_node {
public:
    var_sym(type_node *type, const char *name);
    sym_kinds kind() const override { return SYM_VAR; }
    // A global variable without a var_def.
    bool is_extern() const override;
    type_node *type() const { return typ; }
    void set_type(type_node *t) { typ = t; }
    var_def *definition() const;  // its var_def, or null
    bool has_var_def() const { return definition() != nullptr; }
    bool is_standard_stubbed() const { return flags() & SYMFLAG_STANDARD_STUBBED; }
    bool is_tentative_definition_array() const { return flags() & SYMFLAG_TENTATIVE_ARRAY; }
    bool is_addr_taken() const { return flags() & SYMFLAG_ADDR_TAKEN; }
    bool is_param() const { return flags() & SYMFLAG_PARAM; }
    void set_addr_taken() { set_flag(SYMFLAG_ADDR_TAKEN); }
    void set_param() { set_flag(SYMFLAG_PARAM); }
    // A variable of a procedure or block table.
    bool is_auto() const;

    // Used by add_def.
    void set_definition(var_def *d) { def = d; }

private:
    type_node *typ;
    var_def *def = nullptr;
};

class label_sym : public sym_node {
public:
    explicit label_sym(const char *name);
    sym_kinds kind() const override { return SYM_LABEL; }
};

// A procedure. Its body (a tree_proc) is in memory only between read_proc
// (or set_block) and flush_proc.
class proc_sym : public sym_node {
public:
    proc_sym(func_type *type, src_lang_type lang, const char *name);
    ~proc_sym() override;
    sym_kinds kind() const override { return SYM_PROC; }
    // No body anywhere (src_lang 0).
    bool is_extern() const override { return lang == src_unknown; }

    func_type *type() const { return typ; }
    void set_type(func_type *t) { typ = t; }
    src_lang_type src_lang() const { return lang; }
    void set_src_lang(src_lang_type l) { lang = l; }
    tree_proc *block() const { return body; }
    // The entry that holds the body, or null. Setting it adds the procedure
    // to that entry's procedure iteration.
    file_set_entry *file() const { return fse; }
    void set_file(file_set_entry *f);
    bool is_in_memory() const { return body != nullptr; }
    bool is_written() const { return written; }

    // Loads the body from the input file (no-op if already in memory or if
    // there is none). The two flags are accepted for compatibility.
    void read_proc(bool exp_trees = true, bool use_fortran_form = false);
    // Writes the body in memory to the output of fse.
    void write_proc(file_set_entry *fse);
    // Frees the body in memory (after writing it if it must be kept).
    void flush_proc();
    // Gives the procedure a body made in memory; the procedure owns it.
    void set_block(tree_proc *t);

    // Internal to the reader and writer: where the body lies in the input
    // (-2 while a body is announced but not yet found), and the index of
    // its last text in the entry's spool.
    long body_offset = -1;
    int body_line = 0;
    long spool_index = -1;

private:
    func_type *typ;
    src_lang_type lang;
    tree_proc *body = nullptr;
    file_set_entry *fse = nullptr;
    bool written = false;
};

// The definition (storage) of a variable, with its alignment in bits.
class var_def : public suif_object {
public:
    var_def(var_sym *v, int alignment);
    object_kinds object_kind() const override { return DEF_OBJ; }
    var_sym *variable() const { return var; }
    int alignment() const { return align; }
    base_symtab *parent() const { return owner; }
    void set_parent(base_symtab *s) { owner = s; }

private:
    var_sym *var;
    int align;
    base_symtab *owner = nullptr;
};
