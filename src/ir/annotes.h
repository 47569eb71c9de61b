// Immediate values, annotations and the annotated base class of IR objects.
#pragma once

#include "ir/forward.h"
#include "ir/lists.h"

// Kinds of immediate values; the codes are the letters of the file format.
enum immed_kinds {
    im_undef = 0,
    im_float = 102,      // 'f': a double
    im_ext_float = 103,  // 'g': a floating literal kept as interned text
    im_int = 105,        // 'i': a machine integer (64 bits)
    im_ext_int = 108,    // 'l': an integer of any size kept as interned decimal text
    im_symbol = 112,     // 'p': a symbol and an offset in bits
    im_string = 115,     // 's': an interned text
    im_type = 116,       // 't': a type
};

// An immediate: a small value with a kind, copied by value.
class immed {
public:
    immed() = default;
    immed(int v) : k(im_int), ival(v) {}
    immed(unsigned v) : k(im_int), ival(v) {}
    immed(long v) : k(im_int), ival(v) {}
    immed(unsigned long v) : k(im_int), ival((long long)v) {}
    immed(long long v) : k(im_int), ival(v) {}
    immed(double v) : k(im_float), fval(v) {}
    // A string immed; the text is interned.
    immed(const char *text);
    immed(sym_node *s, int offset = 0) : k(im_symbol), sym(s), ival(offset) {}
    immed(type_node *t) : k(im_type), typ(t) {}
    // An extended integer (im_ext_int) or extended float (im_ext_float)
    // from its text, which is interned.
    immed(immed_kinds kind, const char *text);

    immed_kinds kind() const { return k; }
    bool is_integer() const { return k == im_int; }
    bool is_string() const { return k == im_string; }
    bool is_symbol() const { return k == im_symbol; }
    bool is_type() const { return k == im_type; }
    bool is_float() const { return k == im_float; }
    bool is_ext_integer() const { return k == im_ext_int; }
    bool is_ext_float() const { return k == im_ext_float; }

    // Readers. REQUIRES: the matching kind (others give 0 or null).
    long long integer() const { return k == im_int ? ival : 0; }
    const char *string() const { return k == im_string ? text : nullptr; }
    sym_node *symbol() const { return k == im_symbol ? sym : nullptr; }
    int offset() const { return k == im_symbol ? (int)ival : 0; }
    type_node *type() const { return k == im_type ? typ : nullptr; }
    double flt() const { return k == im_float ? fval : 0.0; }
    const char *ext_integer() const { return k == im_ext_int ? text : nullptr; }
    const char *ext_flt() const { return k == im_ext_float ? text : nullptr; }

    bool operator==(const immed &o) const;
    bool operator!=(const immed &o) const { return !(*this == o); }

private:
    immed_kinds k = im_undef;
    union {
        const char *text;
        sym_node *sym = nullptr;
        type_node *typ;
    };
    union {
        long long ival = 0;
        double fval;
    };
};

class immed_list : public typed_list<immed, dlist, dlist_elem<immed>> {
public:
    immed_list() = default;
    immed_list(const immed_list &) = delete;
    // A new list with copies of the values.
    immed_list *clone() const;
};
using immed_list_e = dlist_elem<immed>;
using immed_list_iter = typed_list_iter<immed_list>;

// An annotation: an interned name and an owned immed list (or null).
class annote {
public:
    // name is interned here; data becomes owned by the annotation.
    annote(const char *name, immed_list *data = nullptr);
    ~annote();
    annote(const annote &) = delete;
    annote &operator=(const annote &) = delete;

    const char *name() const { return nm; }
    void set_name(const char *name);  // interns
    immed_list *immeds() const { return data; }
    // Replaces the data; the old list is deleted.
    void set_immeds(immed_list *l);
    // The list, created empty if there was none.
    immed_list *immeds_or_new();
    annote *clone() const;

private:
    const char *nm;
    immed_list *data;
};

// Annotations of one object; owns them.
class annote_list_base : public typed_list<annote *, dlist, dlist_elem<annote *>> {};
class annote_list : public annote_list_base {
public:
    ~annote_list() override;
    // First annotation whose name pointer is `name` (interned), or null.
    annote *peek_annote(const char *name) const;
    // Removes and returns that annotation (the caller owns it), or null.
    annote *get_annote(const char *name);
};
using annote_list_e = dlist_elem<annote *>;
using annote_list_iter = typed_list_iter<annote_list>;

// Registered annotation names. is_output tells whether such annotations are
// written to the output file; unregistered names are written as well, so
// registration only matters to say "do not write".
class annote_def {
public:
    annote_def(const char *name, bool is_output);
    const char *name() const { return nm; }
    bool is_output() const { return output; }

private:
    const char *nm;
    bool output;
};
// Registers def (kept for the run) and returns its interned name.
const char *register_annote(annote_def *def);
// The registration of an interned name, or null.
annote_def *lookup_annote(const char *name);

// Kinds of annotated IR objects.
enum object_kinds {
    FILE_OBJ,
    TREE_OBJ,
    INSTR_OBJ,
    SYMTAB_OBJ,
    SYM_OBJ,
    DEF_OBJ,
    TYPE_OBJ,
};

// The base of every annotated object. The annotation list is created on
// first use, so an object without one behaves as one with an empty list.
class suif_object {
public:
    suif_object() = default;
    suif_object(const suif_object &) = delete;
    suif_object &operator=(const suif_object &) = delete;
    virtual ~suif_object();
    virtual object_kinds object_kind() const = 0;

    annote_list *annotes();                 // creates the list if needed
    bool are_annotations() const { return al && !al->is_empty(); }
    annote_list *annotes_if_any() const { return al; }  // may be null

    // Adds an annotation at the end (or front); name is interned, data owned.
    annote *append_annote(const char *name, immed_list *data = nullptr);
    annote *prepend_annote(const char *name, immed_list *data = nullptr);
    // First annotation whose name pointer equals name, or null.
    annote *peek_annote(const char *name) const;
    // Removes and returns it (the caller owns it), or null.
    annote *get_annote(const char *name);
    // Copies every annotation of other onto this object.
    void copy_annotes(const suif_object *other);

private:
    annote_list *al = nullptr;
};
