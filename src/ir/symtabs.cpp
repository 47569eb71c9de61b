// Symbol tables. Names are interned, so the name index hashes pointers;
// install_type finds structurally equal types through a hash of their parts.
#include "ir/symtabs.h"

#include <cstdio>
#include <algorithm>
#include <functional>
#include <vector>
#include <unordered_map>

#include "ir/fileset.h"
#include "ir/internal.h"
#include "ir/strings.h"
#include "ir/trees.h"
#include "ir/types.h"

// The name index is built on the first lookup, so that reading a file and
// writing it back, which never looks a name up, doesn't pay for it.
struct base_symtab::lookup_index {
    bool names_indexed = false;
    std::unordered_multimap<const char *, sym_node *> by_name;
    std::unordered_multimap<size_t, type_node *> by_shape;
    // Where each child table stands in the list of children: a body read and
    // flushed leaves its table at once, and many bodies made in memory may
    // stand before it.
    std::unordered_map<base_symtab *, base_symtab_list_e *> kid_elems;
};

// A hash of the parts that is_same compares; 0 for types that only equal
// themselves.
static size_t shape_hash(const type_node *t) {
    auto mix = [](size_t h, size_t v) { return h ^ (v + 0x9e3779b97f4a7c15ull + (h << 6) + (h >> 2)); };
    size_t h = (size_t)t->op() + 1;
    switch (t->op()) {
    case TYPE_INT:
    case TYPE_FLOAT:
    case TYPE_VOID: {
        auto b = static_cast<const base_type *>(t);
        return mix(mix(h, (size_t)b->size()), b->is_signed());
    }
    case TYPE_PTR: return mix(h, std::hash<const void *>()(static_cast<const ptr_type *>(t)->ref_type()));
    case TYPE_ARRAY: {
        auto a = static_cast<const array_type *>(t);
        h = mix(h, std::hash<const void *>()(a->elem_type()));
        h = mix(h, a->upper_bound().is_constant() ? (size_t)a->upper_bound().constant() : 7777);
        return mix(h, a->lower_bound().is_constant() ? (size_t)a->lower_bound().constant() : 7777);
    }
    case TYPE_FUNC: {
        auto f = static_cast<const func_type *>(t);
        h = mix(h, std::hash<const void *>()(f->return_type()));
        for (unsigned i = 0; i < f->num_args(); ++i) h = mix(h, std::hash<const void *>()(f->arg_type(i)));
        return mix(mix(h, f->has_varargs()), f->args_known());
    }
    case TYPE_GROUP:
    case TYPE_STRUCT:
    case TYPE_UNION:
    case TYPE_ENUM: return 0;
    default: return mix(h, std::hash<const void *>()(static_cast<const modifier_type *>(t)->base()));
    }
}

base_symtab::base_symtab(const char *name) : idx(new lookup_index), nm(intern(name ? name : "")) {}

base_symtab::~base_symtab() {
    // Block tables belong to their tree blocks; only detach them.
    while (!kids.is_empty()) {
        base_symtab *k = kids.pop();
        k->set_parent(nullptr);
        if (!k->is_block()) delete k;
    }
    for (var_def_list_e *e = defs.head(); e; e = e->next()) {
        e->contents->variable()->set_definition(nullptr);
        delete e->contents;
    }
    for (sym_node_list_e *e = syms.head(); e; e = e->next()) {
        ir_internal::unmap_sym(e->contents->sym_id());
        delete e->contents;
    }
    for (type_node_list_e *e = typs.head(); e; e = e->next()) {
        ir_internal::unmap_type(e->contents->type_id());
        delete e->contents;
    }
    delete idx;
}

void base_symtab::set_name(const char *name) { nm = intern(name ? name : ""); }

sym_node *base_symtab::lookup_sym(const char *name, sym_kinds kind, bool search_parents) const {
    if (!name) return nullptr;
    string_e *interned = lexicon->lookup(name);
    if (!interned) return nullptr;
    const char *key = interned->sp;
    for (const base_symtab *st = this; st; st = search_parents ? st->up : nullptr) {
        if (!st->idx->names_indexed) {
            st->idx->by_name.reserve((size_t)st->syms.count());
            for (sym_node_list_e *e = st->syms.head(); e; e = e->next())
                st->idx->by_name.emplace(e->contents->name(), e->contents);
            st->idx->names_indexed = true;
        }
        auto range = st->idx->by_name.equal_range(key);
        sym_node *found = nullptr;
        // The earliest symbol of that name and kind wins.
        for (auto it = range.first; it != range.second; ++it)
            if (it->second->kind() == kind && (!found || it->second->sym_id() < found->sym_id()))
                found = it->second;
        if (found) return found;
    }
    return nullptr;
}

var_sym *base_symtab::lookup_var(const char *name, bool search_parents) const {
    return static_cast<var_sym *>(lookup_sym(name, SYM_VAR, search_parents));
}
proc_sym *base_symtab::lookup_proc(const char *name, bool search_parents) const {
    return static_cast<proc_sym *>(lookup_sym(name, SYM_PROC, search_parents));
}
label_sym *base_symtab::lookup_label(const char *name, bool search_parents) const {
    return static_cast<label_sym *>(lookup_sym(name, SYM_LABEL, search_parents));
}

var_def *base_symtab::lookup_var_def(const var_sym *v) const {
    var_def *d = v->definition();
    return d && d->parent() == this ? d : nullptr;
}

var_sym *base_symtab::new_var(type_node *type, const char *name) {
    var_sym *v = new var_sym(type, name);
    add_sym(v);
    return v;
}

var_sym *base_symtab::new_unique_var(type_node *type, const char *base) {
    char buf[256];
    const char *b = base ? base : "_tmp";
    // Numbers that the global or a file table has handed out are taken
    // there: a new table under a global table of many generated variables
    // starts past them instead of trying each one.
    for (const base_symtab *st = up; st; st = st->up)
        if (st->is_global() || st->is_file()) unique_counter = std::max(unique_counter, st->unique_counter);
    for (;;) {
        std::snprintf(buf, sizeof buf, "%.200s%u", b, ++unique_counter);
        bool taken = false;
        for (sym_kinds k : {SYM_VAR, SYM_PROC, SYM_LABEL})
            if (lookup_sym(buf, k, true)) taken = true;
        if (!taken) return new_var(type, buf);
    }
}

sym_node *base_symtab::add_sym(sym_node *s) {
    if (s->parent()) s->parent()->remove_sym(s);
    if (!s->sym_id()) s->set_sym_id(ir_internal::new_sym_id());
    ir_internal::map_sym(s->sym_id(), s);
    s->set_parent(this);
    syms.append(s);
    if (idx->names_indexed) idx->by_name.emplace(s->name(), s);
    return s;
}

sym_node *base_symtab::remove_sym(sym_node *s) {
    for (sym_node_list_e *e = syms.head(); e; e = e->next())
        if (e->contents == s) {
            delete syms.remove(e);
            break;
        }
    auto range = idx->by_name.equal_range(s->name());
    for (auto it = range.first; it != range.second; ++it)
        if (it->second == s) {
            idx->by_name.erase(it);
            break;
        }
    s->set_parent(nullptr);
    return s;
}

void base_symtab::rename_sym(sym_node *s, const char *old_name) {
    if (!idx->names_indexed) return;
    auto range = idx->by_name.equal_range(old_name);
    for (auto it = range.first; it != range.second; ++it)
        if (it->second == s) {
            idx->by_name.erase(it);
            break;
        }
    idx->by_name.emplace(s->name(), s);
}

var_def *base_symtab::add_def(var_def *d) {
    d->set_parent(this);
    defs.append(d);
    d->variable()->set_definition(d);
    return d;
}

void base_symtab::add_child(base_symtab *child) {
    if (child->up == this) return;
    if (child->up) child->up->remove_child(child);
    child->up = this;
    idx->kid_elems[child] = kids.append(child);
}

void base_symtab::remove_child(base_symtab *child) {
    auto found = idx->kid_elems.find(child);
    if (found != idx->kid_elems.end()) {
        delete kids.remove(found->second);
        idx->kid_elems.erase(found);
    }
    child->up = nullptr;
}

type_node *base_symtab::install_type(type_node *t) {
    if (!t) return t;
    if (t->parent()) return t;
    size_t h = shape_hash(t);
    if (h) {
        for (base_symtab *st = this; st; st = st->up) {
            auto range = st->idx->by_shape.equal_range(h);
            for (auto it = range.first; it != range.second; ++it)
                if (it->second->is_same(t) && !t->are_annotations())
                    return it->second;
        }
    }
    t->set_type_id(ir_internal::new_type_id());
    add_type(t);
    return t;
}

void base_symtab::add_type(type_node *t) {
    t->set_parent(this);
    typs.append(t);
    ir_internal::map_type(t->type_id(), t);
    size_t h = shape_hash(t);
    if (h) idx->by_shape.emplace(h, t);
}

void base_symtab::remove_type(type_node *t) {
    type_node_list_e *e = typs.lookup(t);
    if (!e) return;
    delete typs.remove(e);
    size_t h = shape_hash(t);
    if (h) {
        auto range = idx->by_shape.equal_range(h);
        for (auto it = range.first; it != range.second; ++it)
            if (it->second == t) {
                idx->by_shape.erase(it);
                break;
            }
    }
    ir_internal::unmap_type(t->type_id());
    t->set_parent(nullptr);
}

type_node *base_symtab::lookup_type_id(unsigned id) const {
    type_node *t = ir_internal::type_by_id(id);
    return t && t->parent() == this ? t : nullptr;
}

block_symtab::block_symtab(const char *name) : base_symtab(name) {}

label_sym *block_symtab::new_unique_label(const char *base) {
    char buf[256];
    const char *b = base ? base : "L";
    for (;;) {
        std::snprintf(buf, sizeof buf, "%.200s%u", b, ++label_counter);
        if (!lookup_sym(buf, SYM_LABEL, true) && !lookup_sym(buf, SYM_VAR, true)) {
            label_sym *l = new label_sym(buf);
            add_sym(l);
            return l;
        }
    }
}

proc_symtab::proc_symtab(const char *name) : block_symtab(name) {}

proc_sym *global_or_file_symtab::new_proc(func_type *type, src_lang_type lang, const char *name) {
    proc_sym *p = new proc_sym(type, lang, name);
    add_sym(p);
    return p;
}

void global_or_file_symtab::number_globals() {
    for (sym_node_list_e *e = symbols()->head(); e; e = e->next())
        if (!e->contents->sym_id()) {
            e->contents->set_sym_id(ir_internal::new_sym_id());
            ir_internal::map_sym(e->contents->sym_id(), e->contents);
        }
}

global_symtab::global_symtab(const char *name) : global_or_file_symtab(name) {}

file_symtab::file_symtab(const char *name, file_set_entry *fse)
    : global_or_file_symtab(name), entry(fse) {}

// Run-wide ids and the maps from ids to objects. Ids are dense, so small
// ones index a vector; any others (from a hostile file) go to a hash map.
namespace {
unsigned next_sym = 1, next_type = 1;
const unsigned dense_limit = 1u << 26;

template <class T>
struct id_map {
    std::vector<T *> dense;
    std::unordered_map<unsigned, T *> sparse;
    void set(unsigned id, T *o) {
        if (id < dense_limit) {
            if (id >= dense.size()) dense.resize(std::max<size_t>(id + 1, dense.size() * 2), nullptr);
            dense[id] = o;
        } else {
            sparse[id] = o;
        }
    }
    void erase(unsigned id) {
        if (id < dense_limit) {
            if (id < dense.size()) dense[id] = nullptr;
        } else {
            sparse.erase(id);
        }
    }
    T *get(unsigned id) const {
        if (id < dense_limit) return id < dense.size() ? dense[id] : nullptr;
        auto it = sparse.find(id);
        return it == sparse.end() ? nullptr : it->second;
    }
    void clear() {
        dense.clear();
        dense.shrink_to_fit();
        sparse.clear();
    }
};

// The kind of each dense symbol id, so that the reader checks references
// without touching the symbols themselves.
std::vector<signed char> &sym_kinds_map() {
    static auto *v = new std::vector<signed char>;
    return *v;
}

id_map<sym_node> &sym_map() {
    static auto *m = new id_map<sym_node>;
    return *m;
}
id_map<type_node> &type_map() {
    static auto *m = new id_map<type_node>;
    return *m;
}
}  // namespace

namespace ir_internal {
unsigned new_sym_id() { return next_sym++; }
unsigned new_type_id() { return next_type++; }
unsigned peek_sym_id() { return next_sym; }
unsigned peek_type_id() { return next_type; }
void note_sym_id(unsigned id) {
    if (id >= next_sym) next_sym = id + 1;
}
void note_type_id(unsigned id) {
    if (id >= next_type) next_type = id + 1;
}
void reset_ids() {
    next_sym = next_type = 1;
    sym_map().clear();
    type_map().clear();
    sym_kinds_map().clear();
    sym_kinds_map().shrink_to_fit();
}
void map_sym(unsigned id, sym_node *s) {
    sym_map().set(id, s);
    if (id < dense_limit) {
        auto &k = sym_kinds_map();
        if (id >= k.size()) k.resize(std::max<size_t>(id + 1, k.size() * 2), -1);
        k[id] = (signed char)s->kind();
    }
}
int sym_kind_of_id(unsigned id) {
    if (id < dense_limit) {
        auto &k = sym_kinds_map();
        return id < k.size() ? k[id] : -1;
    }
    sym_node *s = sym_map().get(id);
    return s ? (int)s->kind() : -1;
}
void map_type(unsigned id, type_node *t) { type_map().set(id, t); }
void unmap_sym(unsigned id) {
    sym_map().erase(id);
    if (id < sym_kinds_map().size()) sym_kinds_map()[id] = -1;
}
void unmap_type(unsigned id) { type_map().erase(id); }
sym_node *sym_by_id(unsigned id) { return sym_map().get(id); }
type_node *type_by_id(unsigned id) { return type_map().get(id); }
bool sym_id_taken(unsigned id) { return sym_map().get(id) != nullptr; }
bool type_id_taken(unsigned id) { return type_map().get(id) != nullptr; }
}  // namespace ir_internal
