// Linked list operations. Singly linked removal walks from the head; the
// doubly linked forms keep both links in step.
#include "ir/lists.h"

glist::~glist() { erase(); }

int glist::count() const {
    int n = 0;
    for (glist_e *e = head_e; e; e = e->next_e) ++n;
    return n;
}

bool glist::contains(const glist_e *x) const {
    for (glist_e *e = head_e; e; e = e->next_e)
        if (e == x) return true;
    return false;
}

glist_e *glist::operator[](int n) const {
    if (n < 0) return nullptr;
    glist_e *e = head_e;
    while (e && n-- > 0) e = e->next_e;
    return e;
}

glist_e *glist::push(glist_e *e) {
    e->next_e = head_e;
    head_e = e;
    if (!tail_e) tail_e = e;
    return e;
}

glist_e *glist::append(glist_e *e) {
    e->next_e = nullptr;
    if (tail_e) tail_e->next_e = e;
    else head_e = e;
    tail_e = e;
    return e;
}

void glist::append(glist *l) {
    if (!l || l == this || !l->head_e) return;
    if (tail_e) tail_e->next_e = l->head_e;
    else head_e = l->head_e;
    tail_e = l->tail_e;
    l->head_e = l->tail_e = nullptr;
}

glist_e *glist::insert_after(glist_e *e, glist_e *pos) {
    if (!pos) return push(e);
    e->next_e = pos->next_e;
    pos->next_e = e;
    if (tail_e == pos) tail_e = e;
    return e;
}

glist_e *glist::pop() {
    glist_e *e = head_e;
    if (!e) return nullptr;
    head_e = e->next_e;
    if (!head_e) tail_e = nullptr;
    e->next_e = nullptr;
    return e;
}

glist_e *glist::remove(glist_e *e) {
    glist_e *prev = nullptr;
    for (glist_e *c = head_e; c; prev = c, c = c->next_e) {
        if (c != e) continue;
        if (prev) prev->next_e = c->next_e;
        else head_e = c->next_e;
        if (tail_e == c) tail_e = prev;
        c->next_e = nullptr;
        return c;
    }
    return e;
}

void glist::erase() {
    glist_e *e = head_e;
    head_e = tail_e = nullptr;
    while (e) {
        glist_e *n = e->next_e;
        delete e;
        e = n;
    }
}

dlist_e *dlist::push(dlist_e *e) {
    e->prev_e = nullptr;
    e->next_e = head_e;
    if (head_e) static_cast<dlist_e *>(head_e)->prev_e = e;
    else tail_e = e;
    head_e = e;
    return e;
}

dlist_e *dlist::append(dlist_e *e) {
    e->next_e = nullptr;
    e->prev_e = static_cast<dlist_e *>(tail_e);
    if (tail_e) tail_e->next_e = e;
    else head_e = e;
    tail_e = e;
    return e;
}

void dlist::append(dlist *l) {
    if (!l || l == this || !l->head_e) return;
    static_cast<dlist_e *>(l->head_e)->prev_e = static_cast<dlist_e *>(tail_e);
    glist::append(l);
}

dlist_e *dlist::insert_after(dlist_e *e, dlist_e *pos) {
    if (!pos) return push(e);
    e->prev_e = pos;
    e->next_e = pos->next_e;
    if (pos->next_e) static_cast<dlist_e *>(pos->next_e)->prev_e = e;
    else tail_e = e;
    pos->next_e = e;
    return e;
}

dlist_e *dlist::insert_before(dlist_e *e, dlist_e *pos) {
    if (!pos) return append(e);
    if (!pos->prev_e) return push(e);
    return insert_after(e, pos->prev_e);
}

dlist_e *dlist::pop() {
    dlist_e *e = head();
    if (!e) return nullptr;
    return remove(e);
}

dlist_e *dlist::remove(dlist_e *e) {
    if (e->prev_e) e->prev_e->next_e = e->next_e;
    else head_e = e->next_e;
    if (e->next_e) static_cast<dlist_e *>(e->next_e)->prev_e = e->prev_e;
    else tail_e = e->prev_e;
    e->next_e = nullptr;
    e->prev_e = nullptr;
    return e;
}
