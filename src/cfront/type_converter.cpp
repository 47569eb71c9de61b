// Types are converted from their canonical form, so typedefs vanish and two
// spellings of one type meet in one cache entry. Non-aggregate nodes are
// shared through install_type, which finds an equal node already installed.
// Structs, unions and enums are matched across units by C's compatibility
// rule: a definition's signature spells its members in order (names, bit
// widths, types, with structs held by value spelled out and those behind a
// pointer by tag only, so no signature is cyclic) and its layout. One tag with
// one signature is one type wherever it is defined; a tag with a second
// signature is a second type, whose IR tag is made unique and which keeps the
// source's tag in k_source_tag. A tag only declared in one unit is the type
// that another unit defines. Unnamed tags get a number as their IR name, so
// that they can't be mistaken for a C tag.
#include "cfront/type_converter.h"

#include "ir/ir.h"

#include <clang/AST/ASTContext.h>
#include <clang/AST/Attr.h>
#include <clang/AST/Decl.h>
#include <clang/AST/RecordLayout.h>
#include <llvm/ADT/DenseMap.h>
#include <llvm/ADT/StringExtras.h>
#include <clang/Basic/SourceManager.h>
#include <clang/Basic/TargetInfo.h>

#include <map>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace {

// The unit being converted.
clang::ASTContext *ctx = nullptr;
llvm::DenseMap<const void *, type_node *> unit_cache;

// Tags across units.
struct tag_entry {
    type_node *node;
    bool complete;
    std::string signature;  // of the definition, once complete
};
std::map<std::string, type_node *> tag_by_place;           // kind + definition place + signature
std::map<std::string, std::vector<tag_entry>> tag_by_name;  // kind + tag
std::unordered_set<std::string> ir_tags;                    // every IR tag given, of all kinds
int unnamed_tag_counter = 0;
// The unit's signatures, by definition.
llvm::DenseMap<const clang::TagDecl *, std::string> unit_signatures;

type_node *install(type_node *t) {
    type_node *canon = global_st->install_type(t);
    if (canon != t) delete t;
    return canon;
}

std::string place_of(const clang::Decl *d) {
    const clang::SourceManager &sm = ctx->getSourceManager();
    clang::SourceLocation loc = sm.getExpansionLoc(d->getLocation());
    const clang::FileEntry *fe = sm.getFileEntryForID(sm.getFileID(loc));
    std::string file = fe ? std::string(fe->tryGetRealPathName()) : std::string("<built-in>");
    if (file.empty() && fe) file = std::string(fe->getName());
    return file + ":" + std::to_string(sm.getFileOffset(loc));
}

const char *kind_word(const clang::TagDecl *d) {
    return d->isUnion() ? "union " : d->isEnum() ? "enum " : "struct ";
}

std::string signature_of(const clang::TagDecl *def);

// The signature of a type: by_value tells whether a struct met here is held
// by value (its members count) or behind a pointer (its tag only).
std::string type_signature(clang::QualType qt, bool by_value) {
    clang::QualType t = ctx->getCanonicalType(qt);
    std::string q = std::string(t.isConstQualified() ? "const " : "") + (t.isVolatileQualified() ? "volatile " : "");
    const clang::Type *ty = t.getTypePtr();
    if (const auto *pt = llvm::dyn_cast<clang::PointerType>(ty)) return q + "*" + type_signature(pt->getPointeeType(), false);
    if (const auto *at = llvm::dyn_cast<clang::ConstantArrayType>(ty))
        return q + "[" + std::to_string(at->getSize().getZExtValue()) + "]" + type_signature(at->getElementType(), by_value);
    if (const auto *at = llvm::dyn_cast<clang::ArrayType>(ty)) return q + "[]" + type_signature(at->getElementType(), by_value);
    if (const auto *ft = llvm::dyn_cast<clang::FunctionType>(ty)) {
        std::string text = q + "fn(";
        if (const auto *proto = llvm::dyn_cast<clang::FunctionProtoType>(ft)) {
            for (clang::QualType p : proto->getParamTypes()) text += type_signature(p, false) + ",";
            if (proto->isVariadic()) text += "...";
        } else {
            text += "?";
        }
        return text + ")" + type_signature(ft->getReturnType(), false);
    }
    if (const auto *tt = llvm::dyn_cast<clang::TagType>(ty)) {
        const clang::TagDecl *d = tt->getDecl();
        std::string text = q + kind_word(d) + d->getName().str();
        const clang::TagDecl *def = d->getDefinition();
        if (by_value && def) text += "{" + signature_of(def) + "}";
        return text;
    }
    return q + clang::QualType(ty, 0).getAsString();
}

// The signature of a definition: its layout, then its members.
std::string signature_of(const clang::TagDecl *def) {
    auto it = unit_signatures.find(def);
    if (it != unit_signatures.end()) return it->second;
    std::string text;
    if (const auto *ed = llvm::dyn_cast<clang::EnumDecl>(def)) {
        text = type_signature(ed->getIntegerType(), false) + ":";
        for (const clang::EnumConstantDecl *c : ed->enumerators())
            text += c->getName().str() + "=" + llvm::toString(c->getInitVal(), 10) + ",";
    } else {
        const auto *rd = llvm::cast<clang::RecordDecl>(def);
        const clang::ASTRecordLayout &layout = ctx->getASTRecordLayout(rd);
        text = std::to_string(layout.getSize().getQuantity()) + "/" + std::to_string(layout.getAlignment().getQuantity()) + ":";
        for (const clang::FieldDecl *fd : rd->fields()) {
            text += fd->getName().str();
            if (fd->isBitField()) text += ":" + std::to_string(fd->getBitWidthValue(*ctx));
            text += " " + type_signature(fd->getType(), true) + ";";
        }
    }
    unit_signatures[def] = text;
    return text;
}

// A tag that no type of the program has yet, for a second type of one
// source tag: the tag with the base name of its file, then with a number too.
std::string unique_tag(const std::string &tag, const clang::Decl *def) {
    const clang::SourceManager &sm = ctx->getSourceManager();
    clang::PresumedLoc p = sm.getPresumedLoc(sm.getExpansionLoc(def->getLocation()));
    std::string file = p.isValid() ? p.getFilename() : "";
    size_t slash = file.find_last_of('/');
    if (slash != std::string::npos) file = file.substr(slash + 1);
    size_t dot = file.find('.');
    if (dot != std::string::npos) file = file.substr(0, dot);
    for (char &c : file)
        if (!isalnum((unsigned char)c)) c = '_';
    std::string base = tag + "_" + file;
    std::string cand = base;
    for (int i = 2; ir_tags.count(cand); i++) cand = base + "_" + std::to_string(i);
    return cand;
}

// A new tag node of d under its source tag, or under a unique one (with the
// source tag kept) if another type has that tag already.
type_node *new_tag(const clang::TagDecl *d, type_node *(*make)(const clang::TagDecl *, const char *)) {
    std::string name = d->getName().str();
    if (name.empty()) return make(d, std::to_string(++unnamed_tag_counter).c_str());
    if (!ir_tags.count(name)) {
        ir_tags.insert(name);
        return make(d, name.c_str());
    }
    std::string ir_name = unique_tag(name, d->getDefinition() ? d->getDefinition() : d);
    ir_tags.insert(ir_name);
    type_node *t = make(d, ir_name.c_str());
    immed_list *l = new immed_list;
    l->append(immed(name.c_str()));
    t->append_annote(k_source_tag, l);
    return t;
}

// The tag node of d: found by place or by name and signature, or made by
// make() and registered. *fresh tells whether the caller must fill it in.
type_node *find_tag(const clang::TagDecl *d, bool *fresh, type_node *(*make)(const clang::TagDecl *, const char *)) {
    const clang::TagDecl *def = d->getDefinition();
    std::string name = d->getName().str();
    std::string name_key = kind_word(d) + name;
    *fresh = false;
    if (def) {
        std::string sig = signature_of(def);
        std::string key = kind_word(d) + place_of(def) + "\n" + sig;
        auto it = tag_by_place.find(key);
        if (it != tag_by_place.end()) return it->second;
        if (!name.empty()) {
            std::vector<tag_entry> &entries = tag_by_name[name_key];
            for (tag_entry &e : entries) {
                if (e.complete && e.signature == sig) {
                    tag_by_place[key] = e.node;
                    return e.node;
                }
            }
            // A tag that some unit only declared so far takes this definition.
            for (tag_entry &e : entries) {
                if (!e.complete) {
                    e.complete = true;
                    e.signature = sig;
                    tag_by_place[key] = e.node;
                    *fresh = true;
                    return e.node;
                }
            }
        }
        type_node *t = new_tag(d, make);
        tag_by_place[key] = t;
        if (!name.empty()) tag_by_name[name_key].push_back(tag_entry{t, true, sig});
        *fresh = true;
        return t;
    }
    // Only declared here: any node of that tag will do.
    if (!name.empty()) {
        auto &v = tag_by_name[name_key];
        if (!v.empty()) return v.front().node;
    }
    type_node *t = new_tag(d, make);
    if (!name.empty()) tag_by_name[name_key].push_back(tag_entry{t, false, ""});
    return t;
}

type_node *make_struct(const clang::TagDecl *d, const char *name) {
    type_ops op = d->isUnion() ? TYPE_UNION : TYPE_STRUCT;
    return install(new struct_type(op, 0, name, 0));
}

type_node *make_enum(const clang::TagDecl *d, const char *name) {
    const clang::EnumDecl *ed = llvm::cast<clang::EnumDecl>(d);
    clang::QualType base = ed->getIntegerType();
    int size = base.isNull() ? (int)ctx->getTargetInfo().getIntWidth() : (int)ctx->getTypeSize(base);
    bool sgn = base.isNull() ? true : base->isSignedIntegerType();
    return install(new enum_type(name, size, sgn, 0));
}

// The packing of a record in bytes, or 0 if it isn't packed.
int packing_of(const clang::RecordDecl *rd) {
    if (rd->hasAttr<clang::PackedAttr>()) return 1;
    if (const auto *a = rd->getAttr<clang::MaxFieldAlignmentAttr>()) return (int)(a->getAlignment() / ctx->getCharWidth());
    return 0;
}

void fill_struct(struct_type *st, const clang::RecordDecl *rd) {
    const clang::ASTRecordLayout &layout = ctx->getASTRecordLayout(rd);
    st->set_size((int)ctx->toBits(layout.getSize()));
    int anon_count = 0, filler_count = 0;
    struct field_info {
        type_node *type;
        const char *name;
        int width;
        int offset;
    };
    std::vector<field_info> fields;
    for (const clang::FieldDecl *fd : rd->fields()) {
        int offset = (int)layout.getFieldOffset(fd->getFieldIndex());
        clang::QualType ft = fd->getType();
        if (fd->isBitField()) {
            int bits = (int)fd->getBitWidthValue(*ctx);
            if (bits == 0) continue;  // only moves the next field; no storage of its own
            clang::QualType canon = ctx->getCanonicalType(ft);
            bool sgn = canon->isSignedIntegerOrEnumerationType();
            type_node *t = ir_int_of(bits, sgn);
            if (canon.isVolatileQualified()) t = install(new modifier_type(TYPE_VOLATILE, t));
            if (canon.isConstQualified()) t = install(new modifier_type(TYPE_CONST, t));
            const char *name = intern(fd->getName().empty() ? ("__qvt_unused_field" + std::to_string(filler_count++)).c_str()
                                                            : fd->getName().str().c_str());
            fields.push_back({t, name, (int)ctx->getTypeSize(ft), offset});
            continue;
        }
        const char *name;
        if (fd->isAnonymousStructOrUnion() || fd->getName().empty())
            name = intern(("qvtunnsubs" + std::to_string(anon_count++)).c_str());
        else
            name = intern(fd->getName().str().c_str());
        fields.push_back({ir_type(ft), name, 0, offset});
    }
    st->set_num_fields((unsigned)fields.size());
    for (unsigned i = 0; i < fields.size(); i++) {
        st->set_field_type(i, fields[i].type);
        st->set_field_name(i, fields[i].name);
        st->set_field_storage_width(i, fields[i].width);
        st->set_field_offset(i, fields[i].offset);
    }
    if (int pack = packing_of(rd)) {
        immed_list *l = new immed_list;
        l->append(immed(pack));
        st->append_annote(k_max_align, l);
    }
}

void fill_enum(enum_type *et, const clang::EnumDecl *ed) {
    std::vector<const clang::EnumConstantDecl *> members(ed->enumerator_begin(), ed->enumerator_end());
    et->set_num_values((unsigned)members.size());
    for (unsigned i = 0; i < members.size(); i++) {
        et->set_member(i, members[i]->getName().str().c_str());
        const llvm::APSInt &v = members[i]->getInitVal();
        et->set_value(i, i_integer(llvm::toString(v, 10).c_str(), 10));
    }
}

type_node *convert_builtin(const clang::BuiltinType *bt) {
    using clang::BuiltinType;
    switch (bt->getKind()) {
    case BuiltinType::Void: return type_void;
    case BuiltinType::Char_S:
    case BuiltinType::Char_U: return type_char;
    case BuiltinType::SChar: return type_signed_char;
    case BuiltinType::UChar: return type_unsigned_char;
    case BuiltinType::Short: return type_signed_short;
    case BuiltinType::UShort: return type_unsigned_short;
    case BuiltinType::Int: return type_signed;
    case BuiltinType::UInt: return type_unsigned;
    case BuiltinType::Long: return type_signed_long;
    case BuiltinType::ULong: return type_unsigned_long;
    case BuiltinType::LongLong: return type_signed_longlong;
    case BuiltinType::ULongLong: return type_unsigned_longlong;
    case BuiltinType::Float: return type_float;
    case BuiltinType::Double: return type_double;
    case BuiltinType::LongDouble: return type_longdouble;
    default: break;
    }
    int size = (int)ctx->getTypeSize(clang::QualType(bt, 0));
    if (bt->isFloatingPoint()) return install(new base_type(TYPE_FLOAT, size, true));
    if (bt->isIntegerType()) return ir_int_of(size, bt->isSignedInteger());
    // Anything else of the target (vectors of a builtin kind, ...): bytes.
    return install(new array_type(type_unsigned_char, array_bound(0), array_bound(size / 8 - 1)));
}

type_node *convert_function(const clang::FunctionType *ft) {
    type_node *ret = ir_type(ft->getReturnType());
    const auto *proto = llvm::dyn_cast<clang::FunctionProtoType>(ft);
    if (!proto) return install(new func_type(false, ret));
    unsigned n = proto->getNumParams();
    bool varargs = proto->isVariadic();
    func_type *f = new func_type(ret, n + (varargs ? 2 : 0), varargs, true);
    for (unsigned i = 0; i < n; i++) f->set_arg_type(i, ir_type(proto->getParamType(i)));
    if (varargs) {
        // The count of the variable arguments and the array of their addresses.
        f->set_arg_type(n, type_signed);
        f->set_arg_type(n + 1, install(new ptr_type(install(new ptr_type(type_void)))));
    }
    return install(f);
}

type_node *convert_unqualified(const clang::Type *t) {
    if (const auto *bt = llvm::dyn_cast<clang::BuiltinType>(t)) return convert_builtin(bt);
    if (const auto *pt = llvm::dyn_cast<clang::PointerType>(t))
        return install(new ptr_type(ir_type(pt->getPointeeType())));
    if (llvm::isa<clang::BlockPointerType>(t)) return install(new ptr_type(type_void));
    if (const auto *at = llvm::dyn_cast<clang::ConstantArrayType>(t)) {
        type_node *elem = ir_type(at->getElementType());
        uint64_t n = at->getSize().getZExtValue();
        // No elements (a flexible member in GNU form), or more than a bound holds.
        if (n == 0 || n - 1 > (uint64_t)INT32_MAX) return install(new array_type(elem, array_bound(0), unknown_bound));
        return install(new array_type(elem, array_bound(0), array_bound((int)(n - 1))));
    }
    if (const auto *at = llvm::dyn_cast<clang::ArrayType>(t))
        return install(new array_type(ir_type(at->getElementType()), array_bound(0), unknown_bound));
    if (const auto *ft = llvm::dyn_cast<clang::FunctionType>(t)) return convert_function(ft);
    if (const auto *rt = llvm::dyn_cast<clang::RecordType>(t)) {
        bool fresh = false;
        type_node *n = find_tag(rt->getDecl(), &fresh, make_struct);
        // Cache before the fields, so that a struct pointing to itself ends.
        unit_cache[t] = n;
        if (fresh) fill_struct(static_cast<struct_type *>(n), rt->getDecl()->getDefinition());
        return n;
    }
    if (const auto *et = llvm::dyn_cast<clang::EnumType>(t)) {
        bool fresh = false;
        type_node *n = find_tag(et->getDecl(), &fresh, make_enum);
        unit_cache[t] = n;
        if (fresh) fill_enum(static_cast<enum_type *>(n), et->getDecl()->getDefinition());
        return n;
    }
    if (const auto *ct = llvm::dyn_cast<clang::ComplexType>(t)) {
        // A complex number is two numbers of its element type side by side.
        return install(new array_type(ir_type(ct->getElementType()), array_bound(0), array_bound(1)));
    }
    if (const auto *at = llvm::dyn_cast<clang::AtomicType>(t)) return ir_type(at->getValueType());
    if (const auto *bi = llvm::dyn_cast<clang::BitIntType>(t)) return ir_int_of((int)bi->getNumBits(), bi->isSigned());
    if (const auto *vt = llvm::dyn_cast<clang::VectorType>(t)) {
        type_node *elem = ir_type(vt->getElementType());
        return install(new array_type(elem, array_bound(0), array_bound((int)vt->getNumElements() - 1)));
    }
    int size = t->isIncompleteType() ? 0 : (int)ctx->getTypeSize(clang::QualType(t, 0));
    return install(new array_type(type_unsigned_char, array_bound(0), array_bound(size / 8 - 1)));
}

}  // namespace

void types_begin_unit(clang::ASTContext &c) {
    ctx = &c;
    unit_cache.clear();
    unit_signatures.clear();
}

void types_end_unit() {
    unit_cache.clear();
    unit_signatures.clear();
    ctx = nullptr;
}

type_node *ir_int_of(int bits, bool is_signed) {
    type_node *cands[] = {is_signed ? type_signed_char : type_unsigned_char,
                          is_signed ? type_signed_short : type_unsigned_short,
                          is_signed ? type_signed : type_unsigned,
                          is_signed ? type_signed_long : type_unsigned_long,
                          is_signed ? type_signed_longlong : type_unsigned_longlong};
    for (type_node *c : cands)
        if (c && c->size() == bits) return c;
    return install(new base_type(TYPE_INT, bits, is_signed));
}

type_node *ir_type(clang::QualType qt) {
    if (qt.isNull()) return type_void;
    clang::QualType canon = ctx->getCanonicalType(qt);
    const void *key = canon.getAsOpaquePtr();
    auto it = unit_cache.find(key);
    if (it != unit_cache.end()) return it->second;
    type_node *t = convert_unqualified(canon.getTypePtr());
    if (canon.isVolatileQualified()) t = install(new modifier_type(TYPE_VOLATILE, t));
    if (canon.isConstQualified()) t = install(new modifier_type(TYPE_CONST, t));
    unit_cache[key] = t;
    return t;
}

type_node *ir_ptr_to(type_node *t) {
    return install(new ptr_type(t));
}
