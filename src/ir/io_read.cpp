// Reading IR files. add_file reads the tables and notes where each body
// starts; read_proc parses one body when asked, so memory holds the tables
// and the bodies in use. Every fault of the text is reported as
// "FILE:LINE: what is wrong" and stops the reading.
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "ir/internal.h"
#include "ir/io.h"
#include "ir/io_format.h"
#include "ir/machine.h"
#include "ir/strings.h"
#include "ir/symtabs.h"
#include "ir/trees.h"
#include "ir/types.h"

namespace ir_format {

bool split_tokens(std::string_view line, std::vector<std::string_view> &tokens) {
    tokens.clear();
    size_t i = 0, n = line.size();
    while (i < n) {
        if (line[i] == ' ') {
            ++i;
            continue;
        }
        size_t start = i;
        while (i < n && line[i] != ' ') {
            if (line[i] == '"') {
                ++i;
                while (i < n && line[i] != '"') i += line[i] == '\\' ? 2 : 1;
                if (i >= n) return false;
            }
            ++i;
        }
        tokens.push_back(line.substr(start, i - start));
    }
    return true;
}

static int hex_digit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

bool unquote(std::string_view tok, std::string &out) {
    out.clear();
    if (tok.size() < 2 || tok.front() != '"' || tok.back() != '"') return false;
    std::string_view body = tok.substr(1, tok.size() - 2);
    for (size_t i = 0; i < body.size(); ++i) {
        char c = body[i];
        if (c == '"') return false;
        if (c != '\\') {
            out.push_back(c);
            continue;
        }
        if (++i >= body.size()) return false;
        switch (body[i]) {
        case '"': out.push_back('"'); break;
        case '\\': out.push_back('\\'); break;
        case 'n': out.push_back('\n'); break;
        case 't': out.push_back('\t'); break;
        case 'r': out.push_back('\r'); break;
        case 'x': {
            if (i + 2 >= body.size()) return false;
            int h = hex_digit(body[i + 1]), l = hex_digit(body[i + 2]);
            if (h < 0 || l < 0 || (h == 0 && l == 0)) return false;
            out.push_back((char)(h * 16 + l));
            i += 2;
            break;
        }
        default: return false;
        }
    }
    return true;
}

bool parse_uint(std::string_view tok, unsigned *out) {
    if (tok.empty() || tok.size() > 10) return false;
    unsigned long long v = 0;
    for (char c : tok) {
        if (c < '0' || c > '9') return false;
        v = v * 10 + (unsigned)(c - '0');
    }
    if (v > 0xffffffffull) return false;
    *out = (unsigned)v;
    return true;
}

bool parse_int(std::string_view tok, long long *out) {
    if (tok.empty() || tok.size() > 20) return false;
    size_t i = 0;
    bool neg = false;
    if (tok[0] == '-') {
        neg = true;
        i = 1;
    }
    if (i >= tok.size()) return false;
    unsigned long long v = 0;
    for (; i < tok.size(); ++i) {
        char c = tok[i];
        if (c < '0' || c > '9') return false;
        unsigned long long nv = v * 10 + (unsigned)(c - '0');
        if (nv / 10 != v) return false;
        v = nv;
    }
    if (neg ? v > 0x8000000000000000ull : v > 0x7fffffffffffffffull) return false;
    *out = neg ? (long long)(0 - v) : (long long)v;
    return true;
}

}  // namespace ir_format

using namespace ir_format;

namespace {

// A reference to an object not read yet, patched at the end.
struct fixup {
    bool is_type;
    unsigned id;
    int line;
    std::function<bool(void *)> apply;  // false: wrong kind of object
    const char *what;
};

struct reader {
    const char *path;
    FILE *in = nullptr;
    int line_no = 0;
    long line_start = 0;
    long pos = 0;  // offset of the next line in the file
    std::string line;
    std::vector<std::string_view> tok;
    std::string *error;
    bool failed = false;

    file_set_entry *fse = nullptr;
    suif_object *last = nullptr;
    base_symtab *table = nullptr;
    // A struct or enum still waiting for its fields or members.
    type_node *open_type = nullptr;
    unsigned open_expected = 0, open_seen = 0;
    std::vector<fixup> fixups;
    // Where each type was read, for the check of cycles.
    std::unordered_map<const type_node *, int> type_lines;
    bool check_type_cycles(base_symtab *st) {
        auto refuse = [&](type_node *t, const char *what) {
            auto at = type_lines.find(t);
            line_no = at == type_lines.end() ? 0 : at->second;
            return fail("type " + std::to_string(t->type_id()) + what);
        };
        if (type_node *t = find_type_cycle(st)) return refuse(t, " reaches itself other than through a struct or union");
        if (type_node *t = find_value_cycle(st)) return refuse(t, " holds itself by value, without a pointer");
        return true;
    }
    // Within a body: the ids it defines.
    bool in_body = false;
    int instr_depth = 0;

    bool fail(const std::string &what) {
        if (!failed) {
            *error = std::string(path) + ":" + std::to_string(line_no) + ": " + what;
            failed = true;
        }
        return false;
    }

    // Reads one raw line into `line`, without its end; false at the end of
    // the file or on a line beyond max_line. Our own buffer rather than
    // getline: a line is cut off at the limit, so that endless input (a
    // device, a file without line ends) can't take all memory.
    char buf[1 << 16];
    size_t buf_at = 0, buf_end = 0;
    bool raw_line() {
        line.clear();
        bool any = false;
        for (;;) {
            if (buf_at == buf_end) {
                buf_at = 0;
                buf_end = fread(buf, 1, sizeof buf, in);
                if (buf_end == 0) break;
            }
            any = true;
            const char *start = buf + buf_at;
            const char *nl = (const char *)memchr(start, '\n', buf_end - buf_at);
            size_t n = nl ? (size_t)(nl - start) : buf_end - buf_at;
            if (line.size() + n > max_line) {
                ++line_no;
                return fail("a line longer than " + std::to_string(max_line) + " bytes");
            }
            line.append(start, n);
            buf_at += n + (nl ? 1 : 0);
            pos += (long)(n + (nl ? 1 : 0));
            if (nl) break;
        }
        if (!any) return false;
        ++line_no;
        // A last line without its end: the file was cut.
        if (buf_at == buf_end && buf_end == 0) truncated_last = true;
        return true;
    }

    // Reads the next line that is not a comment; false at the end of file.
    bool next_line() {
        for (;;) {
            line_start = pos;
            if (!raw_line()) return false;
            if (memchr(line.data(), 0, line.size())) return fail("a NUL byte in the line");
            if (line.empty() || line[0] == '#') continue;
            if (!split_tokens(line, tok)) return fail("unclosed string");
            if (tok.empty()) continue;
            return true;
        }
    }
    bool truncated_last = false;

    bool want(size_t n) {
        if (tok.size() != n)
            return fail("record \"" + std::string(tok[0]) + "\" needs " + std::to_string(n - 1) + " fields, has " +
                        std::to_string(tok.size() - 1));
        return true;
    }
    bool uint_at(size_t i, unsigned *v) {
        if (i >= tok.size() || !parse_uint(tok[i], v)) return fail("bad number \"" + std::string(i < tok.size() ? tok[i] : "") + "\"");
        return true;
    }
    bool int_at(size_t i, int *v) {
        long long x;
        if (i >= tok.size() || !parse_int(tok[i], &x) || x < -2147483647ll - 1 || x > 2147483647ll)
            return fail("bad number \"" + std::string(i < tok.size() ? tok[i] : "") + "\"");
        *v = (int)x;
        return true;
    }
    bool bool_at(size_t i, bool *v) {
        unsigned x;
        if (!uint_at(i, &x)) return false;
        if (x > 1) return fail("bad flag \"" + std::string(tok[i]) + "\", expected 0 or 1");
        *v = x == 1;
        return true;
    }
    bool string_at(size_t i, std::string &s) {
        if (i >= tok.size() || !unquote(tok[i], s)) return fail("bad string " + std::string(i < tok.size() ? tok[i] : ""));
        return true;
    }

    // A reference to a type by id (0 is null), patched later if unknown.
    bool type_ref(std::string_view t, std::function<bool(type_node *)> set) {
        unsigned id;
        if (!parse_uint(t, &id)) return fail("bad type id \"" + std::string(t) + "\"");
        if (id == 0) return set(nullptr) || fail("a type is required here");
        if (type_node *ty = ir_internal::type_by_id(id)) return set(ty) || fail("type " + std::to_string(id) + " has the wrong kind here");
        fixups.push_back({true, id, line_no, [set](void *o) { return set((type_node *)o); }, "type"});
        return true;
    }
    bool sym_ref(std::string_view t, std::function<bool(sym_node *)> set) {
        unsigned id;
        if (!parse_uint(t, &id)) return fail("bad symbol id \"" + std::string(t) + "\"");
        if (id == 0) return set(nullptr) || fail("a symbol is required here");
        if (sym_node *s = ir_internal::sym_by_id(id)) return set(s) || fail("symbol " + std::to_string(id) + " has the wrong kind here");
        fixups.push_back({false, id, line_no, [set](void *o) { return set((sym_node *)o); }, "symbol"});
        return true;
    }

    bool resolve_fixups() {
        for (fixup &f : fixups) {
            line_no = f.line;
            void *o = f.is_type ? (void *)ir_internal::type_by_id(f.id) : (void *)ir_internal::sym_by_id(f.id);
            if (!o) return fail(std::string("dangling reference to ") + f.what + " " + std::to_string(f.id));
            if (!f.apply(o)) return fail(std::string(f.what) + " " + std::to_string(f.id) + " has the wrong kind here");
        }
        fixups.clear();
        return true;
    }

    bool parse_immed(std::string_view t, immed_list *list);
    bool read_annote();
    bool read_type();
    bool read_field();
    // *with_body counts the procedures that announce a body.
    bool read_sym(long *with_body);
    bool read_def();
    bool close_open_type() {
        if (open_type && open_seen < open_expected)
            return fail("type " + std::to_string(open_type->type_id()) + " expects " + std::to_string(open_expected) +
                        " fields or members, has " + std::to_string(open_seen));
        open_type = nullptr;
        return true;
    }
    // Table records common to the file tables and the body tables.
    bool table_record(bool *handled, long *with_body);

    // Bodies.
    bool read_list(tree_node_list *l, std::string_view *stop);
    bool read_node(tree_node **out);
    bool parse_instr(size_t &i, instruction **out);
    bool parse_operand(size_t &i, operand *out);
};

bool reader::parse_immed(std::string_view t, immed_list *list) {
    if (t.size() < 2 || t[1] != ':') return fail("bad immed \"" + std::string(t) + "\"");
    std::string_view v = t.substr(2);
    std::string s;
    switch (t[0]) {
    case 'i': {
        long long x;
        if (!parse_int(v, &x)) return fail("bad number in immed \"" + std::string(t) + "\"");
        list->append(immed(x));
        return true;
    }
    case 'f': {
        std::string text(v);
        char *end = nullptr;
        double d = strtod(text.c_str(), &end);
        if (text.empty() || *end) return fail("bad float in immed \"" + std::string(t) + "\"");
        list->append(immed(d));
        return true;
    }
    case 's':
    case 'l':
    case 'g':
        if (!unquote(v, s)) return fail("bad string in immed \"" + std::string(t) + "\"");
        if (t[0] == 's') list->append(immed(s.c_str()));
        else list->append(immed(t[0] == 'l' ? im_ext_int : im_ext_float, s.c_str()));
        return true;
    case 'p': {
        size_t colon = v.find(':');
        int off;
        long long x;
        if (colon == std::string_view::npos || !parse_int(v.substr(colon + 1), &x) || x < -2147483647ll || x > 2147483647ll)
            return fail("bad symbol immed \"" + std::string(t) + "\"");
        off = (int)x;
        immed_list_e *e = list->append(immed((sym_node *)nullptr, off));
        return sym_ref(v.substr(0, colon), [e, off](sym_node *s) {
            if (!s) return false;
            e->contents = immed(s, off);
            return true;
        });
    }
    case 't': {
        immed_list_e *e = list->append(immed((type_node *)nullptr));
        return type_ref(v, [e](type_node *ty) {
            e->contents = immed(ty);
            return ty != nullptr;
        });
    }
    default: return fail("unknown immed kind \"" + std::string(t) + "\"");
    }
}

bool reader::read_annote() {
    if (tok.size() < 2) return fail("annotation without a name");
    if (!last) return fail("annotation before any object");
    std::string name;
    if (!string_at(1, name)) return false;
    immed_list *l = tok.size() > 2 ? new immed_list : nullptr;
    annote *a = last->append_annote(name.c_str(), l);
    (void)a;
    for (size_t i = 2; i < tok.size(); ++i)
        if (!parse_immed(tok[i], l)) return false;
    return true;
}

// The type_ops value of a kind word, -1 if none.
static int op_of_word(std::string_view w) {
    static const char *const words[] = {"int", "float", "void", "ptr", "array", "func", "group",
                                        "struct", "union", "enum", "const", "volatile", "callbyref", "null"};
    for (int i = 0; i < 14; ++i)
        if (w == words[i]) return i;
    return -1;
}

static bool parse_bound(std::string_view t, array_bound *b, reader *r, array_type *a, bool upper) {
    if (t == "u") {
        *b = array_bound();
        return true;
    }
    if (t.size() > 2 && t.substr(0, 2) == "c:") {
        long long x;
        if (!parse_int(t.substr(2), &x) || x < -2147483647ll - 1 || x > 2147483647ll)
            return r->fail("bad array bound \"" + std::string(t) + "\"");
        *b = array_bound((int)x);
        return true;
    }
    if (t.size() > 2 && t.substr(0, 2) == "v:") {
        return r->sym_ref(t.substr(2), [a, upper](sym_node *s) {
            if (!s || !s->is_var()) return false;
            if (upper) a->set_upper_bound(array_bound(static_cast<var_sym *>(s)));
            else a->set_lower_bound(array_bound(static_cast<var_sym *>(s)));
            return true;
        });
    }
    return r->fail("bad array bound \"" + std::string(t) + "\"");
}

bool reader::read_type() {
    if (tok.size() < 3) return fail("type record too short");
    unsigned id;
    if (!uint_at(1, &id)) return false;
    if (id == 0) return fail("type id 0 is reserved");
    if (id > max_id) return fail("type id " + std::to_string(id) + " is out of range (at most " + std::to_string(max_id) + ")");
    if (ir_internal::type_id_taken(id)) return fail("duplicate type id " + std::to_string(id));
    int op_number = op_of_word(tok[2]);
    if (op_number < 0) return fail("unknown type kind \"" + std::string(tok[2]) + "\"");
    type_ops op = (type_ops)op_number;
    type_node *t = nullptr;
    auto ref = [&](size_t i, auto set) { return type_ref(tok[i], set); };
    switch (op) {
    case TYPE_INT:
    case TYPE_FLOAT:
    case TYPE_VOID: {
        int size = 0;
        bool sgn = op == TYPE_FLOAT;
        if (op == TYPE_INT) {
            if (!want(5) || !int_at(3, &size)) return false;
            if (tok[4] != "s" && tok[4] != "u") return fail("bad sign \"" + std::string(tok[4]) + "\", expected s or u");
            sgn = tok[4] == "s";
        } else if (op == TYPE_FLOAT) {
            if (!want(4) || !int_at(3, &size)) return false;
        } else if (!want(3)) {
            return false;
        }
        if (size < 0) return fail("negative size");
        t = new base_type(op, size, sgn);
        break;
    }
    case TYPE_PTR: {
        if (!want(4)) return false;
        auto p = new ptr_type(nullptr);
        t = p;
        if (!ref(3, [p](type_node *x) { p->set_ref_type(x); return x != nullptr; })) return delete t, false;
        break;
    }
    case TYPE_ARRAY: {
        if (!want(6)) return false;
        auto a = new array_type(nullptr, array_bound(), array_bound());
        t = a;
        array_bound lo, hi;
        if (!ref(3, [a](type_node *x) { a->set_elem_type(x); return x != nullptr; }) ||
            !parse_bound(tok[4], &lo, this, a, false) || !parse_bound(tok[5], &hi, this, a, true))
            return delete t, false;
        if (tok[4][0] != 'v') a->set_lower_bound(lo);
        if (tok[5][0] != 'v') a->set_upper_bound(hi);
        break;
    }
    case TYPE_FUNC: {
        if (tok.size() < 7) return fail("func type record too short");
        bool known, va;
        unsigned n;
        if (!bool_at(4, &known) || !bool_at(5, &va) || !uint_at(6, &n)) return false;
        if (tok.size() != 7 + (size_t)n) return fail("func type declares " + std::to_string(n) + " arguments, lists " + std::to_string(tok.size() - 7));
        auto f = new func_type(nullptr, n, va, known);
        t = f;
        if (!ref(3, [f](type_node *x) { f->set_return_type(x); return x != nullptr; })) return delete t, false;
        for (unsigned k = 0; k < n; ++k)
            if (!ref(7 + k, [f, k](type_node *x) { f->set_arg_type(k, x); return x != nullptr; })) return delete t, false;
        break;
    }
    case TYPE_GROUP:
    case TYPE_STRUCT:
    case TYPE_UNION: {
        int size;
        unsigned n;
        std::string name;
        if (!want(6) || !int_at(3, &size) || !string_at(4, name) || !uint_at(5, &n)) return false;
        if (size < 0) return fail("negative size");
        if (n > 1000000) return fail("too many fields");
        t = new struct_type(op, size, name.c_str(), n);
        open_expected = n;
        break;
    }
    case TYPE_ENUM: {
        int size;
        unsigned n;
        std::string name;
        if (!want(7) || !int_at(3, &size)) return false;
        if (tok[4] != "s" && tok[4] != "u") return fail("bad sign \"" + std::string(tok[4]) + "\", expected s or u");
        if (!string_at(5, name) || !uint_at(6, &n)) return false;
        if (size < 0) return fail("negative size");
        if (n > 1000000) return fail("too many members");
        t = new enum_type(name.c_str(), size, tok[4] == "s", n);
        open_expected = n;
        break;
    }
    default: {
        if (!want(4)) return false;
        auto m = new modifier_type(op, nullptr);
        t = m;
        if (!ref(3, [m](type_node *x) { m->set_base(x); return x != nullptr; })) return delete t, false;
        break;
    }
    }
    t->set_type_id(id);
    type_lines[t] = line_no;
    ir_internal::note_type_id(id);
    table->add_type(t);
    last = t;
    if (t->is_struct() || t->is_enum()) {
        open_type = t;
        open_seen = 0;
    }
    return true;
}

bool reader::read_field() {
    bool is_field = tok[0] == "field";
    if (!open_type || open_seen >= open_expected || open_type->is_enum() == is_field)
        return fail(std::string("unexpected ") + (is_field ? "field" : "member") + " record");
    std::string name;
    unsigned k = open_seen++;
    if (is_field) {
        int off, width;
        if (!want(5) || !string_at(1, name) || !int_at(3, &off) || !int_at(4, &width)) return false;
        if (off < 0 || width < 0) return fail("negative field offset or width");
        auto s = static_cast<struct_type *>(open_type);
        s->set_field_name(k, name.c_str());
        s->set_field_offset(k, off);
        s->set_field_storage_width(k, width);
        if (!type_ref(tok[2], [s, k](type_node *x) { s->set_field_type(k, x); return x != nullptr; })) return false;
    } else {
        if (!want(3) || !string_at(1, name)) return false;
        i_integer v(std::string(tok[2]).c_str(), 10);
        if (!v.is_valid()) return fail("bad number \"" + std::string(tok[2]) + "\"");
        auto e = static_cast<enum_type *>(open_type);
        e->set_member(k, name.c_str());
        e->set_value(k, v);
    }
    if (open_seen == open_expected) open_type = nullptr;
    return true;
}

bool reader::read_sym(long *with_body) {
    if (tok.size() < 3) return fail("sym record too short");
    unsigned id;
    if (!uint_at(1, &id)) return false;
    if (id == 0) return fail("symbol id 0 is reserved");
    if (id > max_id) return fail("symbol id " + std::to_string(id) + " is out of range (at most " + std::to_string(max_id) + ")");
    if (ir_internal::sym_id_taken(id)) return fail("duplicate symbol id " + std::to_string(id));
    std::string name, true_name;
    unsigned flags;
    sym_node *s;
    size_t at;  // index of the name
    if (tok[2] == "var") {
        if (!want(7)) return false;
        at = 4;
    } else if (tok[2] == "proc") {
        if (!want(9)) return false;
        at = 4;
    } else if (tok[2] == "label") {
        if (!want(6)) return false;
        at = 3;
    } else {
        return fail("unknown symbol kind \"" + std::string(tok[2]) + "\"");
    }
    if (!string_at(at, name) || !uint_at(at + 1, &flags)) return false;
    bool has_true = tok[at + 2] != "-";
    if (has_true && !string_at(at + 2, true_name)) return false;
    if (tok[2] == "var") {
        auto v = new var_sym(nullptr, name.c_str());
        s = v;
        if (!type_ref(tok[3], [v](type_node *x) { v->set_type(x); return x != nullptr; })) return delete s, false;
    } else if (tok[2] == "proc") {
        int lang;
        bool body;
        if (!int_at(7, &lang) || !bool_at(8, &body)) return false;
        auto p = new proc_sym(nullptr, lang, name.c_str());
        s = p;
        if (!type_ref(tok[3], [p](type_node *x) {
                if (!x || !x->is_func()) return false;
                p->set_type(static_cast<func_type *>(x));
                return true;
            }))
            return delete s, false;
        if (body) {
            if (!with_body) return delete s, fail("a procedure of a body table cannot have a body");
            ++*with_body;
            p->body_offset = -2;
        }
    } else {
        s = new label_sym(name.c_str());
    }
    s->set_flags(flags);
    if (has_true) s->set_true_name(true_name.c_str());
    s->set_sym_id(id);
    ir_internal::note_sym_id(id);
    table->add_sym(s);
    last = s;
    return true;
}

bool reader::read_def() {
    unsigned id;
    int align;
    if (!want(3) || !uint_at(1, &id) || !int_at(2, &align)) return false;
    sym_node *s = ir_internal::sym_by_id(id);
    if (!s) return fail("dangling reference to symbol " + std::to_string(id));
    if (!s->is_var()) return fail("symbol " + std::to_string(id) + " is not a variable");
    if (static_cast<var_sym *>(s)->definition()) return fail("second definition of symbol " + std::to_string(id));
    var_def *d = new var_def(static_cast<var_sym *>(s), align);
    table->add_def(d);
    last = d;
    return true;
}

bool reader::table_record(bool *handled, long *with_body) {
    *handled = true;
    std::string_view w = tok[0];
    if (w == "@") return read_annote();
    if (w == "field" || w == "member") return read_field();
    if (!close_open_type()) return false;
    if (w == "type") return read_type();
    if (w == "sym") return read_sym(with_body);
    if (w == "def") return read_def();
    *handled = false;
    return true;
}

}  // namespace

// The tables of an entry. The body section is only scanned: each body's
// place is noted for read_proc.
bool ir_read_tables(file_set_entry *fse, std::string *error) {
    reader r;
    r.path = fse->in_name();
    r.error = error;
    r.fse = fse;
    file_set *fs = fse->parent();
    if (!fs->globals->symbols()->is_empty()) {
        *error = std::string(r.path) + ":0: only one input file can be read in a run";
        return false;
    }
    r.in = fopen(r.path, "rb");
    if (!r.in) {
        *error = std::string(r.path) + ":0: cannot open: " + strerror(errno);
        return false;
    }
    if (!fse->io) fse->io = new file_set_entry::io_state;
    fse->io->in = r.in;

    // The tables of the file replace the predefined types made by init_suif.
    while (!fs->globals->types()->is_empty()) {
        type_node *t = fs->globals->types()->head()->contents;
        fs->globals->remove_type(t);
        delete t;
    }

    // Version line: taken as it is, comments not allowed ahead of it.
    r.pos = 0;
    if (!r.raw_line()) {
        if (r.failed) return false;
        r.line_no = 1;
        return r.fail("empty file");
    }
    if (r.line != ir_format_version) {
        if (r.line.size() < 64 && r.line.rfind("qvt-ir ", 0) == 0)
            return r.fail("unsupported version \"" + r.line + "\", expected \"" + ir_format_version + "\"");
        return r.fail(std::string("not an IR file: the first line must be \"") + ir_format_version + "\"");
    }

    long with_body = 0;
    bool seen_target = false, seen_entry = false, seen_end = false, in_bodies = false;
    int table_kind = 0;  // 0 none yet, 1 global, 2 file
    while (r.next_line()) {
        std::string_view w = r.tok[0];
        if (seen_end) return r.fail("text after the end of the file");
        if (w == "end-of-ir") {
            if (!r.want(1)) return false;
            if (!r.close_open_type()) return false;
            seen_end = true;
            continue;
        }
        if (in_bodies) {
            if (w != "body") return r.fail("expected a body or the end of the file, found \"" + std::string(w) + "\"");
        }
        if (w == "@") {
            if (!r.read_annote()) return false;
        } else if (w == "target") {
            if (seen_target || seen_entry) return r.fail("misplaced target record");
            if (!r.want(33)) return false;
            int v[32];
            for (int i = 0; i < 32; ++i)
                if (!r.int_at((size_t)i + 1, &v[i])) return false;
            machine_params m;
            m.is_big_endian = v[0] != 0;
            m.addressable_size = v[1];
            m.char_is_signed = v[2] != 0;
            for (int i = 0; i < num_C_types; ++i) m.size[i] = v[3 + i];
            for (int i = 0; i < num_C_types; ++i) m.align[i] = v[12 + i];
            m.array_align = v[21];
            m.struct_align = v[22];
            if (v[23] < 0 || v[23] >= num_C_types) return r.fail("bad C type number " + std::to_string(v[23]));
            m.ptr_diff_type = (C_types)v[23];
            for (int i = 0; i < num_F_types; ++i) {
                if (v[24 + i] < 0 || v[24 + i] > num_C_types) return r.fail("bad C type number " + std::to_string(v[24 + i]));
                m.fundamental_type[i] = (C_types)v[24 + i];
            }
            if (m.addressable_size <= 0) return r.fail("bad addressable unit size");
            for (int i = 3; i < 23; ++i)
                if (v[i] < 0) return r.fail("negative size or alignment in the target");
            target = m;
            for (int i = 0; i < num_F_types; ++i) fundamental_type_is_sign[i] = v[28 + i] != 0;
            seen_target = true;
        } else if (w == "ids") {
            unsigned s, t;
            if (!r.want(3) || !r.uint_at(1, &s) || !r.uint_at(2, &t)) return false;
            if (s > max_id + 1 || t > max_id + 1) return r.fail("next id out of range (at most " + std::to_string(max_id + 1) + ")");
            ir_internal::note_sym_id(s ? s - 1 : 0);
            ir_internal::note_type_id(t ? t - 1 : 0);
        } else if (w == "entry") {
            std::string name;
            if (seen_entry) return r.fail("a second entry record");
            if (!seen_target) return r.fail("the target record must come before the entry");
            if (!r.want(2) || !r.string_at(1, name)) return false;
            fse->set_name(name.c_str());
            r.last = fse;
            seen_entry = true;
        } else if (w == "table") {
            std::string name;
            if (!seen_entry) return r.fail("a table before the entry record");
            if (!r.want(3) || !r.string_at(2, name)) return false;
            if (!r.close_open_type()) return false;
            if (r.tok[1] == "global" && table_kind == 0) {
                table_kind = 1;
                r.table = fs->globals;
            } else if (r.tok[1] == "file" && table_kind == 1) {
                table_kind = 2;
                r.table = fse->symtab();
            } else {
                return r.fail("unexpected table \"" + std::string(r.tok[1]) + "\"");
            }
            r.table->set_name(name.c_str());
            r.last = r.table;
        } else if (w == "body") {
            if (table_kind != 2) return r.fail("a body before the tables");
            if (!r.close_open_type()) return false;
            if (!in_bodies && !r.resolve_fixups()) return false;
            in_bodies = true;
            unsigned id;
            if (!r.want(2) || !r.uint_at(1, &id)) return false;
            sym_node *s = ir_internal::sym_by_id(id);
            if (!s || !s->is_proc()) return r.fail("body of an unknown procedure " + std::to_string(id));
            proc_sym *p = static_cast<proc_sym *>(s);
            if (p->body_offset != -2 || p->parent() == nullptr || p->parent()->is_block())
                return r.fail("unexpected or second body of procedure " + std::to_string(id));
            --with_body;
            p->body_offset = r.line_start;
            p->body_line = r.line_no;
            p->set_file(fse);
            // Skip to the end of the body.
            bool closed = false;
            while (r.next_line())
                if (r.tok[0] == "endbody") {
                    closed = true;
                    break;
                } else if (r.tok[0] == "body" || r.tok[0] == "end-of-ir") {
                    return r.fail("body of procedure " + std::to_string(id) + " has no endbody");
                }
            if (r.failed) return false;
            if (!closed) break;
        } else {
            if (!r.table) return r.fail("unknown record \"" + std::string(w) + "\"");
            bool handled;
            if (!r.table_record(&handled, &with_body)) return false;
            if (!handled) return r.fail("unknown record \"" + std::string(w) + "\"");
        }
    }
    if (r.failed) return false;
    if (!seen_end) return r.fail("unexpected end of file: the file is truncated");
    if (r.truncated_last) return r.fail("the last line has no line end: the file is truncated");
    if (!r.resolve_fixups()) return false;
    if (table_kind != 2) return r.fail("the file has no symbol tables");
    if (!r.check_type_cycles(fs->globals)) return false;
    if (with_body != 0) {
        r.line_no = 0;
        for (base_symtab *st : {(base_symtab *)fs->globals, (base_symtab *)fse->symtab()})
            for (sym_node_list_e *e = st->symbols()->head(); e; e = e->next())
                if (e->contents->is_proc() && static_cast<proc_sym *>(e->contents)->body_offset == -2)
                    return r.fail("procedure " + std::to_string(e->contents->sym_id()) + " has no body");
        return r.fail("a procedure has no body");
    }
    make_predefined_types();
    return true;
}

namespace {

bool reader::parse_operand(size_t &i, operand *out) {
    if (i >= tok.size()) return fail("instruction ends too early");
    std::string_view t = tok[i];
    if (t == "-") {
        *out = operand();
        ++i;
        return true;
    }
    if (t == "(") {
        instruction *ins;
        if (!parse_instr(i, &ins)) return false;
        *out = operand(ins);
        return true;
    }
    if (t.size() > 2 && t.substr(0, 2) == "v:") {
        unsigned id;
        if (!parse_uint(t.substr(2), &id)) return fail("bad symbol id \"" + std::string(t) + "\"");
        int kind = ir_internal::sym_kind_of_id(id);
        if (kind < 0) return fail("dangling reference to symbol " + std::to_string(id));
        if (kind != SYM_VAR) return fail("symbol " + std::to_string(id) + " is not a variable");
        *out = operand(static_cast<var_sym *>(ir_internal::sym_by_id(id)));
        ++i;
        return true;
    }
    return fail("bad operand \"" + std::string(t) + "\"");
}

bool reader::parse_instr(size_t &i, instruction **out) {
    *out = nullptr;
    if (i + 5 > tok.size() || tok[i] != "(") return fail("bad instruction");
    if (instr_depth >= max_nesting) return fail("instructions nested deeper than " + std::to_string(max_nesting));
    struct depth_guard {
        int &d;
        explicit depth_guard(int &x) : d(x) { ++d; }
        ~depth_guard() { --d; }
    } guard(instr_depth);
    if_ops op = if_ops_from_name(std::string(tok[i + 1]).c_str());
    if (op == io_error) return fail("unknown opcode \"" + std::string(tok[i + 1]) + "\"");
    unsigned tid;
    if (!parse_uint(tok[i + 2], &tid)) return fail("bad type id \"" + std::string(tok[i + 2]) + "\"");
    type_node *type = tid ? ir_internal::type_by_id(tid) : nullptr;
    if (tid && !type) return fail("dangling reference to type " + std::to_string(tid));
    i += 3;
    operand dst;
    if (!parse_operand(i, &dst)) return false;
    if (dst.is_instr()) {
        delete dst.instr();
        return fail("the destination must be a variable");
    }
    instruction *ins = nullptr;
    auto label_at = [&](size_t k, label_sym **l) {
        unsigned id;
        if (k >= tok.size() || !parse_uint(tok[k], &id)) return fail("bad label id");
        sym_node *s = id ? ir_internal::sym_by_id(id) : nullptr;
        if (id && !s) return fail("dangling reference to symbol " + std::to_string(id));
        if (s && !s->is_label()) return fail("symbol " + std::to_string(id) + " is not a label");
        *l = static_cast<label_sym *>(s);
        return true;
    };
    switch (op) {
    case io_ldc: {
        if (i >= tok.size()) return fail("instruction ends too early");
        immed_list tmp;
        size_t before = fixups.size();
        if (!parse_immed(tok[i], &tmp)) return false;
        if (fixups.size() != before) return fail("dangling reference in a constant");
        ins = new in_ldc(type, dst, tmp.head()->contents);
        ++i;
        break;
    }
    case io_btrue:
    case io_bfalse:
    case io_jmp: {
        label_sym *l;
        if (!label_at(i, &l)) return false;
        ins = new in_bj(op, l);
        ins->set_result_type(type);
        ++i;
        break;
    }
    case io_lab: {
        label_sym *l;
        if (!label_at(i, &l)) return false;
        ins = new in_lab(l);
        ins->set_result_type(type);
        ++i;
        break;
    }
    case io_gen: {
        std::string name;
        if (!string_at(i, name)) return false;
        ins = new in_gen(name.c_str(), type, dst, 0);
        ++i;
        break;
    }
    case io_cal: ins = new in_cal(type, dst, operand(), 0); break;
    default: ins = new in_rrr(op, type, dst); break;
    }
    ins->set_dst(dst);
    unsigned n;
    if (i >= tok.size() || !parse_uint(tok[i], &n)) {
        delete ins;
        return fail("bad operand count");
    }
    const char *need;
    if (!operand_count_fits(op, n, &need)) {
        delete ins;
        return fail(std::string("opcode ") + if_ops_name(op) + " takes " + need + ", has " + std::to_string(n));
    }
    if (n > tok.size()) {
        delete ins;
        return fail("bad operand count");
    }
    ++i;
    for (unsigned k = 0; k < n; ++k) {
        operand r;
        if (!parse_operand(i, &r)) {
            delete ins;
            return false;
        }
        ins->set_src_op(k, r);
    }
    while (i < tok.size() && tok[i] == "[") {
        std::string name;
        if (!string_at(++i, name)) {
            delete ins;
            return false;
        }
        ++i;
        immed_list *l = nullptr;
        while (i < tok.size() && tok[i] != "]") {
            if (!l) l = new immed_list;
            size_t before = fixups.size();
            if (!parse_immed(tok[i], l) || fixups.size() != before) {
                delete l;
                delete ins;
                return fail("bad annotation value");
            }
            ++i;
        }
        ins->append_annote(name.c_str(), l);
        if (i >= tok.size()) {
            delete ins;
            return fail("unclosed annotation");
        }
        ++i;
    }
    if (i >= tok.size() || tok[i] != ")") {
        delete ins;
        return fail("instruction not closed by \")\"");
    }
    ++i;
    *out = ins;
    return true;
}

bool reader::read_node(tree_node **out) {
    *out = nullptr;
    std::string_view w = tok[0];
    if (w == "instr") {
        if (tok.size() < 2) return fail("empty instr record");
        size_t i = 1;
        instruction *ins = nullptr;
        if (tok[1] != "-" && !parse_instr(i, &ins)) return false;
        if (tok[1] == "-") i = 2;
        if (i != tok.size()) {
            delete ins;
            return fail("text after the instruction");
        }
        *out = new tree_instr(ins);
        last = *out;
        return true;
    }
    if (w == "block") {
        if (!want(1)) return false;
        tree_block *b = new tree_block(new tree_node_list, nullptr);
        *out = b;
        last = b;
        base_symtab *outer = table;
        // Annotations, then the table.
        std::string name;
        while (next_line() && tok[0] == "@")
            if (!read_annote()) return false;
        if (failed) return false;
        if (tok[0] != "btable" || !want(2) || !string_at(1, name)) return fail("a block must start with its btable");
        block_symtab *st = new block_symtab(name.c_str());
        outer->add_child(st);
        b->set_symtab(st);
        table = st;
        last = st;
        std::string_view stop;
        if (!read_list(b->body(), &stop)) return false;
        table = outer;
        if (stop != "end") return fail("block not closed by end");
        return true;
    }
    if (w == "if") {
        if (!want(2)) return false;
        unsigned id;
        if (!uint_at(1, &id)) return false;
        sym_node *s = id ? ir_internal::sym_by_id(id) : nullptr;
        if (id && !s) return fail("dangling reference to symbol " + std::to_string(id));
        if (s && !s->is_label()) return fail("symbol " + std::to_string(id) + " is not a label");
        tree_if *f = new tree_if(static_cast<label_sym *>(s), nullptr, nullptr, nullptr);
        *out = f;
        last = f;
        while (next_line() && tok[0] == "@")
            if (!read_annote()) return false;
        if (failed) return false;
        if (tok[0] != "header") return fail("an if must go on with header");
        std::string_view stop;
        if (!read_list(f->header(), &stop)) return false;
        if (stop != "then") return fail("expected then");
        if (!read_list(f->then_part(), &stop)) return false;
        if (stop != "else") return fail("expected else");
        if (!read_list(f->else_part(), &stop)) return false;
        if (stop != "end") return fail("if not closed by end");
        return true;
    }
    if (w == "loop") {
        if (!want(4)) return false;
        label_sym *labs[3];
        for (int k = 0; k < 3; ++k) {
            unsigned id;
            if (!uint_at((size_t)k + 1, &id)) return false;
            sym_node *s = id ? ir_internal::sym_by_id(id) : nullptr;
            if (id && !s) return fail("dangling reference to symbol " + std::to_string(id));
            if (s && !s->is_label()) return fail("symbol " + std::to_string(id) + " is not a label");
            labs[k] = static_cast<label_sym *>(s);
        }
        tree_loop *l = new tree_loop(nullptr, nullptr, labs[0], labs[1], labs[2]);
        *out = l;
        last = l;
        while (next_line() && tok[0] == "@")
            if (!read_annote()) return false;
        if (failed) return false;
        if (tok[0] != "loopbody") return fail("a loop must go on with loopbody");
        std::string_view stop;
        if (!read_list(l->body(), &stop)) return false;
        if (stop != "test") return fail("expected test");
        if (!read_list(l->test(), &stop)) return false;
        if (stop != "end") return fail("loop not closed by end");
        return true;
    }
    return fail("unknown record \"" + std::string(w) + "\"");
}

// Table records of the block, then nodes, up to a line that is not a node;
// *stop is its first word.
bool reader::read_list(tree_node_list *l, std::string_view *stop) {
    bool nodes_started = false;
    static thread_local int depth = 0;
    if (depth >= max_nesting) return fail("statements nested deeper than " + std::to_string(max_nesting));
    struct guard {
        guard() { ++depth; }
        ~guard() { --depth; }
    } g;
    while (next_line()) {
        std::string_view w = tok[0];
        if (w == "instr" || w == "block" || w == "if" || w == "loop") {
            if (!close_open_type()) return false;
            nodes_started = true;
            tree_node *t;
            bool ok = read_node(&t);
            if (t) l->append(t);
            if (!ok) return false;
            continue;
        }
        if (w == "@" && nodes_started) {
            if (!read_annote()) return false;
            continue;
        }
        if (!nodes_started && (w == "@" || w == "type" || w == "sym" || w == "def" || w == "field" || w == "member" ||
                               w == "param")) {
            if (w == "param") {
                unsigned id;
                if (!close_open_type()) return false;
                if (!want(2) || !uint_at(1, &id)) return false;
                sym_node *s = ir_internal::sym_by_id(id);
                if (!s || s->parent() != table || !s->is_var() || !table->is_proc())
                    return fail("bad parameter " + std::to_string(id));
                static_cast<proc_symtab *>(table)->params()->append(s);
                continue;
            }
            bool handled;
            if (!table_record(&handled, nullptr)) return false;
            continue;
        }
        if (!close_open_type()) return false;
        *stop = w;
        return true;
    }
    if (failed) return false;
    return fail("unexpected end of file inside a body");
}

}  // namespace

bool ir_read_body(proc_sym *p, std::string *error) {
    file_set_entry *fse = p->file();
    // A body written since it was read comes back from the spool, so that a
    // later pass sees the changes of an earlier one.
    bool from_spool = fse && fse->io && fse->io->spool && p->spool_index >= 0 &&
                      (size_t)p->spool_index < fse->io->bodies.size();
    if (!from_spool && (!fse || !fse->io || !fse->io->in || p->body_offset < 0)) {
        *error = std::string(fse && fse->in_name() ? fse->in_name() : "<memory>") + ":0: procedure " + p->name() +
                 " has no body to read";
        return false;
    }
    reader r;
    r.path = from_spool ? fse->out_name() : fse->in_name();
    r.error = error;
    r.fse = fse;
    long offset = p->body_offset;
    r.line_no = p->body_line - 1;
    if (from_spool) {
        r.in = fse->io->spool;
        offset = fse->io->bodies[(size_t)p->spool_index].offset;
        r.line_no = 0;
        fse->io->spool_read = true;
    } else {
        r.in = fse->io->in;
    }
    if (fseek(r.in, offset, SEEK_SET) != 0) return r.fail("cannot seek to the body");
    r.pos = offset;
    if (!r.next_line() || r.tok[0] != "body") return r.fail("body expected");
    if (!r.next_line() || r.tok[0] != "proc" || !r.want(1)) return r.fail("a body must start with proc");
    tree_proc *tp = new tree_proc(new tree_node_list, nullptr);
    r.last = tp;
    bool ok = true;
    while ((ok = r.next_line()) && r.tok[0] == "@")
        if (!r.read_annote()) {
            ok = false;
            break;
        }
    std::string name;
    if (ok && (r.tok[0] != "ptable" || !r.want(2) || !r.string_at(1, name))) ok = r.fail("a body must go on with its ptable");
    if (ok) {
        proc_symtab *st = new proc_symtab(name.c_str());
        (p->parent() ? p->parent() : fse->parent()->globals)->add_child(st);
        tp->set_symtab(st);
        r.table = st;
        r.last = st;
        r.in_body = true;
        std::string_view stop;
        ok = r.read_list(tp->body(), &stop);
        if (ok && stop != "endbody") ok = r.fail("unexpected \"" + std::string(stop) + "\" in a body");
        if (ok) ok = r.resolve_fixups();
        if (ok) ok = r.check_type_cycles(st);
    }
    if (!ok) {
        if (!r.failed) r.fail("unexpected end of file inside a body");
        delete tp;
        return false;
    }
    p->set_block(tp);
    return true;
}

void proc_sym::read_proc(bool, bool) {
    if (body || (body_offset < 0 && spool_index < 0)) return;
    std::string error;
    if (!ir_read_body(this, &error)) {
        fprintf(stderr, "%s\n", error.c_str());
        exit(1);
    }
    written = false;
}

void proc_sym::flush_proc() {
    if (!body) return;
    // A body made in memory that was never written would be lost: keep it
    // for exit_suif.
    if (body_offset < 0 && !written) return;
    delete body;
    body = nullptr;
}

bool ir_check_file(const char *path, std::string *error) {
    file_set_entry *fse = fileset->try_add_file(path, nullptr, error);
    if (!fse) return false;
    fse->reset_proc_iter();
    while (proc_sym *p = fse->next_proc()) {
        if (!ir_read_body(p, error)) return false;
        p->flush_proc();
    }
    return true;
}
