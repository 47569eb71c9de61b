// One pass over the file-level declarations of each unit, in source order,
// puts symbols into the tables in order of first appearance. A declaration of
// a system header enters only when the user's code reaches it (used_decls):
// the program is what the user wrote and what it uses, not the whole C
// library. Symbols are
// remembered per unit by canonical declaration, and across units by name.
#include "cfront/symbol_linker.h"

#include "cfront/body_builder.h"
#include "cfront/orig_spelling.h"
#include "cfront/type_converter.h"
#include "cfront/used_decls.h"
#include "ir/ir.h"

#include <clang/AST/ASTContext.h>
#include <clang/AST/Decl.h>
#include <clang/AST/RecursiveASTVisitor.h>
#include <clang/Basic/SourceManager.h>
#include <clang/Basic/TargetInfo.h>
#include <llvm/ADT/DenseMap.h>
#include <llvm/ADT/StringMap.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace {

file_set_entry *entry = nullptr;
clang::ASTContext *ctx = nullptr;

llvm::StringMap<proc_sym *> global_procs;
llvm::StringMap<var_sym *> global_vars;
llvm::DenseMap<const clang::Decl *, sym_node *> unit_syms;  // canonical decl -> symbol
std::vector<var_sym *> linked_vars;                            // global and file variables, in order
std::unordered_set<var_sym *> read_vars;
std::unordered_set<var_sym *> user_declared_vars;
std::vector<proc_sym *> linked_procs;  // global functions, in order
std::unordered_set<proc_sym *> user_declared_procs;
// Where each symbol was first seen (its definition, for a function), for
// warnings; a coordinate rather than its text, as there is one per symbol.
llvm::DenseMap<sym_node *, coord> first_place;
// The declaration whose type the symbol has, for warnings about types.
llvm::DenseMap<sym_node *, coord> type_place;
// What the unit's own code reaches of the system headers.
llvm::DenseSet<const clang::Decl *> unit_used;
std::unordered_set<std::string> fundamental_seen;

std::string place_text(const coord &c) {
    return std::string(c.file ? c.file : "<built-in>") + ":" + std::to_string(c.line);
}

std::string place_text(const clang::Decl *d) { return place_text(coord_of(d)); }

bool in_system_header(const clang::Decl *d) { return decl_in_system_header(*ctx, d); }

// Declarations of system headers and of the compiler count only when the
// user's code reaches them.
bool wanted(const clang::Decl *d) {
    return !in_system_header(d) || unit_used.count(d->getCanonicalDecl());
}

void set_coordinates(suif_object *o, const clang::Decl *d) {
    delete o->get_annote(k_source_coordinates);
    o->annotes()->append(coordinate_to_annote(k_source_coordinates, coord_of(d)));
}

bool name_taken(const char *name) {
    global_or_file_symtab *ft = entry->symtab();
    return global_st->lookup_sym(name, SYM_PROC, false) || global_st->lookup_sym(name, SYM_VAR, false) ||
           ft->lookup_sym(name, SYM_PROC, false) || ft->lookup_sym(name, SYM_VAR, false);
}

// A name that no symbol of the program has, for a static of `file`: the
// source name with the base name of the file, then with a number too.
std::string unique_static_name(const std::string &name, const char *file_path) {
    std::string file = file_path ? file_path : "";
    size_t slash = file.find_last_of('/');
    if (slash != std::string::npos) file = file.substr(slash + 1);
    size_t dot = file.find('.');
    if (dot != std::string::npos) file = file.substr(0, dot);
    for (char &c : file)
        if (!isalnum((unsigned char)c)) c = '_';
    std::string base = name + "_" + file;
    std::string cand = base;
    for (int i = 2; name_taken(cand.c_str()); i++) cand = base + "_" + std::to_string(i);
    return cand;
}

// The IR name of a new static: its own if free.
std::string static_name(const std::string &name, const clang::Decl *d) {
    if (!name_taken(name.c_str())) return name;
    return unique_static_name(name, coord_of(d).file);
}

// A global that takes a name a static of the file table already has: the
// static moves aside, so that every name of the program stays one symbol.
void move_static_aside(const std::string &name) {
    global_or_file_symtab *ft = entry->symtab();
    sym_node *s = ft->lookup_sym(name.c_str(), SYM_PROC, false);
    if (!s) s = ft->lookup_sym(name.c_str(), SYM_VAR, false);
    if (!s) return;
    coord c;
    find_coordinate(s, &c);
    if (!c.file && s->is_var() && static_cast<var_sym *>(s)->definition())
        find_coordinate(static_cast<var_sym *>(s)->definition(), &c);
    std::string cand = unique_static_name(name, c.file);
    s->set_true_name(name.c_str());
    s->set_name(cand.c_str());
}

func_type *function_type_of(const clang::FunctionDecl *fd) {
    const clang::FunctionDecl *last = fd->getMostRecentDecl();
    bool written = false;
    for (const clang::FunctionDecl *r : fd->redecls())
        if (r->hasWrittenPrototype()) written = true;
    if (!written && last->getType()->isFunctionProtoType() && !fd->isImplicit())
        return static_cast<func_type *>(ir_type(ctx->getFunctionNoProtoType(last->getReturnType())));
    return static_cast<func_type *>(ir_type(last->getType()));
}

// The unit's view of a variable's type, and in *from the declaration that
// gives it; an array of unknown bound that clang completed at the end of the
// unit keeps its unknown bound.
type_node *variable_type_of(const clang::VarDecl *vd, bool *tentative_array, const clang::VarDecl **from = nullptr) {
    *tentative_array = false;
    for (const clang::VarDecl *r : vd->redecls()) {
        if (r->isThisDeclarationADefinition() == clang::VarDecl::TentativeDefinition && r->getTypeSourceInfo() &&
            r->getTypeSourceInfo()->getType()->isIncompleteArrayType() && r->isFileVarDecl()) {
            *tentative_array = true;
            if (from) *from = r;
            return ir_type(r->getTypeSourceInfo()->getType());
        }
    }
    if (from) *from = vd->getMostRecentDecl();
    return ir_type(vd->getMostRecentDecl()->getType());
}

void merge_proc_type(proc_sym *p, const clang::FunctionDecl *fd) {
    func_type *t = function_type_of(fd);
    if (p->type() == t) return;
    if (!t->args_known()) return;
    if (!p->type()->args_known()) {
        p->set_type(t);
        type_place[p] = coord_of(fd->getMostRecentDecl());
        annotate_orig_types(p, *ctx, fd->getMostRecentDecl());
        return;
    }
    fprintf(stderr, "qvt-cfront: warning: function '%s' is declared with different types at %s and %s\n",
            p->true_name(), place_text(type_place[p]).c_str(), place_text(fd->getMostRecentDecl()).c_str());
}

// 1 if b is a, but for an array bound that b knows and a doesn't; -1 the
// other way round; 0 otherwise. C calls such types compatible, and the
// complete one is the variable's type.
int completes(type_node *a, type_node *b) {
    while (a->op() == b->op() && a->is_modifier()) {
        a = static_cast<modifier_type *>(a)->base();
        b = static_cast<modifier_type *>(b)->base();
    }
    if (!a->is_array() || !b->is_array()) return 0;
    auto *aa = static_cast<array_type *>(a), *ab = static_cast<array_type *>(b);
    if (aa->elem_type() != ab->elem_type() || aa->are_bounds_unknown() == ab->are_bounds_unknown()) return 0;
    return aa->are_bounds_unknown() ? 1 : -1;
}

void merge_var_type(var_sym *v, type_node *t, const clang::VarDecl *from) {
    if (v->type() == t) return;
    int c = completes(v->type(), t);
    if (c == 1) {
        v->set_type(t);
        type_place[v] = coord_of(from);
    }
    if (c != 0) return;
    fprintf(stderr, "qvt-cfront: warning: variable '%s' is declared with different types at %s and %s\n",
            v->true_name(), place_text(type_place[v]).c_str(), place_text(from).c_str());
}

void define_var(var_sym *v, const clang::VarDecl *def, bool tentative_array) {
    if (v->has_var_def()) return;
    var_def *d = new var_def(v, (int)ctx->toBits(ctx->getDeclAlign(def)));
    v->parent()->add_def(d);
    set_coordinates(d, def);
    // A defined variable is located by its definition.
    delete v->get_annote(k_source_coordinates);
    if (tentative_array) v->set_flag(SYMFLAG_TENTATIVE_ARRAY);
}

// References from the initialiser of a global: they read what they name,
// and a function named there is part of the program.
class init_visitor : public clang::RecursiveASTVisitor<init_visitor> {
public:
    bool VisitDeclRefExpr(clang::DeclRefExpr *e) {
        if (auto *fd = llvm::dyn_cast<clang::FunctionDecl>(e->getDecl())) linked_proc(fd);
        if (auto *vd = llvm::dyn_cast<clang::VarDecl>(e->getDecl()))
            if (vd->hasLinkage()) note_read(linked_var(vd));
        return true;
    }
};

void add_function(const clang::FunctionDecl *fd) {
    if (!wanted(fd)) return;
    proc_sym *p = linked_proc(fd);
    if (!in_system_header(fd)) user_declared_procs.insert(p);
    if (!fd->doesThisDeclarationHaveABody()) return;
    if (p->src_lang() != src_unknown) {
        if (strcmp(p->name(), "main") == 0)
            fprintf(stderr,
                    "qvt-cfront: warning: two programs meet: 'main' is defined at %s and %s; the first is kept. "
                    "Give the files of one program, or take one out of a compilation database with -db-files "
                    "or -db-outputs\n",
                    place_text(first_place[p]).c_str(), place_text(fd).c_str());
        else
            fprintf(stderr, "qvt-cfront: warning: function '%s' is defined at %s and %s; the first is kept\n",
                    p->true_name(), place_text(first_place[p]).c_str(), place_text(fd).c_str());
        return;
    }
    p->set_src_lang(src_c);
    p->set_file(entry);
    set_coordinates(p, fd);
    first_place[p] = coord_of(fd);
    annotate_orig_types(p, *ctx, fd);
    build_body(p, fd, *ctx);
}

void add_variable(const clang::VarDecl *vd) {
    if (!wanted(vd)) return;
    var_sym *v = linked_var(vd);
    if (!in_system_header(vd)) user_declared_vars.insert(v);
    if (vd->isThisDeclarationADefinition() != clang::VarDecl::DeclarationOnly) {
        bool tentative_array = false;
        variable_type_of(vd, &tentative_array);
        const clang::VarDecl *def = vd->getDefinition();
        define_var(v, def ? def : vd, tentative_array);
    }
    if (const clang::Expr *init = vd->getInit()) init_visitor().TraverseStmt(const_cast<clang::Expr *>(init));
}

// A user's own typedef of a fundamental type replaces the target's.
void add_typedef(const clang::TypedefNameDecl *td) {
    if (in_system_header(td)) return;
    ir_type(td->getUnderlyingType());
    std::string name = td->getName().str();
    const char *annote_name = nullptr;
    if (name == "size_t") annote_name = k_size_t;
    else if (name == "ptrdiff_t") annote_name = k_ptrdiff_t;
    else if (name == "wchar_t") annote_name = k_wchar_t;
    else if (name == "wint_t") annote_name = k_wint_t;
    if (!annote_name || !fundamental_seen.insert(name).second) return;
    clang::QualType t = ctx->getCanonicalType(td->getUnderlyingType());
    if (const auto *et = t->getAs<clang::EnumType>()) t = et->getDecl()->getIntegerType();
    int bits = (int)ctx->getTypeSize(t);
    const clang::TargetInfo &ti = ctx->getTargetInfo();
    C_types c = C_none;
    // The smallest C type of that size, as the target's headers would name it.
    if (bits == (int)ti.getCharWidth()) c = C_char;
    else if (bits == (int)ti.getShortWidth()) c = C_short;
    else if (bits == (int)ti.getIntWidth()) c = C_int;
    else if (bits == (int)ti.getLongWidth()) c = C_long;
    else if (bits == (int)ti.getLongLongWidth()) c = C_longlong;
    if (const auto *bt = t->getAs<clang::BuiltinType>()) {
        switch (bt->getKind()) {
        case clang::BuiltinType::Long:
        case clang::BuiltinType::ULong: c = C_long; break;
        case clang::BuiltinType::LongLong:
        case clang::BuiltinType::ULongLong: c = C_longlong; break;
        default: break;
        }
    }
    immed_list *l = new immed_list;
    l->append(immed(t->isSignedIntegerOrEnumerationType() ? 1 : 0));
    l->append(immed((int)c));
    global_st->append_annote(annote_name, l);
}

// Types the user defines enter the program where they are defined, used or
// not; those of system headers only through a use.
void add_tag(const clang::TagDecl *td) {
    if (in_system_header(td) || !td->isThisDeclarationADefinition()) return;
    ir_type(ctx->getTagDeclType(td));
}

void add_decls(const clang::DeclContext *dc) {
    for (const clang::Decl *d : dc->decls()) {
        if (const auto *fd = llvm::dyn_cast<clang::FunctionDecl>(d)) add_function(fd);
        else if (const auto *vd = llvm::dyn_cast<clang::VarDecl>(d)) add_variable(vd);
        else if (const auto *tag = llvm::dyn_cast<clang::TagDecl>(d)) add_tag(tag);
        else if (const auto *td = llvm::dyn_cast<clang::TypedefNameDecl>(d)) add_typedef(td);
        else if (const auto *ls = llvm::dyn_cast<clang::LinkageSpecDecl>(d)) add_decls(ls);
    }
}

}  // namespace

coord coord_of(const clang::Decl *d) {
    coord c;
    const clang::SourceManager &sm = ctx->getSourceManager();
    clang::SourceLocation loc = d->getLocation();
    if (loc.isInvalid()) return c;
    clang::PresumedLoc p = sm.getPresumedLoc(sm.getExpansionLoc(loc));
    if (p.isInvalid()) return c;
    c.file = intern(p.getFilename());
    c.line = (int)p.getLine();
    c.column = (int)p.getColumn();
    return c;
}

void link_begin(file_set_entry *fse) {
    entry = fse;
    global_procs.clear();
    global_vars.clear();
    linked_vars.clear();
    read_vars.clear();
    user_declared_vars.clear();
    linked_procs.clear();
    user_declared_procs.clear();
    first_place.clear();
    type_place.clear();
    fundamental_seen.clear();
}

proc_sym *linked_proc(const clang::FunctionDecl *fd) {
    const clang::Decl *canon = fd->getCanonicalDecl();
    auto it = unit_syms.find(canon);
    if (it != unit_syms.end()) {
        return static_cast<proc_sym *>(it->second);
    }
    llvm::StringRef name = fd->getName();
    proc_sym *p = nullptr;
    bool is_new = false;
    if (fd->getFormalLinkage() == clang::InternalLinkage) {
        std::string ir_name = static_name(name.str(), fd);
        p = entry->symtab()->new_proc(function_type_of(fd), src_unknown, ir_name.c_str());
        p->set_true_name(name.str().c_str());
        p->append_annote(k_static_sym);
        is_new = true;
    } else {
        auto g = global_procs.find(name);
        if (g != global_procs.end()) {
            p = g->second;
            merge_proc_type(p, fd);
        } else {
            move_static_aside(name.str());
            p = global_st->new_proc(function_type_of(fd), src_unknown, name.str().c_str());
            global_procs[name] = p;
            linked_procs.push_back(p);
            is_new = true;
        }
    }
    if (is_new) {
        // A function first met in a call that no declaration precedes is the user's.
        if (!in_system_header(fd)) user_declared_procs.insert(p);
        p->set_userdef();
        set_coordinates(p, fd);
        first_place[p] = coord_of(fd);
        type_place[p] = coord_of(fd->getMostRecentDecl());
        annotate_orig_types(p, *ctx, fd->getMostRecentDecl());
    }
    bool is_inline = false;
    for (const clang::FunctionDecl *r : fd->redecls())
        if (r->isInlineSpecified()) is_inline = true;
    if (is_inline && !p->peek_annote(k_inline)) p->append_annote(k_inline);
    if (name.startswith("__builtin_") && fd->getBuiltinID() != 0 && !p->peek_annote(k_builtin))
        p->append_annote(k_builtin);
    unit_syms[canon] = p;
    return p;
}

var_sym *linked_var(const clang::VarDecl *vd) {
    const clang::Decl *canon = vd->getCanonicalDecl();
    auto it = unit_syms.find(canon);
    if (it != unit_syms.end()) return static_cast<var_sym *>(it->second);
    bool tentative_array = false;
    const clang::VarDecl *type_from = vd;
    type_node *t = variable_type_of(vd, &tentative_array, &type_from);
    llvm::StringRef name = vd->getName();
    var_sym *v = nullptr;
    bool is_new = false;
    if (vd->getFormalLinkage() == clang::InternalLinkage) {
        std::string ir_name = static_name(name.str(), vd);
        v = entry->symtab()->new_var(t, ir_name.c_str());
        v->set_true_name(name.str().c_str());
        v->append_annote(k_static_sym);
        is_new = true;
    } else {
        auto g = global_vars.find(name);
        if (g != global_vars.end()) {
            v = g->second;
            merge_var_type(v, t, type_from);
        } else {
            move_static_aside(name.str());
            v = global_st->new_var(t, name.str().c_str());
            global_vars[name] = v;
            is_new = true;
        }
    }
    if (!in_system_header(vd)) user_declared_vars.insert(v);
    if (is_new) {
        v->set_userdef();
        set_coordinates(v, vd);
        first_place[v] = coord_of(vd);
        type_place[v] = coord_of(type_from);
        linked_vars.push_back(v);
    }
    unit_syms[canon] = v;
    return v;
}

void note_read(var_sym *v) {
    // Only variables of the global and file tables are asked about; locals
    // are freed with their body, and their addresses come back.
    base_symtab *t = v->parent();
    if (t && (t->is_global() || t->is_file())) read_vars.insert(v);
}

void link_unit(clang::ASTContext &c, const std::vector<pragma_words> &pragmas) {
    ctx = &c;
    unit_syms.clear();
    unit_used.clear();
    collect_used_decls(c, &unit_used);
    types_begin_unit(c);
    add_decls(c.getTranslationUnitDecl());
    for (const pragma_words &words : pragmas) {
        immed_list *l = new immed_list;
        for (const std::string &w : words) l->append(immed(w.c_str()));
        entry->append_annote(k_pragma, l);
    }
    types_end_unit();
    unit_syms.clear();
    ctx = nullptr;
}

void link_finish(const std::vector<std::string> &tasks, std::vector<std::string> *missing, bool analyser_libc) {
    for (var_sym *v : linked_vars) {
        if (!read_vars.count(v)) v->append_annote(k_never_read);
        if (!v->has_var_def() && !user_declared_vars.count(v) && !v->peek_annote(k_static_sym))
            v->set_flag(SYMFLAG_STANDARD_STUBBED);
    }
    // The analyser knows its C library better than a generic stub can say it:
    // a function that the user neither declares nor defines is left to it.
    if (analyser_libc)
        for (proc_sym *p : linked_procs)
            if (p->src_lang() == src_unknown && !user_declared_procs.count(p) && !p->peek_annote(k_builtin))
                p->append_annote(k_builtin);
    for (const std::string &t : tasks) {
        proc_sym *p = global_st->lookup_proc(t.c_str(), false);
        if (!p) p = entry->symtab()->lookup_proc(t.c_str(), false);
        if (!p) {
            missing->push_back(t);
            continue;
        }
        if (!p->peek_annote(k_is_a_task)) p->append_annote(k_is_a_task);
    }
}
