// What the reader checks beyond the grammar, so that the tools can rely on a
// program once it is read: every type reaches a struct or union before it
// reaches itself again (the type walkers of the tools recurse through every
// other kind), and every instruction has the operands its opcode reads.
#include <unordered_map>
#include <vector>

#include "ir/io_format.h"
#include "ir/symtabs.h"
#include "ir/trees.h"
#include "ir/types.h"

namespace ir_format {

bool operand_count_fits(if_ops op, unsigned n, const char **need) {
    switch (op) {
    case io_error:
    case io_mrk:
    case io_nop:
    case io_ldc:
    case io_jmp:
    case io_lab: *need = "no operands"; return n == 0;
    case io_ret: *need = "0 or 1 operands"; return n <= 1;
    case io_cpy:
    case io_neg:
    case io_not:
    case io_abs:
    case io_cvt:
    case io_lod:
    case io_btrue:
    case io_bfalse: *need = "1 operand"; return n == 1;
    case io_cal: *need = "at least 1 operand"; return n >= 1;
    case io_gen: *need = "any number of operands"; return true;
    default: *need = "2 operands"; return n == 2;
    }
}

// The types t refers to without going through the fields of a struct or union.
static void direct_refs(type_node *t, std::vector<type_node *> &out) {
    out.clear();
    switch (t->op()) {
    case TYPE_PTR: out.push_back(static_cast<ptr_type *>(t)->ref_type()); break;
    case TYPE_ARRAY: out.push_back(static_cast<array_type *>(t)->elem_type()); break;
    case TYPE_FUNC: {
        auto f = static_cast<func_type *>(t);
        out.push_back(f->return_type());
        for (unsigned i = 0; i < f->num_args(); ++i) out.push_back(f->arg_type(i));
        break;
    }
    case TYPE_CONST:
    case TYPE_VOLATILE:
    case TYPE_CALL_BY_REF:
    case TYPE_NULL: out.push_back(static_cast<modifier_type *>(t)->base()); break;
    default: break;
    }
}

// The types that t holds by value: the fields of a struct, union or group, the element of an array,
// the base of a modifier. A cycle along these is a type of infinite size, which no C program has
// and which every walk that fills or prints a value would follow for ever.
static void value_refs(type_node *t, std::vector<type_node *> &out) {
    out.clear();
    switch (t->op()) {
    case TYPE_GROUP:
    case TYPE_STRUCT:
    case TYPE_UNION: {
        auto s = static_cast<struct_type *>(t);
        for (unsigned i = 0; i < s->num_fields(); ++i) out.push_back(s->field_type(i));
        break;
    }
    case TYPE_ARRAY: out.push_back(static_cast<array_type *>(t)->elem_type()); break;
    case TYPE_CONST:
    case TYPE_VOLATILE:
    case TYPE_CALL_BY_REF:
    case TYPE_NULL: out.push_back(static_cast<modifier_type *>(t)->base()); break;
    default: break;
    }
}

using refs_fn = void (*)(type_node *, std::vector<type_node *> &);

// Depth-first walk without recursion, with the three colours: a grey type
// met again is on the current path, so the path is a cycle.
static type_node *cycle_from(type_node *root, std::unordered_map<type_node *, char> &colour, refs_fn refs_of) {
    struct frame {
        type_node *t;
        std::vector<type_node *> refs;
        size_t next;
    };
    if (colour[root] == 2) return nullptr;
    std::vector<frame> stack;
    stack.push_back({root, {}, 0});
    refs_of(root, stack.back().refs);
    colour[root] = 1;
    while (!stack.empty()) {
        frame &f = stack.back();
        if (f.next == f.refs.size()) {
            colour[f.t] = 2;
            stack.pop_back();
            continue;
        }
        type_node *r = f.refs[f.next++];
        if (!r) continue;
        char &c = colour[r];
        if (c == 1) return r;
        if (c == 2) continue;
        c = 1;
        stack.push_back({r, {}, 0});
        refs_of(r, stack.back().refs);
    }
    return nullptr;
}

static type_node *find_cycle(base_symtab *st, refs_fn refs_of) {
    std::unordered_map<type_node *, char> colour;
    std::vector<base_symtab *> tables{st};
    while (!tables.empty()) {
        base_symtab *t = tables.back();
        tables.pop_back();
        for (type_node_list_e *e = t->types()->head(); e; e = e->next())
            if (type_node *c = cycle_from(e->contents, colour, refs_of)) return c;
        for (base_symtab_list_e *e = t->children()->head(); e; e = e->next()) tables.push_back(e->contents);
    }
    return nullptr;
}

type_node *find_type_cycle(base_symtab *st) { return find_cycle(st, direct_refs); }
type_node *find_value_cycle(base_symtab *st) { return find_cycle(st, value_refs); }

}  // namespace ir_format
