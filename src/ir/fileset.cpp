// The file set, its entries, and the predefined types of the global table.
#include "ir/fileset.h"

#include <algorithm>

#include "ir/io.h"
#include "ir/io_format.h"
#include "ir/machine.h"
#include "ir/strings.h"
#include "ir/support.h"
#include "ir/types.h"

file_set *fileset = nullptr;

file_set_entry::file_set_entry(file_set *parent, const char *name, const char *in, const char *out)
    : fs(parent), nm(intern(name ? name : "")), in_nm(intern(in)), out_nm(intern(out)),
      st(new file_symtab(name ? name : "", this)) {}

file_set_entry::~file_set_entry() {
    delete io;
    // The file table is a child of the global table, which deletes it.
    if (st && !st->parent()) delete st;
}

void file_set_entry::set_name(const char *name) { nm = intern(name ? name : ""); }

proc_sym *file_set_entry::next_proc() {
    return iter < proc_order.size() ? proc_order[iter++] : nullptr;
}

void file_set_entry::add_proc(proc_sym *p) {
    // Only proc_sym::set_file calls this, once per change of entry.
    proc_order.push_back(p);
}

void file_set_entry::remove_proc(proc_sym *p) {
    auto it = std::find(proc_order.begin(), proc_order.end(), p);
    if (it == proc_order.end()) return;
    size_t at = (size_t)(it - proc_order.begin());
    proc_order.erase(it);
    if (iter > at) --iter;
}

file_set::file_set() : globals(new global_symtab("")) {}

file_set::~file_set() {
    for (file_set_entry_list_e *e = entries.head(); e; e = e->next()) delete e->contents;
    delete globals;
}

file_set_entry *file_set::try_add_file(const char *input, const char *output, std::string *error) {
    const char *name = input ? input : (output ? output : "");
    file_set_entry *fse = new file_set_entry(this, name, input, output);
    globals->add_child(fse->symtab());
    entries.append(fse);
    if (input && !ir_read_tables(fse, error)) {
        delete entries.remove(entries.tail());
        globals->remove_child(fse->symtab());
        delete fse;
        make_predefined_types();
        return nullptr;
    }
    return fse;
}

file_set_entry *file_set::add_file(const char *input, const char *output) {
    std::string error;
    file_set_entry *fse = try_add_file(input, output, &error);
    if (!fse) {
        fprintf(stderr, "%s\n", error.c_str());
        exit(1);
    }
    return fse;
}

file_set_entry *file_set::next_file() {
    if (iter >= entries.count()) return nullptr;
    return entries[iter++];
}

file_set_entry *file_set::find_by_name(const char *name) {
    for (file_set_entry_list_e *e = entries.head(); e; e = e->next())
        if (lexicon_strcmp_with_cheks(e->contents->name(), name) == 0) return e->contents;
    return nullptr;
}

type_node *type_void, *type_ptr, *type_char, *type_signed_char, *type_unsigned_char;
type_node *type_signed_short, *type_unsigned_short, *type_signed, *type_unsigned;
type_node *type_signed_long, *type_unsigned_long, *type_signed_longlong, *type_unsigned_longlong;
type_node *type_float, *type_double, *type_longdouble, *type_ptr_diff, *type_ptr_uint;

// The first type of the global table with that shape, annotated or not, so
// that a table read from a file keeps its own nodes.
static type_node *predef(type_ops op, int size, bool sgn) {
    base_type *b = new base_type(op, size, sgn);
    for (type_node_list_e *e = global_st->types()->head(); e; e = e->next())
        if (e->contents->is_same(b)) {
            delete b;
            return e->contents;
        }
    type_node *t = global_st->install_type(b);
    if (t != b) delete b;
    return t;
}

void make_predefined_types() {
    if (!fileset) return;
    type_void = predef(TYPE_VOID, 0, false);
    // Plain char is a type of its own only by name; in the IR it is the
    // signed or unsigned char of the target.
    type_signed_char = predef(TYPE_INT, target.size[C_char], true);
    type_unsigned_char = predef(TYPE_INT, target.size[C_char], false);
    type_char = target.char_is_signed ? type_signed_char : type_unsigned_char;
    type_signed_short = predef(TYPE_INT, target.size[C_short], true);
    type_unsigned_short = predef(TYPE_INT, target.size[C_short], false);
    type_signed = predef(TYPE_INT, target.size[C_int], true);
    type_unsigned = predef(TYPE_INT, target.size[C_int], false);
    type_signed_long = predef(TYPE_INT, target.size[C_long], true);
    type_unsigned_long = predef(TYPE_INT, target.size[C_long], false);
    type_signed_longlong = predef(TYPE_INT, target.size[C_longlong], true);
    type_unsigned_longlong = predef(TYPE_INT, target.size[C_longlong], false);
    type_float = predef(TYPE_FLOAT, target.size[C_float], true);
    type_double = predef(TYPE_FLOAT, target.size[C_double], true);
    type_longdouble = predef(TYPE_FLOAT, target.size[C_longdouble], true);
    type_ptr_diff = predef(TYPE_INT, target.size[target.ptr_diff_type], true);
    type_ptr_uint = predef(TYPE_INT, target.size[target.ptr_diff_type], false);
    type_ptr = nullptr;
    for (type_node_list_e *e = global_st->types()->head(); e && !type_ptr; e = e->next())
        if (e->contents->is_ptr() && static_cast<ptr_type *>(e->contents)->ref_type() == type_void)
            type_ptr = e->contents;
    if (!type_ptr) type_ptr = type_void->ptr_to();
}
