// Type nodes: sizes, qualifiers, structural equality.
#include "ir/types.h"

#include "ir/fileset.h"
#include "ir/machine.h"
#include "ir/strings.h"
#include "ir/symtabs.h"

const array_bound unknown_bound;

static bool has_modifier(const type_node *t, type_ops which) {
    while (t && t->is_modifier()) {
        if (t->op() == which) return true;
        t = static_cast<const modifier_type *>(t)->base();
    }
    return false;
}

bool type_node::is_const() const { return has_modifier(this, TYPE_CONST); }
bool type_node::is_volatile() const { return has_modifier(this, TYPE_VOLATILE); }

type_node *type_node::unqual() const {
    const type_node *t = this;
    while (t->is_modifier() && static_cast<const modifier_type *>(t)->base())
        t = static_cast<const modifier_type *>(t)->base();
    return const_cast<type_node *>(t);
}

bool type_node::is_scalar() const {
    type_ops o = unqual()->op();
    return o == TYPE_INT || o == TYPE_FLOAT || o == TYPE_PTR || o == TYPE_ENUM;
}

ptr_type *type_node::ptr_to() {
    base_symtab *st = parent();
    if (!st && fileset) st = fileset->globals;
    ptr_type *p = new ptr_type(this);
    if (!st) return p;
    type_node *t = st->install_type(p);
    if (t != p) delete p;
    return static_cast<ptr_type *>(t);
}

base_type::base_type(type_ops op, int size, bool is_signed)
    : type_node(op), sz(size), sgn(op == TYPE_INT ? is_signed : op == TYPE_FLOAT) {}

bool base_type::is_same(const type_node *o) const {
    if (o->op() != op()) return false;
    auto b = static_cast<const base_type *>(o);
    return b->sz == sz && b->sgn == sgn;
}

ptr_type::ptr_type(type_node *r, annote *an) : type_node(TYPE_PTR), ref(r) {
    if (an) annotes()->append(an);
}

int ptr_type::size() const { return target.size[C_ptr]; }

bool ptr_type::is_same(const type_node *o) const {
    return o->op() == TYPE_PTR && static_cast<const ptr_type *>(o)->ref == ref;
}

array_type::array_type(type_node *e, array_bound lower, array_bound upper)
    : type_node(TYPE_ARRAY), elem(e), lo(lower), hi(upper) {}

bool array_type::are_bounds_unknown() const { return !lo.is_constant() || !hi.is_constant(); }

int array_type::size() const {
    if (are_bounds_unknown() || !elem) return 0;
    long long n = (long long)hi.constant() - lo.constant() + 1;
    if (n <= 0) return 0;
    long long s = n * elem->size();
    return s > 0x7fffffff ? 0x7fffffff : (int)s;
}

bool array_type::is_same(const type_node *o) const {
    if (o->op() != TYPE_ARRAY) return false;
    auto a = static_cast<const array_type *>(o);
    return a->elem == elem && a->lo == lo && a->hi == hi;
}

func_type::func_type(type_node *r, unsigned num_args, bool va, bool arg_info, annote *an)
    : type_node(TYPE_FUNC), ret(r), args(num_args, nullptr), varargs(va), known(arg_info) {
    if (an) annotes()->append(an);
}

func_type::func_type(type_node *r, annote *an) : func_type(r, 0u, false, true, an) {}

func_type::func_type(type_node *r, type_node *arg, bool va, annote *an) : func_type(r, 1u, va, true, an) {
    args[0] = arg;
}

func_type::func_type(bool arg_info, type_node *r, annote *an) : func_type(r, 0u, false, arg_info, an) {}

void func_type::set_num_args(unsigned n) { args.resize(n, nullptr); }
type_node *func_type::arg_type(unsigned n) const { return check_range(n) ? args[n] : nullptr; }
void func_type::set_arg_type(unsigned n, type_node *t) {
    if (check_range(n)) args[n] = t;
}

bool func_type::is_same(const type_node *o) const {
    if (o->op() != TYPE_FUNC) return false;
    auto f = static_cast<const func_type *>(o);
    return f->ret == ret && f->args == args && f->varargs == varargs && f->known == known;
}

struct_type::struct_type(type_ops op, int size, const char *name, unsigned n)
    : type_node(op), nm(intern(name ? name : "")), sz(size), fields(n) {}

void struct_type::set_name(const char *name) { nm = intern(name ? name : ""); }
void struct_type::set_num_fields(unsigned n) { fields.resize(n); }
type_node *struct_type::field_type(unsigned n) const { return check_range(n) ? fields[n].type : nullptr; }
const char *struct_type::field_name(unsigned n) const { return check_range(n) ? fields[n].name : nullptr; }
int struct_type::field_offset(unsigned n) const { return check_range(n) ? fields[n].offset : 0; }
int struct_type::field_storage_width(unsigned n) const {
    return check_range(n) ? fields[n].storage_width : 0;
}
void struct_type::set_field_type(unsigned n, type_node *t) {
    if (check_range(n)) fields[n].type = t;
}
void struct_type::set_field_name(unsigned n, const char *name) {
    if (check_range(n)) fields[n].name = intern(name ? name : "");
}
void struct_type::set_field_offset(unsigned n, int offset) {
    if (check_range(n)) fields[n].offset = offset;
}
void struct_type::set_field_storage_width(unsigned n, int width) {
    if (check_range(n)) fields[n].storage_width = width;
}
int struct_type::find_field_by_name(const char *name) const {
    for (unsigned i = 0; i < fields.size(); ++i)
        if (lexicon_strcmp_with_cheks(fields[i].name, name) == 0) return (int)i;
    return -1;
}

enum_type::enum_type(const char *name, int size, bool is_signed, unsigned n)
    : type_node(TYPE_ENUM), nm(intern(name ? name : "")), sz(size), sgn(is_signed), vals(n) {}

void enum_type::set_name(const char *name) { nm = intern(name ? name : ""); }
void enum_type::set_num_values(unsigned n) { vals.resize(n); }
const char *enum_type::member(unsigned n) const { return check_range(n) ? vals[n].name : nullptr; }
const i_integer &enum_type::value(unsigned n) const {
    static const i_integer zero;
    return check_range(n) ? vals[n].value : zero;
}
void enum_type::set_member(unsigned n, const char *name) {
    if (check_range(n)) vals[n].name = intern(name ? name : "");
}
void enum_type::set_value(unsigned n, const i_integer &v) {
    if (check_range(n)) vals[n].value = v;
}

modifier_type::modifier_type(type_ops op, type_node *b, annote *an) : type_node(op), bas(b) {
    if (an) annotes()->append(an);
}

int modifier_type::size() const { return bas ? bas->size() : 0; }

bool modifier_type::is_same(const type_node *o) const {
    return o->op() == op() && static_cast<const modifier_type *>(o)->bas == bas;
}
