// The IR printed for people: the target, the tables with types by their
// C-like names, symbols with flags and annotations, and every body as
// indented pseudo-C. Printing follows the tree by recursion: the reader
// bounds how deep a body nests.
#include "ir/dump.h"

#include <cstdio>
#include <cstring>
#include <string>

#include "ir/ir.h"

static FILE *dump_out = stdout;

static std::string type_text(type_node *t) {
    if (!t) return "?";
    return std::string(ir_c_type_string(t));
}

static std::string immed_text(const immed &im) {
    char buf[64];
    switch (im.kind()) {
    case im_int: return std::to_string(im.integer());
    case im_float: snprintf(buf, sizeof buf, "%.17g", im.flt()); return buf;
    case im_ext_int: return std::string(im.ext_integer()) + " (ext int)";
    case im_ext_float: return std::string(im.ext_flt()) + " (ext float)";
    case im_string: {
        std::string s = "\"";
        for (const char *p = im.string(); *p; ++p) {
            if (*p == '"' || *p == '\\') s.push_back('\\');
            if (*p == '\n') s += "\\n";
            else s.push_back(*p);
        }
        return s + "\"";
    }
    case im_symbol:
        return std::string("&") + (im.symbol() ? im.symbol()->name() : "?") +
               (im.offset() ? "+" + std::to_string(im.offset()) : "");
    case im_type: return "type " + type_text(im.type());
    default: return "?";
    }
}

static void print_annotes(const suif_object *o, int indent) {
    annote_list *al = o->annotes_if_any();
    if (!al) return;
    for (annote_list_e *e = al->head(); e; e = e->next()) {
        fprintf(dump_out, "%*s@%s", indent, "", e->contents->name());
        if (immed_list *l = e->contents->immeds())
            for (immed_list_e *i = l->head(); i; i = i->next()) fprintf(dump_out, " %s", immed_text(i->contents).c_str());
        fprintf(dump_out, "\n");
    }
}

static void print_type(type_node *t) {
    fprintf(dump_out, "  T%u: %s", t->type_id(), type_text(t).c_str());
    if (t->is_struct()) {
        auto s = static_cast<struct_type *>(t);
        fprintf(dump_out, " {  /* %d bits */\n", s->size());
        print_annotes(t, 6);
        for (unsigned i = 0; i < s->num_fields(); ++i) {
            fprintf(dump_out, "      %s %s", type_text(s->field_type(i)).c_str(), s->field_name(i));
            if (s->field_storage_width(i)) fprintf(dump_out, " : %d in %d", s->field_type(i) ? s->field_type(i)->size() : 0,
                                                  s->field_storage_width(i));
            fprintf(dump_out, ";  /* at bit %d */\n", s->field_offset(i));
        }
        fprintf(dump_out, "  }\n");
        return;
    }
    if (t->is_enum()) {
        auto e = static_cast<enum_type *>(t);
        fprintf(dump_out, " {  /* %d bits, %s */\n", e->size(), e->is_signed() ? "signed" : "unsigned");
        print_annotes(t, 6);
        for (unsigned i = 0; i < e->num_values(); ++i)
            fprintf(dump_out, "      %s = %s,\n", e->member(i), e->value(i).to_string(10).c_str());
        fprintf(dump_out, "  }\n");
        return;
    }
    if (t->size()) fprintf(dump_out, "  /* %d bits */", t->size());
    fprintf(dump_out, "\n");
    print_annotes(t, 6);
}

static void print_sym(sym_node *s, int indent) {
    fprintf(dump_out, "%*s", indent, "");
    switch (s->kind()) {
    case SYM_VAR: {
        auto v = static_cast<var_sym *>(s);
        fprintf(dump_out, "var %s %s", type_text(v->type()).c_str(), s->name());
        if (v->is_param()) fprintf(dump_out, " [param]");
        if (v->is_addr_taken()) fprintf(dump_out, " [addr taken]");
        if (v->has_var_def()) fprintf(dump_out, " [defined, align %d]", v->definition()->alignment());
        else if (v->is_extern()) fprintf(dump_out, " [extern]");
        break;
    }
    case SYM_PROC: {
        auto p = static_cast<proc_sym *>(s);
        fprintf(dump_out, "proc %s %s", type_text(p->type()).c_str(), s->name());
        fprintf(dump_out, p->src_lang() ? " [body]" : " [no body]");
        break;
    }
    case SYM_LABEL: fprintf(dump_out, "label %s", s->name()); break;
    }
    if (s->is_userdef()) fprintf(dump_out, " [userdef]");
    if (s->true_name() != s->name()) fprintf(dump_out, " [source name %s]", s->true_name());
    fprintf(dump_out, "  /* #%u */\n", s->sym_id());
    print_annotes(s, indent + 4);
    if (s->is_var())
        if (var_def *d = static_cast<var_sym *>(s)->definition()) print_annotes(d, indent + 4);
}

static void print_table(base_symtab *st, int indent) {
    print_annotes(st, indent);
    for (type_node_list_e *e = st->types()->head(); e; e = e->next()) {
        fprintf(dump_out, "%*s", indent - 2, "");
        print_type(e->contents);
    }
    for (sym_node_list_e *e = st->symbols()->head(); e; e = e->next()) print_sym(e->contents, indent);
}

static std::string expr(const operand &r);

static const char *binary_sign(if_ops op) {
    switch (op) {
    case io_add: return "+";
    case io_sub: return "-";
    case io_mul: return "*";
    case io_div: return "/";
    case io_rem: return "%";
    case io_mod: return "mod";
    case io_and: return "&";
    case io_ior: return "|";
    case io_xor: return "^";
    case io_asr: return ">>";
    case io_lsl: return "<<";
    case io_lsr: return ">>>";
    case io_seq: return "==";
    case io_sne: return "!=";
    case io_sl: return "<";
    case io_sle: return "<=";
    default: return nullptr;
    }
}

static std::string value_text(instruction *i) {
    switch (i->opcode()) {
    case io_ldc: return immed_text(static_cast<in_ldc *>(i)->value());
    case io_cvt: return "(" + type_text(i->result_type()) + ") " + expr(i->src_op(0));
    case io_lod: return "*" + expr(i->src_op(0));
    case io_neg: return "-" + expr(i->src_op(0));
    case io_not: return "~" + expr(i->src_op(0));
    case io_cpy: return expr(i->src_op(0));
    case io_cal: {
        auto c = static_cast<in_cal *>(i);
        std::string s;
        operand a = c->addr_op();
        if (a.is_instr() && a.instr()->opcode() == io_ldc && static_cast<in_ldc *>(a.instr())->value().is_symbol())
            s = static_cast<in_ldc *>(a.instr())->value().symbol()->name();
        else s = "(*" + expr(a) + ")";
        s += "(";
        for (unsigned k = 0; k < c->num_args(); ++k) s += (k ? ", " : "") + expr(c->argument(k));
        return s + ")";
    }
    case io_gen: {
        std::string s = std::string(static_cast<in_gen *>(i)->name()) + "(";
        for (unsigned k = 0; k < i->num_srcs(); ++k) s += (k ? ", " : "") + expr(i->src_op(k));
        return s + ")";
    }
    default:
        if (const char *sign = binary_sign(i->opcode()))
            return "(" + expr(i->src_op(0)) + " " + sign + " " + expr(i->src_op(1)) + ")";
        std::string s = std::string(if_ops_name(i->opcode())) + "(";
        for (unsigned k = 0; k < i->num_srcs(); ++k) s += (k ? ", " : "") + expr(i->src_op(k));
        return s + ")";
    }
}

static std::string expr(const operand &r) {
    if (r.is_symbol()) return r.symbol()->name();
    if (r.is_instr()) return value_text(r.instr());
    return "<null>";
}

static void print_instr_annotes(instruction *i, int indent) {
    if (i->annotes_if_any()) print_annotes(i, indent + 4);
    for (unsigned k = 0; k < i->num_srcs(); ++k)
        if (instruction *s = i->src_op(k).instr()) print_instr_annotes(s, indent);
}

static void print_list(tree_node_list *l, int indent);

static void print_statement(instruction *i, int indent) {
    fprintf(dump_out, "%*s", indent, "");
    std::string dst = i->dst_op().is_symbol() ? std::string(i->dst_op().symbol()->name()) + " = " : "";
    switch (i->opcode()) {
    case io_mrk: fprintf(dump_out, "mark;\n"); break;
    case io_nop: fprintf(dump_out, "nop;\n"); break;
    case io_ret: fprintf(dump_out, i->num_srcs() && !i->src_op(0).is_null() ? "return %s;\n" : "return;\n",
                        i->num_srcs() ? expr(i->src_op(0)).c_str() : ""); break;
    case io_str: fprintf(dump_out, "*%s = %s;\n", expr(i->src_op(0)).c_str(), expr(i->src_op(1)).c_str()); break;
    case io_memcpy: fprintf(dump_out, "*%s = *%s;\n", expr(i->src_op(0)).c_str(), expr(i->src_op(1)).c_str()); break;
    case io_btrue:
    case io_bfalse: {
        auto b = static_cast<in_bj *>(i);
        fprintf(dump_out, "if (%s%s) goto %s;\n", i->opcode() == io_bfalse ? "!" : "", expr(b->src_op()).c_str(),
               b->target() ? b->target()->name() : "?");
        break;
    }
    case io_jmp: fprintf(dump_out, "goto %s;\n", static_cast<in_bj *>(i)->target() ? static_cast<in_bj *>(i)->target()->name() : "?"); break;
    case io_lab: fprintf(dump_out, "%s:\n", static_cast<in_lab *>(i)->label() ? static_cast<in_lab *>(i)->label()->name() : "?"); break;
    default: fprintf(dump_out, "%s%s;\n", dst.c_str(), value_text(i).c_str()); break;
    }
    print_instr_annotes(i, indent);
}

static void print_node(tree_node *t, int indent) {
    switch (t->kind()) {
    case TREE_INSTR:
        if (instruction *i = static_cast<tree_instr *>(t)->instr()) print_statement(i, indent);
        print_annotes(t, indent + 4);
        break;
    case TREE_BLOCK: {
        auto b = static_cast<tree_block *>(t);
        fprintf(dump_out, "%*s{\n", indent, "");
        print_annotes(t, indent + 4);
        if (b->symtab()) print_table(b->symtab(), indent + 4);
        print_list(b->body(), indent + 4);
        fprintf(dump_out, "%*s}\n", indent, "");
        break;
    }
    case TREE_IF: {
        auto f = static_cast<tree_if *>(t);
        fprintf(dump_out, "%*sif-header (else at %s) {\n", indent, "", f->jumpto() ? f->jumpto()->name() : "?");
        print_annotes(t, indent + 4);
        print_list(f->header(), indent + 4);
        fprintf(dump_out, "%*s} then {\n", indent, "");
        print_list(f->then_part(), indent + 4);
        fprintf(dump_out, "%*s} else {\n", indent, "");
        print_list(f->else_part(), indent + 4);
        fprintf(dump_out, "%*s}\n", indent, "");
        break;
    }
    case TREE_LOOP: {
        auto l = static_cast<tree_loop *>(t);
        fprintf(dump_out, "%*sdo {\n", indent, "");
        print_annotes(t, indent + 4);
        print_list(l->body(), indent + 4);
        fprintf(dump_out, "%*s} test {\n", indent, "");
        print_list(l->test(), indent + 4);
        fprintf(dump_out, "%*s}\n", indent, "");
        break;
    }
    default: break;
    }
}

static void print_list(tree_node_list *l, int indent) {
    for (tree_node_list_e *e = l->head(); e; e = e->next()) print_node(e->contents, indent);
}

// The nth immed of an annotation as a string, or "?".
static const char *immed_string(annote *a, int n) {
    immed_list *l = a ? a->immeds() : nullptr;
    immed_list_e *e = l ? l->head() : nullptr;
    for (; e && n > 0; --n) e = e->next();
    return e && e->contents.is_string() ? e->contents.string() : "?";
}

// What a procedure made from a range entry stands for, after its signature: the range that a
// permanent procedure declares, the condition that a globalassert procedure tests, or the
// writes and reads of a list procedure.
static void print_range_summary(tree_proc *body) {
    if (annote *a = body->peek_annote(k_drs)) {
        if (!strcmp(immed_string(a, 0), "globalassert"))
            fprintf(dump_out, "  /* globalassert range test: returns 0 on %s */", immed_string(a, 1));
        else
            fprintf(dump_out, "  /* %s range: %s in [%s..%s] (%s) */", immed_string(a, 0), immed_string(a, 1),
                    immed_string(a, 3), immed_string(a, 4), immed_string(a, 2));
    } else if (body->peek_annote(k_drs_range_func)) {
        fprintf(dump_out, "  /* permanent range list: writes the ranged leaves, then reads their addresses */");
    }
}

bool ir_dump_file(const char *path, FILE *out, std::string *error) {
    dump_out = out;
    file_set_entry *fse = fileset->try_add_file(path, nullptr, error);
    if (!fse) return false;
    fprintf(out, "IR file %s, entry \"%s\"\n", path, fse->name());
    fprintf(out, "target: addressable unit %d bits, %s, char %s; sizes char %d short %d int %d long %d "
            "long long %d pointer %d float %d double %d long double %d\n",
            target.addressable_size, target.is_big_endian ? "big endian" : "little endian",
            target.char_is_signed ? "signed" : "unsigned", target.size[C_char], target.size[C_short],
            target.size[C_int], target.size[C_long], target.size[C_longlong], target.size[C_ptr],
            target.size[C_float], target.size[C_double], target.size[C_longdouble]);
    print_annotes(fse, 2);
    fprintf(out, "\nglobal table:\n");
    print_table(global_st, 2);
    fprintf(out, "\nfile table:\n");
    print_table(fse->symtab(), 2);
    fse->reset_proc_iter();
    while (proc_sym *p = fse->next_proc()) {
        if (!ir_read_body(p, error)) return false;
        func_type *ft = p->type();
        fprintf(out, "\n%s %s(", type_text(ft->return_type()).c_str(), p->name());
        proc_symtab *st = p->block()->proc_syms();
        int k = 0;
        for (sym_node_list_e *e = st->params()->head(); e; e = e->next(), ++k)
            fprintf(out, "%s%s %s", k ? ", " : "", type_text(static_cast<var_sym *>(e->contents)->type()).c_str(),
                    e->contents->name());
        fprintf(out, ")");
        print_range_summary(p->block());
        fprintf(out, "\n{\n");
        print_annotes(p->block(), 4);
        for (sym_node_list_e *e = st->symbols()->head(); e; e = e->next())
            if (!(e->contents->is_var() && static_cast<var_sym *>(e->contents)->is_param())) print_sym(e->contents, 4);
        print_list(p->block()->body(), 4);
        fprintf(out, "}\n");
        p->flush_proc();
    }
    return true;
}
