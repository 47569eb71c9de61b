// Linked lists: the untyped bases glist (singly linked) and dlist (doubly
// linked), the typed list template over them, and the plain lists of texts,
// integers and IR pointers.
//
// A list owns its elements, never what they point to (annote_list and
// tree_node_list are the exceptions, see their headers). Appending a whole
// list moves its elements and leaves the source empty. Iterators read the
// next element before handing out the current one, so the caller may remove
// the current element while iterating.
#pragma once

#include "ir/forward.h"

// Untyped element and list. set_elem() is called on every element that
// enters a list, before it is linked; lists that track membership override it.
class glist_e {
public:
    glist_e *next_e = nullptr;
    virtual ~glist_e() = default;
    glist_e *next() const { return next_e; }
};

class glist {
public:
    glist() = default;
    glist(const glist &) = delete;
    glist &operator=(const glist &) = delete;
    virtual ~glist();
    virtual void set_elem(glist_e *) {}

    bool is_empty() const { return head_e == nullptr; }
    int count() const;
    glist_e *head() const { return head_e; }
    glist_e *tail() const { return tail_e; }
    bool contains(const glist_e *e) const;
    // The n-th element, 0 first; null past the end.
    glist_e *operator[](int n) const;

    glist_e *push(glist_e *e);
    glist_e *append(glist_e *e);
    void append(glist *l);  // moves all of l to the end; l ends empty
    glist_e *insert_after(glist_e *e, glist_e *pos);
    // Unlink and return the first element, null if empty (not deleted).
    glist_e *pop();
    // Unlink e and return it (not deleted). REQUIRES: e is in this list.
    glist_e *remove(glist_e *e);
    // Delete every element.
    void erase();

protected:
    glist_e *head_e = nullptr;
    glist_e *tail_e = nullptr;
};

// Generic iterator over any glist.
class glist_iter {
public:
    glist_iter() = default;
    explicit glist_iter(const glist *l) { reset(l); }
    void reset(const glist *l) { cur = l ? l->head() : nullptr; }
    bool is_empty() const { return cur == nullptr; }
    glist_e *step() {
        glist_e *e = cur;
        cur = cur ? cur->next() : nullptr;
        return e;
    }
    glist_e *peek() const { return cur; }

private:
    glist_e *cur = nullptr;
};

// Doubly linked element and list: removal and insertion in constant time.
class dlist_e : public glist_e {
public:
    dlist_e *prev_e = nullptr;
    dlist_e *next() const { return static_cast<dlist_e *>(next_e); }
    dlist_e *prev() const { return prev_e; }
};

class dlist : public glist {
public:
    dlist_e *head() const { return static_cast<dlist_e *>(head_e); }
    dlist_e *tail() const { return static_cast<dlist_e *>(tail_e); }
    dlist_e *operator[](int n) const { return static_cast<dlist_e *>(glist::operator[](n)); }

    dlist_e *push(dlist_e *e);
    dlist_e *append(dlist_e *e);
    void append(dlist *l);  // moves all of l to the end; l ends empty
    dlist_e *insert_after(dlist_e *e, dlist_e *pos);
    dlist_e *insert_before(dlist_e *e, dlist_e *pos);
    dlist_e *pop();
    dlist_e *remove(dlist_e *e);
};

// Typed elements: `contents` holds the value.
template <class T>
class glist_elem : public glist_e {
public:
    T contents;
    explicit glist_elem(const T &c) : contents(c) {}
    glist_elem *next() const { return static_cast<glist_elem *>(next_e); }
};

template <class T>
class dlist_elem : public dlist_e {
public:
    T contents;
    explicit dlist_elem(const T &c) : contents(c) {}
    dlist_elem *next() const { return static_cast<dlist_elem *>(next_e); }
    dlist_elem *prev() const { return static_cast<dlist_elem *>(prev_e); }
};

// A typed list over glist (Elem = glist_elem<T>) or dlist (dlist_elem<T>).
template <class T, class Base, class Elem>
class typed_list : public Base {
public:
    using value_type = T;
    using elem = Elem;

    Elem *head() const { return static_cast<Elem *>(Base::head()); }
    Elem *tail() const { return static_cast<Elem *>(Base::tail()); }

    Elem *push(const T &v) { return push(new Elem(v)); }
    Elem *push(Elem *e) { this->set_elem(e); return static_cast<Elem *>(Base::push(e)); }
    Elem *append(const T &v) { return append(new Elem(v)); }
    Elem *append(Elem *e) { this->set_elem(e); return static_cast<Elem *>(Base::append(e)); }
    // Moves every element of l to the end of this list; l ends empty.
    void append(typed_list *l) {
        for (Elem *e = l->head(); e; e = e->next()) this->set_elem(e);
        Base::append(l);
    }
    Elem *insert_after(const T &v, Elem *pos) {
        Elem *e = new Elem(v);
        this->set_elem(e);
        return static_cast<Elem *>(Base::insert_after(e, pos));
    }
    // Removes the first element and returns its value. REQUIRES: not empty.
    T pop() {
        Elem *e = static_cast<Elem *>(Base::pop());
        T v = e->contents;
        delete e;
        return v;
    }
    // Unlinks e and returns it; the caller deletes it.
    Elem *remove(Elem *e) { return static_cast<Elem *>(Base::remove(e)); }
    // The value of the n-th element, 0 first. REQUIRES: n < count().
    T operator[](int n) const { return static_cast<Elem *>(Base::operator[](n))->contents; }
    // The first element holding v, or null.
    Elem *lookup(const T &v) const {
        for (Elem *e = head(); e; e = e->next())
            if (e->contents == v) return e;
        return nullptr;
    }
};

// Typed iterator: step() returns the current value and moves on.
template <class L>
class typed_list_iter {
public:
    using elem = typename L::elem;
    using value_type = typename L::value_type;
    typed_list_iter() = default;
    explicit typed_list_iter(const L *l) { reset(l); }
    void reset(const L *l) { cur = l ? l->head() : nullptr; }
    bool is_empty() const { return cur == nullptr; }
    value_type step() {
        elem *e = cur;
        cur = cur->next();
        last = e;
        return e->contents;
    }
    value_type peek() const { return cur->contents; }
    elem *cur_elem() const { return last; }  // element of the last step()

private:
    elem *cur = nullptr;
    elem *last = nullptr;
};

// Texts (not owned), integers, procedures, symbols, types, symbol tables,
// variable definitions, file set entries.
class string_list : public typed_list<const char *, glist, glist_elem<const char *>> {};
class int_list : public typed_list<int, glist, glist_elem<int>> {};
class proc_sym_list : public typed_list<proc_sym *, glist, glist_elem<proc_sym *>> {};
class sym_node_list : public typed_list<sym_node *, dlist, dlist_elem<sym_node *>> {};
class type_node_list : public typed_list<type_node *, dlist, dlist_elem<type_node *>> {};
class base_symtab_list : public typed_list<base_symtab *, dlist, dlist_elem<base_symtab *>> {};
class var_def_list : public typed_list<var_def *, dlist, dlist_elem<var_def *>> {};
class file_set_entry_list : public typed_list<file_set_entry *, dlist, dlist_elem<file_set_entry *>> {};
// A list of file names, see parse_file_list().
class file_list : public string_list {};

using string_list_e = glist_elem<const char *>;
using int_list_e = glist_elem<int>;
using proc_sym_list_e = glist_elem<proc_sym *>;
using sym_node_list_e = dlist_elem<sym_node *>;
using type_node_list_e = dlist_elem<type_node *>;
using base_symtab_list_e = dlist_elem<base_symtab *>;
using var_def_list_e = dlist_elem<var_def *>;
using file_set_entry_list_e = dlist_elem<file_set_entry *>;

using string_list_iter = typed_list_iter<string_list>;
using int_list_iter = typed_list_iter<int_list>;
using proc_sym_list_iter = typed_list_iter<proc_sym_list>;
using sym_node_list_iter = typed_list_iter<sym_node_list>;
using type_node_list_iter = typed_list_iter<type_node_list>;
using base_symtab_list_iter = typed_list_iter<base_symtab_list>;
using var_def_list_iter = typed_list_iter<var_def_list>;
using file_set_entry_list_iter = typed_list_iter<file_set_entry_list>;
