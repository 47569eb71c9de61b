// Type nodes: the base class, integer/float/void base types, pointers,
// arrays, function types, structures/unions/groups, enumerations and the
// modifier types (const, volatile and two others).
//
// Sizes are in bits. A type is shared by every use once installed in a
// symbol table (base_symtab::install_type), which also gives it its type_id.
#pragma once

#include "ir/annotes.h"
#include "ir/i_integer.h"

#include <vector>

enum type_ops {
    TYPE_INT = 0,
    TYPE_FLOAT = 1,
    TYPE_VOID = 2,
    TYPE_PTR = 3,
    TYPE_ARRAY = 4,
    TYPE_FUNC = 5,
    TYPE_GROUP = 6,
    TYPE_STRUCT = 7,
    TYPE_UNION = 8,
    TYPE_ENUM = 9,
    TYPE_CONST = 10,
    TYPE_VOLATILE = 11,
    TYPE_CALL_BY_REF = 12,
    TYPE_NULL = 13,
};

// The common part of every type.
class type_node : public suif_object {
public:
    object_kinds object_kind() const override { return TYPE_OBJ; }
    type_ops op() const { return top; }
    // Unique within the run once installed; 0 before.
    unsigned type_id() const { return id; }
    // The symbol table the type is installed in, or null.
    base_symtab *parent() const { return owner; }

    virtual int size() const = 0;
    bool is_const() const;     // some modifier level is const
    bool is_volatile() const;  // some modifier level is volatile
    // The type without any modifier level.
    type_node *unqual() const;
    bool is_scalar() const;    // integer, float, pointer or enum (after unqual)
    bool is_base() const { return top <= TYPE_VOID; }
    bool is_ptr() const { return top == TYPE_PTR; }
    bool is_array() const { return top == TYPE_ARRAY; }
    bool is_func() const { return top == TYPE_FUNC; }
    bool is_struct() const { return top == TYPE_GROUP || top == TYPE_STRUCT || top == TYPE_UNION; }
    bool is_enum() const { return top == TYPE_ENUM; }
    bool is_modifier() const { return top >= TYPE_CONST; }
    // The installed pointer type to this type (made and installed in this
    // type's table, or the global table, if needed).
    ptr_type *ptr_to();
    // Structural equality used by install_type: same op, same parts by
    // pointer, same members; struct/union/enum types are never equal to
    // another node (each C tag is a type of its own).
    virtual bool is_same(const type_node *other) const = 0;

    // Used by symbol tables when they install a type.
    void set_type_id(unsigned i) { id = i; }
    void set_parent(base_symtab *s) { owner = s; }

protected:
    explicit type_node(type_ops o) : top(o) {}

private:
    type_ops top;
    unsigned id = 0;
    base_symtab *owner = nullptr;
};

// Integer, floating and void types.
class base_type : public type_node {
public:
    // REQUIRES: op is TYPE_INT, TYPE_FLOAT or TYPE_VOID.
    base_type(type_ops op, int size, bool is_signed = true);
    int size() const override { return sz; }
    bool is_signed() const { return sgn; }
    bool is_same(const type_node *other) const override;

private:
    int sz;
    bool sgn;
};

// A pointer; its size is the target's pointer size.
class ptr_type : public type_node {
public:
    explicit ptr_type(type_node *ref, annote *an = nullptr);
    type_node *ref_type() const { return ref; }
    void set_ref_type(type_node *t) { ref = t; }
    int size() const override;
    bool is_same(const type_node *other) const override;

private:
    type_node *ref;
};

// An array bound: a constant, unknown, or the value of a variable.
class array_bound {
public:
    array_bound() = default;  // unknown
    array_bound(int c) : knd(CONST), cval(c) {}
    array_bound(var_sym *v) : knd(VAR), vsym(v) {}
    bool is_constant() const { return knd == CONST; }
    bool is_unknown() const { return knd == UNKNOWN; }
    bool is_variable() const { return knd == VAR; }
    int constant() const { return cval; }    // REQUIRES: is_constant()
    var_sym *variable() const { return vsym; }
    bool operator==(const array_bound &o) const {
        return knd == o.knd && cval == o.cval && vsym == o.vsym;
    }

private:
    enum { UNKNOWN, CONST, VAR } knd = UNKNOWN;
    int cval = 0;
    var_sym *vsym = nullptr;
};
extern const array_bound unknown_bound;

class array_type : public type_node {
public:
    array_type(type_node *elem, array_bound lower, array_bound upper);
    type_node *elem_type() const { return elem; }
    void set_elem_type(type_node *t) { elem = t; }
    array_bound lower_bound() const { return lo; }
    array_bound upper_bound() const { return hi; }
    void set_lower_bound(array_bound b) { lo = b; }
    void set_upper_bound(array_bound b) { hi = b; }
    bool are_bounds_unknown() const;  // either bound not constant
    // Element size times the element count; 0 when the bounds aren't constant.
    int size() const override;
    bool is_same(const type_node *other) const override;

private:
    type_node *elem;
    array_bound lo, hi;
};

// A function type. Variadic functions carry their two hidden trailing
// parameters as ordinary arguments; args_known is false for a function
// declared without a prototype.
class func_type : public type_node {
public:
    func_type(type_node *ret, unsigned num_args, bool varargs = false, bool arg_info = true,
              annote *an = nullptr);
    explicit func_type(type_node *ret, annote *an = nullptr);
    // With one argument of type arg.
    func_type(type_node *ret, type_node *arg, bool varargs, annote *an);
    func_type(bool arg_info, type_node *ret, annote *an = nullptr);

    type_node *return_type() const { return ret; }
    void set_return_type(type_node *t) { ret = t; }
    unsigned num_args() const { return (unsigned)args.size(); }
    void set_num_args(unsigned n);
    // REQUIRES: check_range(n).
    type_node *arg_type(unsigned n) const;
    void set_arg_type(unsigned n, type_node *t);
    bool has_varargs() const { return varargs; }
    void set_varargs(bool v) { varargs = v; }
    bool args_known() const { return known; }
    void set_args_known(bool k) { known = k; }
    bool check_range(unsigned n) const { return n < args.size(); }
    int size() const override { return 0; }
    bool is_same(const type_node *other) const override;

private:
    type_node *ret;
    std::vector<type_node *> args;
    bool varargs;
    bool known;
};

// Structures, unions and groups. Per field: type, name, declared storage
// width (not 0 for a bit-field: the size of its storage unit) and offset in bits.
class struct_type : public type_node {
public:
    // REQUIRES: op is TYPE_GROUP, TYPE_STRUCT or TYPE_UNION.
    struct_type(type_ops op, int size, const char *name, unsigned num_fields);
    const char *name() const { return nm; }  // the tag; may start with a digit
    void set_name(const char *name);
    int size() const override { return sz; }
    void set_size(int s) { sz = s; }
    unsigned num_fields() const { return (unsigned)fields.size(); }
    void set_num_fields(unsigned n);
    bool check_range(unsigned n) const { return n < fields.size(); }
    // REQUIRES: check_range(n).
    type_node *field_type(unsigned n) const;
    const char *field_name(unsigned n) const;
    int field_offset(unsigned n) const;
    int field_storage_width(unsigned n) const;
    void set_field_type(unsigned n, type_node *t);
    void set_field_name(unsigned n, const char *name);  // interns
    void set_field_offset(unsigned n, int offset);
    void set_field_storage_width(unsigned n, int width);
    // Index of the first field with this name, or -1.
    int find_field_by_name(const char *name) const;
    bool is_same(const type_node *other) const override { return other == this; }

private:
    struct field {
        type_node *type = nullptr;
        const char *name = nullptr;
        int storage_width = 0;
        int offset = 0;
    };
    const char *nm;
    int sz;
    std::vector<field> fields;
};

// An enumeration: size and signedness of its base, member names and values.
class enum_type : public type_node {
public:
    enum_type(const char *name, int size, bool is_signed, unsigned num_values);
    const char *name() const { return nm; }
    void set_name(const char *name);
    int size() const override { return sz; }
    bool is_signed() const { return sgn; }
    unsigned num_values() const { return (unsigned)vals.size(); }
    void set_num_values(unsigned n);
    bool check_range(unsigned n) const { return n < vals.size(); }
    // REQUIRES: check_range(n).
    const char *member(unsigned n) const;
    const i_integer &value(unsigned n) const;
    void set_member(unsigned n, const char *name);  // interns
    void set_value(unsigned n, const i_integer &v);
    bool is_same(const type_node *other) const override { return other == this; }

private:
    struct member_value {
        const char *name = nullptr;
        i_integer value;
    };
    const char *nm;
    int sz;
    bool sgn;
    std::vector<member_value> vals;
};

// const, volatile, and the two other modifiers over a base type.
class modifier_type : public type_node {
public:
    // REQUIRES: op is TYPE_CONST .. TYPE_NULL.
    modifier_type(type_ops op, type_node *base, annote *an = nullptr);
    type_node *base() const { return bas; }
    void set_base(type_node *t) { bas = t; }
    int size() const override;
    bool is_same(const type_node *other) const override;

private:
    type_node *bas;
};
