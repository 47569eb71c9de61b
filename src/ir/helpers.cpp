// Questions about types and names shared by the passes.
#include "ir/helpers.h"

#include <cctype>
#include <cstring>
#include <string>

#include "ir/annotes.h"
#include "ir/coords.h"
#include "ir/fileset.h"
#include "ir/knames.h"
#include "ir/lists.h"
#include "ir/strings.h"
#include "ir/symtabs.h"
#include "ir/types.h"

type_node *base_from_enum(type_node *t) {
    if (!t || !t->unqual()->is_enum()) return t;
    auto e = static_cast<enum_type *>(t->unqual());
    return base_from_sign_and_size(e->is_signed(), e->size());
}

type_node *base_from_sign_and_size(bool is_signed, int size) {
    if (!fileset) return nullptr;
    base_type probe(TYPE_INT, size, is_signed);
    for (type_node_list_e *e = global_st->types()->head(); e; e = e->next())
        if (e->contents->is_same(&probe)) return e->contents;
    return global_st->install_type(new base_type(TYPE_INT, size, is_signed));
}

type_node *get_element_type(type_node *t) {
    if (!t || !t->unqual()->is_array()) return nullptr;
    return static_cast<array_type *>(t->unqual())->elem_type();
}

static int c_size_alignment(int size, bool is_float) {
    int lo = is_float ? C_float : C_char, hi = is_float ? C_longdouble : C_longlong;
    for (int c = lo; c <= hi; ++c)
        if (target.size[c] == size) return target.align[c];
    return size > 0 ? size : target.addressable_size;
}

int get_alignment(type_node *t) {
    if (!t) return target.addressable_size;
    t = t->unqual();
    switch (t->op()) {
    case TYPE_INT:
    case TYPE_ENUM: return c_size_alignment(t->size(), false);
    case TYPE_FLOAT: return c_size_alignment(t->size(), true);
    case TYPE_PTR: return target.align[C_ptr];
    case TYPE_ARRAY: {
        int a = get_alignment(static_cast<array_type *>(t)->elem_type());
        return a > target.array_align ? a : target.array_align;
    }
    case TYPE_GROUP:
    case TYPE_STRUCT:
    case TYPE_UNION: {
        auto s = static_cast<struct_type *>(t);
        int a = target.struct_align;
        for (unsigned i = 0; i < s->num_fields(); ++i) {
            int f = get_alignment(s->field_type(i));
            if (f > a) a = f;
        }
        if (annote *an = s->peek_annote(k_max_align))
            if (an->immeds() && an->immeds()->head() && an->immeds()->head()->contents.is_integer()) {
                int packed = (int)an->immeds()->head()->contents.integer() * target.addressable_size;
                if (packed > 0 && packed < a) a = packed;
            }
        return a;
    }
    default: return target.addressable_size;
    }
}

bool non_negative(type_node *t) {
    if (!t) return false;
    t = t->unqual();
    if (t->op() == TYPE_INT) return !static_cast<base_type *>(t)->is_signed();
    if (t->op() == TYPE_ENUM) return !static_cast<enum_type *>(t)->is_signed();
    return t->op() == TYPE_PTR;
}

type_node *original_bitfield_type(type_node *t) {
    if (!t || t->unqual()->op() != TYPE_INT) return t;
    if (c_int_type(t) != C_none) return t;
    int size = round_up_power_of_2(t->size());
    if (size < target.size[C_char]) size = target.size[C_char];
    return base_from_sign_and_size(!non_negative(t), size);
}

static bool any_volatile(type_node *t, int depth) {
    if (!t || depth > 64) return false;
    if (t->is_volatile()) return true;
    t = t->unqual();
    if (t->is_array()) return any_volatile(static_cast<array_type *>(t)->elem_type(), depth + 1);
    if (t->is_struct()) {
        auto s = static_cast<struct_type *>(t);
        for (unsigned i = 0; i < s->num_fields(); ++i)
            if (any_volatile(s->field_type(i), depth + 1)) return true;
    }
    return false;
}

bool any_part_volatile(type_node *t) { return any_volatile(t, 0); }

C_types c_int_type(type_node *t) {
    if (!t) return C_none;
    t = t->unqual();
    if (t->op() != TYPE_INT && t->op() != TYPE_ENUM) return C_none;
    for (int c = C_char; c <= C_longlong; ++c)
        if (target.size[c] == t->size()) return (C_types)c;
    return C_none;
}

C_types c_float_type(type_node *t) {
    if (!t || t->unqual()->op() != TYPE_FLOAT) return C_none;
    for (int c = C_float; c <= C_longdouble; ++c)
        if (target.size[c] == t->unqual()->size()) return (C_types)c;
    return C_none;
}

const char *c_type_to_string(C_types c, bool is_signed) {
    switch (c) {
    case C_char: return is_signed ? "signed char" : "unsigned char";
    case C_short: return is_signed ? "short" : "unsigned short";
    case C_int: return is_signed ? "int" : "unsigned int";
    case C_long: return is_signed ? "long" : "unsigned long";
    case C_longlong: return is_signed ? "long long" : "unsigned long long";
    case C_ptr: return "void *";
    case C_float: return "float";
    case C_double: return "double";
    case C_longdouble: return "long double";
    default: return "int";
    }
}

// The tag of a struct, union or enum: the source's (when the front end made
// it unique in the IR) or the IR's.
static const char *tag_of(type_node *t, const char *ir_tag, bool source_tags) {
    if (source_tags)
        if (annote *a = t->peek_annote(k_source_tag))
            if (a->immeds() && !a->immeds()->is_empty() && a->immeds()->head()->contents.is_string())
                return a->immeds()->head()->contents.string();
    return ir_tag;
}

static std::string c_spelling(type_node *t, int depth, bool src) {
    if (!t) return "void";
    if (depth > 32) return "...";
    switch (t->op()) {
    case TYPE_INT: return c_type_to_string(c_int_type(t), !non_negative(t));
    case TYPE_FLOAT: return c_type_to_string(c_float_type(t), true);
    case TYPE_VOID: return "void";
    case TYPE_PTR: return c_spelling(static_cast<ptr_type *>(t)->ref_type(), depth + 1, src) + " *";
    case TYPE_ARRAY: {
        auto a = static_cast<array_type *>(t);
        std::string b = a->upper_bound().is_constant() ? std::to_string(a->upper_bound().constant() + 1) : "";
        return c_spelling(a->elem_type(), depth + 1, src) + "[" + b + "]";
    }
    case TYPE_FUNC: {
        auto f = static_cast<func_type *>(t);
        std::string s = c_spelling(f->return_type(), depth + 1, src) + " (";
        for (unsigned i = 0; i < f->num_args(); ++i)
            s += (i ? ", " : "") + c_spelling(f->arg_type(i), depth + 1, src);
        if (f->has_varargs()) s += f->num_args() ? ", ..." : "...";
        else if (!f->num_args() && f->args_known()) s += "void";
        return s + ")";
    }
    case TYPE_GROUP:
    case TYPE_STRUCT: return std::string("struct ") + tag_of(t, static_cast<struct_type *>(t)->name(), src);
    case TYPE_UNION: return std::string("union ") + tag_of(t, static_cast<struct_type *>(t)->name(), src);
    case TYPE_ENUM: return std::string("enum ") + tag_of(t, static_cast<enum_type *>(t)->name(), src);
    case TYPE_CONST: return "const " + c_spelling(static_cast<modifier_type *>(t)->base(), depth + 1, src);
    case TYPE_VOLATILE: return "volatile " + c_spelling(static_cast<modifier_type *>(t)->base(), depth + 1, src);
    default: return c_spelling(static_cast<modifier_type *>(t)->base(), depth + 1, src);
    }
}

const char *suif_c_type_string(type_node *t) { return intern(c_spelling(t, 0, true).c_str()); }

const char *ir_c_type_string(type_node *t) { return intern(c_spelling(t, 0, false).c_str()); }

i_integer inttype_min(int size, bool is_signed) {
    if (!is_signed || size <= 0) return i_integer(0);
    return -(i_integer(1) << (size - 1));
}

i_integer inttype_max(int size, bool is_signed) {
    if (size <= 0) return i_integer(0);
    return (i_integer(1) << (is_signed ? size - 1 : size)) - i_integer(1);
}

i_integer inttype_min(type_node *t) {
    if (!t) return i_integer(0);
    t = t->unqual();
    if (t->op() == TYPE_PTR) return i_integer(0);
    if (t->op() != TYPE_INT && t->op() != TYPE_ENUM) return i_integer(0);
    return inttype_min(t->size(), !non_negative(t));
}

i_integer inttype_max(type_node *t) {
    if (!t) return i_integer(0);
    t = t->unqual();
    if (t->op() == TYPE_PTR) return inttype_max(t->size(), false);
    if (t->op() != TYPE_INT && t->op() != TYPE_ENUM) return i_integer(0);
    return inttype_max(t->size(), !non_negative(t));
}

void get_enum_bounds(enum_type *t, i_integer *min, i_integer *max) {
    *min = i_integer(0);
    *max = i_integer(0);
    for (unsigned i = 0; i < t->num_values(); ++i) {
        if (i == 0 || t->value(i) < *min) *min = t->value(i);
        if (i == 0 || t->value(i) > *max) *max = t->value(i);
    }
}

int round_up_power_of_2(int n) {
    int p = 1;
    while (p < n && p < (1 << 30)) p <<= 1;
    return p;
}

static bool in_names(const char *name, const char *const *names) {
    if (!name) return false;
    for (; *names; ++names)
        if (std::strcmp(name, *names) == 0) return true;
    return false;
}

bool is_alloc_function(const char *name) {
    static const char *const names[] = {"malloc", "calloc", "realloc", "free", "alloca", "aligned_alloc",
                                        "valloc", "memalign", "posix_memalign", nullptr};
    return in_names(name, names);
}

bool is_memory_function(const char *name) {
    static const char *const names[] = {"memcpy", "memmove", "memset", "memcmp", "memchr", "strcpy",
                                        "strncpy", "strcat", "strncat", "strlen", "strcmp", "strncmp",
                                        "strchr", "strrchr", "strdup", "strndup", "bzero", "bcopy", nullptr};
    return in_names(name, names);
}

bool is_filler_field(const char *name) { return name && std::strncmp(name, "__qvt_unused_field", 18) == 0; }

bool is_fundamental_type_annote(const char *text, F_types *kind, bool exact) {
    if (!text) return false;
    for (int i = 0; i < num_F_types; ++i) {
        const char *n = fundamental_type_c_name[i];
        bool match = std::strcmp(text, n) == 0 ||
                     (!exact && std::strncmp(text, "k_", 2) == 0 && std::strcmp(text + 2, n) == 0);
        if (match) {
            if (kind) *kind = (F_types)i;
            return true;
        }
    }
    return false;
}

const char *drs_original_sym_name(sym_node *sym, const char **file_out) {
    if (file_out) *file_out = nullptr;
    if (!sym) return nullptr;
    if (!sym->peek_annote(k_static_sym) && !(sym->is_var() && static_cast<var_sym *>(sym)->is_auto()))
        return sym->true_name();
    coord c;
    bool found = find_coordinate(sym, &c);
    if (!found && sym->is_var() && static_cast<var_sym *>(sym)->definition())
        found = find_coordinate(static_cast<var_sym *>(sym)->definition(), &c);
    if (file_out && found) {
        const char *base = generic_basename(c.file, nullptr);
        // A static local is known by its function too.
        base_symtab *st = sym->parent();
        while (st && st->is_block() && !st->is_proc()) st = st->parent();
        if (st && st->is_proc()) *file_out = intern((std::string(base) + ":" + st->name()).c_str());
        else *file_out = base;
    }
    return sym->true_name();
}

file_list *parse_file_list(const char *text, const char *separator) {
    file_list *l = new file_list;
    if (!text) return l;
    std::string cur;
    for (const char *p = text;; ++p) {
        if (!*p || std::strchr(separator, *p)) {
            if (!cur.empty()) l->append(intern(cur.c_str()));
            cur.clear();
            if (!*p) break;
        } else {
            cur.push_back(*p);
        }
    }
    return l;
}

bool file_is_part_of_list(const char *name, file_list *list, int flag) {
    if (!name || !list) return false;
    const char *base = generic_basename(name, nullptr);
    for (string_list_e *e = list->head(); e; e = e->next()) {
        if (std::strcmp(e->contents, name) == 0) return true;
        if (flag == 1 && std::strcmp(generic_basename(e->contents, nullptr), base) == 0) return true;
    }
    return false;
}

bool is_octal_constant(const char *text) {
    if (!text) return false;
    if (*text == '-' || *text == '+') ++text;
    if (*text != '0') return false;
    for (++text; *text; ++text)
        if (*text < '0' || *text > '7') return false;
    return true;
}

bool is_hexadecimal_constant(const char *text) {
    if (!text) return false;
    if (*text == '-' || *text == '+') ++text;
    if (text[0] != '0' || (text[1] != 'x' && text[1] != 'X') || !text[2]) return false;
    for (text += 2; *text; ++text)
        if (!std::isxdigit((unsigned char)*text)) return false;
    return true;
}

const char *get_file_name_from_text_buffer(const char *text) {
    if (!text) return nullptr;
    const char *colon = std::strchr(text, ':');
    if (!colon) return intern(text);
    return intern(std::string(text, (size_t)(colon - text)).c_str());
}

const char *generic_basename(const char *path, const char **rest) {
    if (!path) {
        if (rest) *rest = intern("");
        return intern("");
    }
    const char *slash = nullptr;
    for (const char *p = path; *p; ++p)
        if (*p == '/' || *p == '\\') slash = p;
    if (rest) *rest = slash ? intern(std::string(path, (size_t)(slash - path)).c_str()) : intern("");
    return intern(slash ? slash + 1 : path);
}
