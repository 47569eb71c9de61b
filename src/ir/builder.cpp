// The program builder: small steps over the library's own constructors.
#include "ir/builder.h"

#include <string>

#include "ir/coords.h"
#include "ir/fileset.h"
#include "ir/helpers.h"
#include "ir/knames.h"
#include "ir/machine.h"
#include "ir/strings.h"
#include "ir/symtabs.h"

program_builder::program_builder(const char *out_name, const char *source_file)
    : entry(fileset->add_file(nullptr, out_name)), src_file(intern(source_file)) {
    // The entry is known by its source, as a front end would name it.
    entry->set_name(source_file);
}

global_symtab *program_builder::globals() const { return fileset->globals; }
file_symtab *program_builder::file_table() const { return entry->symtab(); }
void program_builder::set_source_file(const char *name) { src_file = intern(name); }

type_node *program_builder::install(type_node *t) {
    type_node *r = globals()->install_type(t);
    if (r != t) delete t;
    return r;
}

ptr_type *program_builder::ptr(type_node *t) { return static_cast<ptr_type *>(install(new ptr_type(t))); }
type_node *program_builder::const_of(type_node *t) { return install(new modifier_type(TYPE_CONST, t)); }
type_node *program_builder::volatile_of(type_node *t) { return install(new modifier_type(TYPE_VOLATILE, t)); }

array_type *program_builder::array(type_node *elem, int count) {
    array_type *a = count < 0 ? new array_type(elem, array_bound(0), array_bound())
                              : new array_type(elem, array_bound(0), array_bound(count - 1));
    return static_cast<array_type *>(install(a));
}

func_type *program_builder::func(type_node *ret, std::initializer_list<type_node *> args, bool varargs) {
    unsigned n = (unsigned)args.size() + (varargs ? 2 : 0);
    func_type *f = new func_type(ret, n, varargs, true);
    unsigned k = 0;
    for (type_node *a : args) f->set_arg_type(k++, a);
    if (varargs) {
        f->set_arg_type(k++, type_signed);
        f->set_arg_type(k++, ptr(ptr(type_void)));
    }
    return static_cast<func_type *>(install(f));
}

func_type *program_builder::func_noproto(type_node *ret) {
    return static_cast<func_type *>(install(new func_type(false, ret)));
}

struct_type *program_builder::aggregate(type_ops op, const char *tag, std::initializer_list<field_desc> fields) {
    struct_type *s = new struct_type(op, 0, tag, (unsigned)fields.size());
    int offset = 0, size = 0, align = target.struct_align;
    int bit_unit_start = -1, bit_unit_size = 0, bit_pos = 0;
    unsigned k = 0;
    for (const field_desc &f : fields) {
        s->set_field_name(k, f.name);
        int fa = get_alignment(f.type);
        if (fa > align) align = fa;
        if (f.bit_width > 0) {
            int unit = f.type->size();
            if (op == TYPE_UNION) {
                s->set_field_offset(k, 0);
            } else {
                if (bit_unit_start < 0 || bit_unit_size != unit || bit_pos + f.bit_width > unit) {
                    offset = (offset + fa - 1) / fa * fa;
                    bit_unit_start = offset;
                    bit_unit_size = unit;
                    bit_pos = 0;
                    offset += unit;
                }
                s->set_field_offset(k, bit_unit_start + bit_pos);
                bit_pos += f.bit_width;
            }
            s->set_field_storage_width(k, unit);
            s->set_field_type(k, int_of(f.bit_width, !non_negative(f.type)));
            if (op == TYPE_UNION && unit > size) size = unit;
        } else {
            bit_unit_start = -1;
            s->set_field_type(k, f.type);
            if (op == TYPE_UNION) {
                s->set_field_offset(k, 0);
                if (f.type->size() > size) size = f.type->size();
            } else {
                offset = (offset + fa - 1) / fa * fa;
                s->set_field_offset(k, offset);
                offset += f.type->size();
            }
        }
        ++k;
    }
    if (op != TYPE_UNION) size = offset;
    size = (size + align - 1) / align * align;
    s->set_size(size);
    globals()->install_type(s);
    return s;
}

struct_type *program_builder::struct_of(const char *tag, std::initializer_list<field_desc> fields) {
    return aggregate(TYPE_STRUCT, tag, fields);
}

struct_type *program_builder::union_of(const char *tag, std::initializer_list<field_desc> fields) {
    return aggregate(TYPE_UNION, tag, fields);
}

enum_type *program_builder::enum_of(const char *tag, std::initializer_list<enum_member_desc> members) {
    enum_type *e = new enum_type(tag, target.size[C_int], true, (unsigned)members.size());
    unsigned k = 0;
    for (const enum_member_desc &m : members) {
        e->set_member(k, m.name);
        e->set_value(k++, i_integer(m.value));
    }
    globals()->install_type(e);
    return e;
}

type_node *program_builder::int_of(int bits, bool is_signed) { return install(new base_type(TYPE_INT, bits, is_signed)); }

void program_builder::set_coord(suif_object *o, int line) {
    coord c;
    c.file = src_file;
    c.line = line;
    c.column = 1;
    o->annotes()->append(coordinate_to_annote(k_source_coordinates, c));
}

void program_builder::finish_sym(sym_node *s, suif_object *coord_holder) {
    s->set_userdef();
    set_coord(coord_holder ? coord_holder : s, cur_line++);
}

var_sym *program_builder::global_var(const char *name, type_node *t, bool defined) {
    var_sym *v = globals()->new_var(t, name);
    var_def *d = nullptr;
    if (defined) d = file_table()->add_def(new var_def(v, get_alignment(t)));
    finish_sym(v, d);
    return v;
}

var_sym *program_builder::static_var(const char *name, type_node *t) {
    var_sym *v = file_table()->new_var(t, name);
    var_def *d = file_table()->add_def(new var_def(v, get_alignment(t)));
    v->append_annote(k_static_sym);
    finish_sym(v, d);
    return v;
}

proc_sym *program_builder::extern_proc(const char *name, func_type *t) {
    proc_sym *p = globals()->new_proc(t, src_unknown, name);
    finish_sym(p, nullptr);
    return p;
}

static proc_sym *give_body(proc_sym *p, func_type *t) {
    proc_symtab *st = new proc_symtab(p->name());
    p->parent()->add_child(st);
    for (unsigned i = 0; i < t->num_args(); ++i) {
        var_sym *v = st->new_var(t->arg_type(i), ("p" + std::to_string(i)).c_str());
        v->set_param();
        v->set_userdef();
        st->params()->append(v);
    }
    tree_node_list *body = new tree_node_list;
    type_node *ret = t->return_type();
    in_rrr *r = new in_rrr(io_ret, ret);
    if (ret && ret->unqual()->op() == TYPE_INT) r->set_src1(operand(new in_ldc(ret, operand(), immed(0))));
    body->append(new tree_instr(r));
    p->set_block(new tree_proc(body, st));
    return p;
}

proc_sym *program_builder::defined_proc(const char *name, func_type *t) {
    proc_sym *p = globals()->new_proc(t, src_c, name);
    finish_sym(p, nullptr);
    p->set_file(entry);
    return give_body(p, t);
}

proc_sym *program_builder::static_proc(const char *name, func_type *t) {
    proc_sym *p = file_table()->new_proc(t, src_c, name);
    p->append_annote(k_static_sym);
    finish_sym(p, nullptr);
    p->set_file(entry);
    return give_body(p, t);
}

tree_node_list *program_builder::body(proc_sym *p) { return p->block() ? p->block()->body() : nullptr; }
proc_symtab *program_builder::scope(proc_sym *p) { return p->block() ? p->block()->proc_syms() : nullptr; }

var_sym *program_builder::param(proc_sym *p, unsigned n) {
    proc_symtab *st = scope(p);
    if (!st || (int)n >= st->params()->count()) return nullptr;
    return static_cast<var_sym *>((*st->params())[(int)n]);
}

void program_builder::add_node(proc_sym *p, tree_node *t) {
    tree_node_list *l = body(p);
    if (!l) return;
    // Before the final return, if there is one.
    tree_node_list_e *last = l->tail();
    if (last && last->contents->is_instr() && static_cast<tree_instr *>(last->contents)->instr() &&
        static_cast<tree_instr *>(last->contents)->instr()->opcode() == io_ret) {
        tree_node_list_e *e = new tree_node_list_e(t);
        l->set_elem(e);
        static_cast<dlist *>(l)->insert_before(e, last);
    } else {
        l->append(t);
    }
}

static in_cal *make_call(program_builder *b, proc_sym *caller, operand addr, type_node *ret,
                         std::initializer_list<operand> args) {
    var_sym *dst = nullptr;
    if (ret && ret->unqual()->op() != TYPE_VOID) dst = b->scope(caller)->new_unique_var(ret, "_r");
    in_cal *c = new in_cal(ret, operand(dst), addr, (unsigned)args.size());
    unsigned k = 0;
    for (const operand &a : args) c->set_argument(k++, a);
    b->add_node(caller, new tree_instr(c));
    return c;
}

in_cal *program_builder::add_call(proc_sym *caller, proc_sym *callee, std::initializer_list<operand> args) {
    operand addr(new in_ldc(ptr(callee->type()), operand(), immed(callee, 0)));
    return make_call(this, caller, addr, callee->type()->return_type(), args);
}

in_cal *program_builder::add_indirect_call(proc_sym *caller, var_sym *fptr, std::initializer_list<operand> args) {
    type_node *t = fptr->type()->unqual();
    type_node *ret = nullptr;
    if (t->is_ptr() && static_cast<ptr_type *>(t)->ref_type()->unqual()->is_func())
        ret = static_cast<func_type *>(static_cast<ptr_type *>(t)->ref_type()->unqual())->return_type();
    return make_call(this, caller, operand(fptr), ret, args);
}

void program_builder::add_use(proc_sym *p, var_sym *v) {
    var_sym *t = scope(p)->new_unique_var(v->type(), "_u");
    add_node(p, create_assignment(t, operand(v), nullptr));
}

void program_builder::add_assign(proc_sym *p, var_sym *v, long long value) {
    add_node(p, create_assignment(v, operand(new in_ldc(v->type()->unqual(), operand(), immed(value))), nullptr));
}

void program_builder::add_addr_of(proc_sym *p, sym_node *s) {
    type_node *t = s->is_var() ? static_cast<var_sym *>(s)->type() : static_cast<proc_sym *>(s)->type();
    ptr_type *pt = ptr(t);
    var_sym *v = scope(p)->new_unique_var(pt, "_a");
    add_node(p, create_assignment(v, operand(new in_ldc(pt, operand(), immed(s, 0))), nullptr));
}

var_sym *program_builder::add_block(proc_sym *p, type_node *local_type) {
    block_symtab *st = new block_symtab("blk");
    scope(p)->add_child(st);
    var_sym *v = st->new_var(local_type, "local");
    tree_node_list *l = new tree_node_list;
    tree_block *b = new tree_block(l, st);
    add_node(p, b);
    l->append(create_assignment(v, operand(new in_ldc(local_type, operand(), immed(1))), nullptr));
    return v;
}

void program_builder::add_if(proc_sym *p, var_sym *v) {
    proc_symtab *st = scope(p);
    label_sym *lab = st->new_unique_label("L");
    var_sym *c = st->new_unique_var(type_signed, "_c");
    tree_node_list *head = new tree_node_list;
    head->append(new tree_instr(new in_rrr(io_sle, type_signed, operand(c), operand(v),
                                           operand(new in_ldc(v->type(), operand(), immed(0))))));
    head->append(new tree_instr(new in_bj(io_btrue, lab, operand(c))));
    tree_node_list *then_part = new tree_node_list;
    then_part->append(create_assignment(v, operand(new in_ldc(v->type(), operand(), immed(1))), nullptr));
    tree_node_list *else_part = new tree_node_list;
    else_part->append(create_assignment(v, operand(new in_ldc(v->type(), operand(), immed(2))), nullptr));
    add_node(p, new tree_if(lab, head, then_part, else_part));
}

annote *program_builder::annotate(suif_object *o, const char *name, std::initializer_list<immed> immeds) {
    immed_list *l = nullptr;
    if (immeds.size()) {
        l = new immed_list;
        for (const immed &i : immeds) l->append(i);
    }
    return o->append_annote(name, l);
}
