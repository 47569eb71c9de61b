// Symbols and variable definitions. Bodies are read and written by the
// file-format code (io_body.cpp).
#include "ir/symbols.h"

#include "ir/fileset.h"
#include "ir/strings.h"
#include "ir/symtabs.h"
#include "ir/trees.h"

sym_node::sym_node(const char *name) : nm(intern(name ? name : "")) {}

void sym_node::set_name(const char *name) {
    const char *old = nm;
    nm = intern(name ? name : "");
    if (owner && old != nm) owner->rename_sym(this, old);
}
void sym_node::set_true_name(const char *name) { tn = name ? intern(name) : nullptr; }

bool sym_node::is_global() const { return owner && (owner->is_global() || owner->is_file()); }

var_sym::var_sym(type_node *type, const char *name) : sym_node(name), typ(type) {}

bool var_sym::is_extern() const { return is_global() && !def; }

var_def *var_sym::definition() const { return def; }

bool var_sym::is_auto() const { return parent() && parent()->is_block(); }

label_sym::label_sym(const char *name) : sym_node(name) {}

proc_sym::proc_sym(func_type *type, src_lang_type l, const char *name)
    : sym_node(name), typ(type), lang(l) {}

proc_sym::~proc_sym() {
    delete body;
}

void proc_sym::set_file(file_set_entry *f) {
    if (f == fse) return;
    if (fse) fse->remove_proc(this);
    fse = f;
    if (fse) fse->add_proc(this);
}

void proc_sym::set_block(tree_proc *t) {
    if (body && body != t) delete body;
    body = t;
    written = false;
    if (t) t->set_proc(this);
}

var_def::var_def(var_sym *v, int alignment) : var(v), align(alignment) {}
