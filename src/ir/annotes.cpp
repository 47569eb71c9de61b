// Immeds, annotations, registered names and the annotated base class.
#include "ir/annotes.h"

#include <cstring>
#include <unordered_map>

#include "ir/strings.h"

immed::immed(const char *t) : k(im_string), text(intern(t ? t : "")) {}

immed::immed(immed_kinds kind, const char *t) : k(kind), text(intern(t ? t : "")) {
    if (kind != im_ext_int && kind != im_ext_float && kind != im_string) k = im_string;
}

bool immed::operator==(const immed &o) const {
    if (k != o.k) return false;
    switch (k) {
    case im_undef: return true;
    case im_int: return ival == o.ival;
    case im_float: return std::memcmp(&fval, &o.fval, sizeof fval) == 0;
    case im_symbol: return sym == o.sym && ival == o.ival;
    case im_type: return typ == o.typ;
    case im_string:
    case im_ext_int:
    case im_ext_float: return text == o.text;
    }
    return false;
}

immed_list *immed_list::clone() const {
    immed_list *l = new immed_list;
    for (immed_list_e *e = head(); e; e = e->next()) l->append(e->contents);
    return l;
}

annote::annote(const char *name, immed_list *d) : nm(intern(name)), data(d) {}
annote::~annote() { delete data; }
void annote::set_name(const char *name) { nm = intern(name); }
void annote::set_immeds(immed_list *l) {
    if (l != data) delete data;
    data = l;
}
immed_list *annote::immeds_or_new() {
    if (!data) data = new immed_list;
    return data;
}
annote *annote::clone() const { return new annote(nm, data ? data->clone() : nullptr); }

annote_list::~annote_list() {
    for (annote_list_e *e = head(); e; e = e->next()) delete e->contents;
}

annote *annote_list::peek_annote(const char *name) const {
    for (annote_list_e *e = head(); e; e = e->next())
        if (e->contents->name() == name) return e->contents;
    return nullptr;
}

annote *annote_list::get_annote(const char *name) {
    for (annote_list_e *e = head(); e; e = e->next()) {
        if (e->contents->name() != name) continue;
        annote *a = e->contents;
        delete remove(e);
        return a;
    }
    return nullptr;
}

annote_def::annote_def(const char *name, bool is_output) : nm(intern(name)), output(is_output) {}

static std::unordered_map<const char *, annote_def *> &registry() {
    static auto *m = new std::unordered_map<const char *, annote_def *>;
    return *m;
}

const char *register_annote(annote_def *def) {
    registry()[def->name()] = def;
    return def->name();
}

annote_def *lookup_annote(const char *name) {
    auto it = registry().find(name);
    return it == registry().end() ? nullptr : it->second;
}

suif_object::~suif_object() { delete al; }

annote_list *suif_object::annotes() {
    if (!al) al = new annote_list;
    return al;
}

annote *suif_object::append_annote(const char *name, immed_list *data) {
    annote *a = new annote(name, data);
    annotes()->append(a);
    return a;
}

annote *suif_object::prepend_annote(const char *name, immed_list *data) {
    annote *a = new annote(name, data);
    annotes()->push(a);
    return a;
}

annote *suif_object::peek_annote(const char *name) const {
    return al ? al->peek_annote(name) : nullptr;
}

annote *suif_object::get_annote(const char *name) {
    return al ? al->get_annote(name) : nullptr;
}

void suif_object::copy_annotes(const suif_object *other) {
    if (!other->al) return;
    for (annote_list_e *e = other->al->head(); e; e = e->next()) annotes()->append(e->contents->clone());
}
