// Writing IR files. The tables are written at exit_suif, after every body
// that write_proc spooled, so that annotations, symbols and procedures
// added after a body was written still reach the file. The output is
// assembled in a temporary file and renamed at the end: a failure never
// leaves a partial output behind.
#include <cerrno>
#include <cinttypes>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

#include "ir/internal.h"
#include "ir/io.h"
#include "ir/io_format.h"
#include "ir/machine.h"
#include "ir/symtabs.h"
#include "ir/trees.h"
#include "ir/types.h"

const char *const ir_format_version = "qvt-ir 1";

file_set_entry::io_state::~io_state() {
    if (in) fclose(in);
    if (spool) fclose(spool);
}

namespace ir_format {

void put_quoted(std::string &out, const char *text) {
    out.push_back('"');
    for (const unsigned char *p = (const unsigned char *)(text ? text : ""); *p; ++p) {
        switch (*p) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\t': out += "\\t"; break;
        case '\r': out += "\\r"; break;
        default:
            if (*p < 0x20 || *p == 0x7f) {
                char buf[8];
                snprintf(buf, sizeof buf, "\\x%02x", *p);
                out += buf;
            } else {
                out.push_back((char)*p);
            }
        }
    }
    out.push_back('"');
}

static void put_uint(std::string &out, unsigned v) { out += std::to_string(v); }

static void put_sym(std::string &out, const sym_node *s) { put_uint(out, s ? s->sym_id() : 0); }
static void put_type(std::string &out, const type_node *t) { put_uint(out, t ? t->type_id() : 0); }

void put_immed(std::string &out, const immed &im) {
    char buf[64];
    switch (im.kind()) {
    case im_int: out += "i:" + std::to_string(im.integer()); break;
    case im_float:
        snprintf(buf, sizeof buf, "f:%.17g", im.flt());
        out += buf;
        break;
    case im_ext_int: out += "l:"; put_quoted(out, im.ext_integer()); break;
    case im_ext_float: out += "g:"; put_quoted(out, im.ext_flt()); break;
    case im_string: out += "s:"; put_quoted(out, im.string()); break;
    case im_symbol:
        out += "p:";
        put_sym(out, im.symbol());
        out += ":" + std::to_string(im.offset());
        break;
    case im_type: out += "t:"; put_type(out, im.type()); break;
    default: out += "u:"; break;
    }
}

// One "@" line per annotation.
static void put_annotes(std::string &out, const suif_object *o) {
    annote_list *al = o->annotes_if_any();
    if (!al) return;
    for (annote_list_e *e = al->head(); e; e = e->next()) {
        annote *a = e->contents;
        if (annote_def *d = lookup_annote(a->name()))
            if (!d->is_output()) continue;
        out += "@ ";
        put_quoted(out, a->name());
        if (a->immeds())
            for (immed_list_e *i = a->immeds()->head(); i; i = i->next()) {
                out.push_back(' ');
                put_immed(out, i->contents);
            }
        out.push_back('\n');
    }
}

static void put_bound(std::string &out, const array_bound &b) {
    if (b.is_constant()) out += "c:" + std::to_string(b.constant());
    else if (b.is_variable()) {
        out += "v:";
        put_sym(out, b.variable());
    } else out += "u";
}

static const char *const op_words[] = {"int", "float", "void", "ptr", "array", "func", "group",
                                       "struct", "union", "enum", "const", "volatile", "callbyref", "null"};

static void put_type_record(std::string &out, type_node *t) {
    out += "type ";
    put_type(out, t);
    out.push_back(' ');
    out += op_words[t->op()];
    switch (t->op()) {
    case TYPE_INT: out += " " + std::to_string(t->size()) + (static_cast<base_type *>(t)->is_signed() ? " s" : " u"); break;
    case TYPE_FLOAT: out += " " + std::to_string(t->size()); break;
    case TYPE_VOID: break;
    case TYPE_PTR: out.push_back(' '); put_type(out, static_cast<ptr_type *>(t)->ref_type()); break;
    case TYPE_ARRAY: {
        auto a = static_cast<array_type *>(t);
        out.push_back(' ');
        put_type(out, a->elem_type());
        out.push_back(' ');
        put_bound(out, a->lower_bound());
        out.push_back(' ');
        put_bound(out, a->upper_bound());
        break;
    }
    case TYPE_FUNC: {
        auto f = static_cast<func_type *>(t);
        out.push_back(' ');
        put_type(out, f->return_type());
        out += f->args_known() ? " 1" : " 0";
        out += f->has_varargs() ? " 1 " : " 0 ";
        put_uint(out, f->num_args());
        for (unsigned i = 0; i < f->num_args(); ++i) {
            out.push_back(' ');
            put_type(out, f->arg_type(i));
        }
        break;
    }
    case TYPE_GROUP:
    case TYPE_STRUCT:
    case TYPE_UNION: {
        auto s = static_cast<struct_type *>(t);
        out += " " + std::to_string(s->size()) + " ";
        put_quoted(out, s->name());
        out.push_back(' ');
        put_uint(out, s->num_fields());
        out.push_back('\n');
        put_annotes(out, t);
        for (unsigned i = 0; i < s->num_fields(); ++i) {
            out += "field ";
            put_quoted(out, s->field_name(i));
            out.push_back(' ');
            put_type(out, s->field_type(i));
            out += " " + std::to_string(s->field_offset(i)) + " " + std::to_string(s->field_storage_width(i)) + "\n";
        }
        return;
    }
    case TYPE_ENUM: {
        auto e = static_cast<enum_type *>(t);
        out += " " + std::to_string(e->size()) + (e->is_signed() ? " s " : " u ");
        put_quoted(out, e->name());
        out.push_back(' ');
        put_uint(out, e->num_values());
        out.push_back('\n');
        put_annotes(out, t);
        for (unsigned i = 0; i < e->num_values(); ++i) {
            out += "member ";
            put_quoted(out, e->member(i));
            out += " " + e->value(i).to_string(10) + "\n";
        }
        return;
    }
    default: out.push_back(' '); put_type(out, static_cast<modifier_type *>(t)->base()); break;
    }
    out.push_back('\n');
    put_annotes(out, t);
}

static void put_sym_record(std::string &out, sym_node *s, bool has_body) {
    out += "sym ";
    put_sym(out, s);
    switch (s->kind()) {
    case SYM_VAR: out += " var "; put_type(out, static_cast<var_sym *>(s)->type()); break;
    case SYM_PROC: out += " proc "; put_type(out, static_cast<proc_sym *>(s)->type()); break;
    case SYM_LABEL: out += " label"; break;
    }
    out.push_back(' ');
    put_quoted(out, s->name());
    out += " " + std::to_string(s->flags()) + " ";
    if (s->true_name() != s->name()) put_quoted(out, s->true_name());
    else out.push_back('-');
    if (s->kind() == SYM_PROC)
        out += " " + std::to_string(static_cast<proc_sym *>(s)->src_lang()) + (has_body ? " 1" : " 0");
    out.push_back('\n');
    put_annotes(out, s);
}

// Whether the output of fse will hold a body of p.
static bool will_have_body(proc_sym *p, file_set_entry *fse) {
    if (p->file() != fse) return false;
    if (p->is_in_memory() || p->body_offset >= 0) return true;
    return p->spool_index >= 0;
}

static void put_table_contents(std::string &out, base_symtab *st, file_set_entry *fse) {
    put_annotes(out, st);
    for (type_node_list_e *e = st->types()->head(); e; e = e->next()) put_type_record(out, e->contents);
    for (sym_node_list_e *e = st->symbols()->head(); e; e = e->next()) {
        sym_node *s = e->contents;
        put_sym_record(out, s, s->is_proc() && will_have_body(static_cast<proc_sym *>(s), fse));
    }
    for (var_def_list_e *e = st->var_defs()->head(); e; e = e->next()) {
        out += "def ";
        put_sym(out, e->contents->variable());
        out += " " + std::to_string(e->contents->alignment()) + "\n";
        put_annotes(out, e->contents);
    }
}

static void put_operand(std::string &out, const operand &r);

// Nesting of the body being written. Past the limit the writer stops going
// down (so it can't exhaust the stack) and the body is refused.
static int instr_depth = 0, stmt_depth = 0;
static bool too_deep = false;

static void put_instr(std::string &out, instruction *i) {
    if (instr_depth >= max_nesting) {
        too_deep = true;
        out.push_back('-');
        return;
    }
    ++instr_depth;
    out += "( ";
    out += if_ops_name(i->opcode());
    out.push_back(' ');
    put_type(out, i->result_type());
    out.push_back(' ');
    put_operand(out, i->dst_op());
    switch (i->opcode()) {
    case io_ldc: out.push_back(' '); put_immed(out, static_cast<in_ldc *>(i)->value()); break;
    case io_btrue:
    case io_bfalse:
    case io_jmp: out.push_back(' '); put_sym(out, static_cast<in_bj *>(i)->target()); break;
    case io_lab: out.push_back(' '); put_sym(out, static_cast<in_lab *>(i)->label()); break;
    case io_gen: out.push_back(' '); put_quoted(out, static_cast<in_gen *>(i)->name()); break;
    default: break;
    }
    out.push_back(' ');
    put_uint(out, i->num_srcs());
    for (unsigned n = 0; n < i->num_srcs(); ++n) {
        out.push_back(' ');
        put_operand(out, i->src_op(n));
    }
    if (annote_list *al = i->annotes_if_any())
        for (annote_list_e *e = al->head(); e; e = e->next()) {
            annote *a = e->contents;
            if (annote_def *d = lookup_annote(a->name()))
                if (!d->is_output()) continue;
            out += " [ ";
            put_quoted(out, a->name());
            if (a->immeds())
                for (immed_list_e *m = a->immeds()->head(); m; m = m->next()) {
                    out.push_back(' ');
                    put_immed(out, m->contents);
                }
            out += " ]";
        }
    out += " )";
    --instr_depth;
}

static void put_operand(std::string &out, const operand &r) {
    if (r.is_symbol()) {
        out += "v:";
        put_sym(out, r.symbol());
    } else if (r.is_instr()) {
        put_instr(out, r.instr());
    } else {
        out.push_back('-');
    }
}

static void put_list(std::string &out, tree_node_list *l, file_set_entry *fse);

static void put_block_table(std::string &out, const char *word, block_symtab *st, file_set_entry *fse) {
    out += word;
    out.push_back(' ');
    put_quoted(out, st ? st->name() : "");
    out.push_back('\n');
    if (!st) return;
    put_table_contents(out, st, fse);
    if (st->is_proc())
        for (sym_node_list_e *e = static_cast<proc_symtab *>(st)->params()->head(); e; e = e->next()) {
            out += "param ";
            put_sym(out, e->contents);
            out.push_back('\n');
        }
}

static void put_node(std::string &out, tree_node *t, file_set_entry *fse) {
    switch (t->kind()) {
    case TREE_INSTR: {
        auto ti = static_cast<tree_instr *>(t);
        out += "instr ";
        if (ti->instr()) put_instr(out, ti->instr());
        else out.push_back('-');
        out.push_back('\n');
        put_annotes(out, t);
        break;
    }
    case TREE_BLOCK: {
        auto b = static_cast<tree_block *>(t);
        out += "block\n";
        put_annotes(out, t);
        put_block_table(out, "btable", b->symtab(), fse);
        put_list(out, b->body(), fse);
        out += "end\n";
        break;
    }
    case TREE_IF: {
        auto f = static_cast<tree_if *>(t);
        out += "if ";
        put_sym(out, f->jumpto());
        out.push_back('\n');
        put_annotes(out, t);
        out += "header\n";
        put_list(out, f->header(), fse);
        out += "then\n";
        put_list(out, f->then_part(), fse);
        out += "else\n";
        put_list(out, f->else_part(), fse);
        out += "end\n";
        break;
    }
    case TREE_LOOP: {
        auto l = static_cast<tree_loop *>(t);
        out += "loop ";
        put_sym(out, l->contlab());
        out.push_back(' ');
        put_sym(out, l->brklab());
        out.push_back(' ');
        put_sym(out, l->toplab());
        out.push_back('\n');
        put_annotes(out, t);
        out += "loopbody\n";
        put_list(out, l->body(), fse);
        out += "test\n";
        put_list(out, l->test(), fse);
        out += "end\n";
        break;
    }
    default: break;
    }
}

static void put_list(std::string &out, tree_node_list *l, file_set_entry *fse) {
    if (!l) return;
    if (stmt_depth >= max_nesting) {
        too_deep = true;
        return;
    }
    ++stmt_depth;
    for (tree_node_list_e *e = l->head(); e; e = e->next()) put_node(out, e->contents, fse);
    --stmt_depth;
}

bool lines_fit(const std::string &text, size_t from, std::string *why) {
    const char *p = text.data() + from, *end = text.data() + text.size();
    while (p < end) {
        const char *nl = (const char *)memchr(p, '\n', (size_t)(end - p));
        size_t n = (size_t)((nl ? nl : end) - p);
        if (n > max_line) {
            *why = "a line longer than " + std::to_string(max_line) + " bytes";
            return false;
        }
        p += n + 1;
    }
    return true;
}

bool write_body(std::string &out, proc_sym *p, std::string *why) {
    size_t from = out.size();
    instr_depth = stmt_depth = 0;
    too_deep = false;
    tree_proc *tp = p->block();
    out += "body ";
    put_sym(out, p);
    out.push_back('\n');
    out += "proc\n";
    put_annotes(out, tp);
    put_block_table(out, "ptable", tp->symtab(), p->file());
    put_list(out, tp->body(), p->file());
    out += "endbody\n";
    if (too_deep) {
        *why = std::string("procedure ") + p->name() + " nests deeper than " + std::to_string(max_nesting) + " levels";
        return false;
    }
    if (!lines_fit(out, from, why)) {
        *why = std::string("procedure ") + p->name() + ": " + *why;
        return false;
    }
    return true;
}

}  // namespace ir_format

using namespace ir_format;

void proc_sym::write_proc(file_set_entry *f) {
    if (!body || !f || !f->out_name()) return;
    if (fse != f) set_file(f);
    if (!f->io) f->io = new file_set_entry::io_state;
    if (!f->io->spool) f->io->spool = tmpfile();
    if (!f->io->spool) {
        if (f->io->write_error.empty()) f->io->write_error = std::string("cannot make a spool file: ") + strerror(errno);
        return;
    }
    std::string text, why;
    if (!write_body(text, this, &why)) {
        if (f->io->write_error.empty()) f->io->write_error = why;
        return;
    }
    // The spool is only appended to, except when exit_suif reads it back.
    if (f->io->spool_read) {
        fseek(f->io->spool, 0, SEEK_END);
        f->io->spool_read = false;
    }
    long at = f->io->spool_size;
    if (fwrite(text.data(), 1, text.size(), f->io->spool) != text.size()) {
        if (f->io->write_error.empty()) f->io->write_error = std::string("cannot spool a body: ") + strerror(errno);
        return;
    }
    f->io->spool_size += (long)text.size();
    spool_index = (long)f->io->bodies.size();
    f->io->bodies.push_back({this, at, (long)text.size()});
    written = true;
}

static bool copy_range(FILE *from, long offset, long length, FILE *to) {
    if (fseek(from, offset, SEEK_SET) != 0) return false;
    char buf[65536];
    while (length > 0) {
        size_t n = fread(buf, 1, length < (long)sizeof buf ? (size_t)length : sizeof buf, from);
        if (n == 0) return false;
        if (fwrite(buf, 1, n, to) != n) return false;
        length -= (long)n;
    }
    return true;
}

// The length of the body text starting at offset in the input: up to and
// including its "endbody" line.
static long body_length(FILE *in, long offset) {
    if (fseek(in, offset, SEEK_SET) != 0) return -1;
    char *line = nullptr;
    size_t cap = 0;
    ssize_t n;
    long len = 0;
    while ((n = getline(&line, &cap, in)) > 0) {
        len += n;
        if (std::strncmp(line, "endbody", 7) == 0 && (line[7] == '\n' || line[7] == 0)) {
            free(line);
            return len;
        }
    }
    free(line);
    return -1;
}

bool ir_write_entry(file_set_entry *fse, std::string *error) {
    const char *out_name = fse->out_name();
    if (!out_name) return true;
    if (fse->io && !fse->io->write_error.empty()) {
        *error = std::string(out_name) + ":0: cannot write: " + fse->io->write_error;
        return false;
    }
    // A device or a pipe (/dev/null, /dev/full) is written in place: renaming
    // a file over it would replace the device itself.
    struct stat st;
    bool in_place = stat(out_name, &st) == 0 && !S_ISREG(st.st_mode);
    std::string tmp = in_place ? std::string(out_name) : std::string(out_name) + ".tmp";
    FILE *out = fopen(tmp.c_str(), "wb");
    if (!out) {
        *error = std::string(out_name) + ":0: cannot write: " + strerror(errno);
        return false;
    }
    std::string text;
    text += ir_format_version;
    text += "\n";
    text += "target";
    const machine_params &m = target;
    for (int v : {(int)m.is_big_endian, m.addressable_size, (int)m.char_is_signed}) text += " " + std::to_string(v);
    for (int i = 0; i < num_C_types; ++i) text += " " + std::to_string(m.size[i]);
    for (int i = 0; i < num_C_types; ++i) text += " " + std::to_string(m.align[i]);
    text += " " + std::to_string(m.array_align) + " " + std::to_string(m.struct_align) + " " +
            std::to_string((int)m.ptr_diff_type);
    for (int i = 0; i < num_F_types; ++i) text += " " + std::to_string((int)m.fundamental_type[i]);
    for (int i = 0; i < num_F_types; ++i) text += fundamental_type_is_sign[i] ? " 1" : " 0";
    text += "\n";
    text += "ids " + std::to_string(ir_internal::peek_sym_id()) + " " + std::to_string(ir_internal::peek_type_id()) + "\n";
    text += "entry ";
    put_quoted(text, fse->name());
    text += "\n";
    put_annotes(text, fse);
    text += "table global ";
    put_quoted(text, fse->parent()->globals->name());
    text += "\n";
    put_table_contents(text, fse->parent()->globals, fse);
    text += "table file ";
    put_quoted(text, fse->symtab()->name());
    text += "\n";
    put_table_contents(text, fse->symtab(), fse);
    std::string why;
    bool ok = lines_fit(text, 0, &why) && fwrite(text.data(), 1, text.size(), out) == text.size();

    // Bodies, in the entry's procedure order: the last spooled text of each,
    // else the body in memory, else the untouched text of the input.
    for (proc_sym *p : fse->procs()) {
        if (!ok) break;
        const file_set_entry::io_state::spooled *last = nullptr;
        if (fse->io && p->spool_index >= 0 && (size_t)p->spool_index < fse->io->bodies.size() &&
            fse->io->bodies[(size_t)p->spool_index].proc == p)
            last = &fse->io->bodies[(size_t)p->spool_index];
        if (last && !p->is_in_memory()) {
            ok = copy_range(fse->io->spool, last->offset, last->length, out);
            fse->io->spool_read = true;
        } else if (p->is_in_memory()) {
            std::string b;
            ok = write_body(b, p, &why) && fwrite(b.data(), 1, b.size(), out) == b.size();
        } else if (p->body_offset >= 0 && fse->io && fse->io->in) {
            long len = body_length(fse->io->in, p->body_offset);
            ok = len > 0 && copy_range(fse->io->in, p->body_offset, len, out);
        } else if (last) {
            ok = copy_range(fse->io->spool, last->offset, last->length, out);
            fse->io->spool_read = true;
        }
    }
    if (ok) ok = fputs("end-of-ir\n", out) >= 0;
    if (fclose(out) != 0) ok = false;
    if (ok && !in_place && rename(tmp.c_str(), out_name) != 0) ok = false;
    if (!ok) {
        *error = std::string(out_name) + ":0: cannot write: " + (why.empty() ? strerror(errno ? errno : EIO) : why);
        if (!in_place) unlink(tmp.c_str());
        return false;
    }
    return true;
}
