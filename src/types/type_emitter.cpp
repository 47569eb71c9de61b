// The type emitter.
//
// define_type walks a type depth first and puts the text of its dependencies ahead of its own,
// so that the header compiles although the program had no such order. Three cuts end the
// recursion and make that order valid C:
//   - a pointer needs only the tag of a struct or union behind it (forward_only);
//   - a struct or union is marked defined before its fields are visited, which ends cycles
//     of pointers leading back to it;
//   - a function type, named before its parameters are visited, checks its mark again after
//     them, so the inner visit of a cycle writes the one typedef.
// An array needs its element complete (C has no arrays of incomplete types), so it always
// asks for the element's body, also when reached behind a pointer.
//
// Pieces are appended to one output list as the walk goes, which gives the same order as
// building a list per type and moving it into the caller's, without moving pieces up.
#include "types/type_emitter.h"

#include <cstring>
#include <vector>

#include "driver/options.h"
#include "driver/output_files.h"

bool target_long_is_24_bits = false;

bool is_anonymous_tag(const char *tag) {
  return !tag || (tag[0] >= '0' && tag[0] <= '9');
}

const char *get_type_name(type_node *type) {
  if (!type || !k_type_name) return nullptr;
  annote *a = type->peek_annote(k_type_name);
  if (!a || !a->immeds() || a->immeds()->is_empty()) return nullptr;
  return a->immeds()->head()->contents.string();
}

const char *set_type_name(type_node *type, const char *name) {
  if (!name) return nullptr;
  immed text(name);  // a string immed enters its text into the lexicon
  // A second writer of the same type produces the same text: one mark is enough.
  if (get_type_name(type) == text.string()) return name;
  immed_list *l = new immed_list;
  l->append(text);
  type->append_annote(k_type_name, l);
  return name;
}

const char *enum_value_text(const i_integer &value, type_node *base) {
  i_integer minimum = inttype_min(base);
  if (value.is_equal_to(minimum))
    return bufprintf("(%s-1)", value.add(i_integer(1)).to_string(10).c_str());
  return bufprintf("%s", value.to_string(10).c_str());
}

static bool is_defined(type_node *t) {
  return t->peek_annote(k_type_defined) != nullptr;
}

static void mark_defined(type_node *t) {
  t->append_annote(k_type_defined);
}

// The generated name of a pointer, array, function, const or volatile type.
static const char *numbered_name(type_node *t) {
  return bufprintf("__QVT__g__%d", (int)t->type_id());
}

// "struct S", "union U", "enum E", or the numbered name in place of an anonymous tag.
static const char *tagged_name(const char *keyword, const char *tag, type_node *t) {
  if (is_anonymous_tag(tag)) return bufprintf("%s %s", keyword, numbered_name(t));
  return bufprintf("%s %s", keyword, tag);
}

static void define_into(type_node *t, bool forward_only, string_list *out);

// The structs and unions whose fields are being visited. A function type met inside such a
// struct may take it by value before anything has named its tag at file scope; a tag named
// for the first time in a parameter list would belong to that list alone in C, so the tag is
// declared first ("struct s;"; declaring it again is harmless).
static std::vector<type_node *> bodies_in_progress;

static void declare_tag_if_in_progress(type_node *t, string_list *out) {
  if (t->op() != TYPE_STRUCT && t->op() != TYPE_UNION) return;
  for (type_node *b : bodies_in_progress)
    if (b == t) {
      out->append(bufprintf("%s;\n", get_type_name(t)));
      return;
    }
}

static void define_integer(base_type *t, string_list *out) {
  const char *sign = t->is_signed() ? "signed" : "unsigned";
  const char *name = bufprintf("__QVT__%sINT%d", t->is_signed() ? "S" : "U", t->size());
  const char *text = nullptr;
  switch (c_int_type(t)) {
  case C_char: text = bufprintf("typedef %s char %s;\n", sign, name); break;
  case C_short: text = bufprintf("typedef %s short %s;\n", sign, name); break;
  case C_int: text = bufprintf("typedef %s int %s;\n", sign, name); break;
  case C_long:
    text = target_long_is_24_bits ? bufprintf("typedef %s short long %s;\n", sign, name) : bufprintf("typedef %s long %s;\n", sign, name);
    break;
  case C_longlong:
    text = target_long_is_24_bits ? bufprintf("typedef %s long %s;\n", sign, name) : bufprintf("typedef %s long long %s;\n", sign, name);
    break;
  default: {
    // No C type has this size: the type is spelled with the plain C words of the next
    // power-of-two size up, and has no generated name and no typedef.
    type_node *found = base_from_sign_and_size(!non_negative(t), round_up_power_of_2(t->size()));
    C_types c = found ? c_int_type(found) : C_none;
    name = c == C_none ? nullptr : c_type_to_string(c, !non_negative(found));
    break;
  }
  }
  mark_defined(t);
  set_type_name(t, name);
  if (text) out->append(text);
}

static void define_float(type_node *t, string_list *out) {
  const char *name = bufprintf("__QVT__FLOAT%d", t->size());
  const char *text;
  switch (c_float_type(t)) {
  case C_float: text = bufprintf("typedef float %s;\n", name); break;
  case C_double: text = bufprintf("typedef double %s;\n", name); break;
  default: text = bufprintf("typedef long double %s;\n", name); break;
  }
  mark_defined(t);
  set_type_name(t, name);
  out->append(text);
}

static void define_void(type_node *t, string_list *out) {
  const char *name = "__QVT__VOID";
  set_type_name(t, name);
  mark_defined(t);
  out->append(bufprintf("typedef void %s;\n", name));
}

static void define_pointer(ptr_type *t, string_list *out) {
  define_into(t->ref_type(), true, out);
  const char *ref = get_type_name(t->ref_type());
  if (!ref) return;
  const char *name = numbered_name(t);
  mark_defined(t);
  set_type_name(t, name);
  out->append(bufprintf("typedef %s *%s;\n", ref, name));
}

static void define_array(array_type *t, string_list *out) {
  define_into(t->elem_type(), false, out);
  const char *elem = get_type_name(t->elem_type());
  if (!elem) return;
  const char *bound = "";
  if (t->upper_bound().is_constant()) bound = bufprintf("%d", t->upper_bound().constant() + 1);
  const char *name = numbered_name(t);
  mark_defined(t);
  set_type_name(t, name);
  out->append(bufprintf("typedef %s %s[%s];\n", elem, name, bound));
}

static void define_modifier(modifier_type *t, bool forward_only, string_list *out) {
  define_into(t->base(), forward_only, out);
  const char *base = get_type_name(t->base());
  if (!base) return;
  const char *name = numbered_name(t);
  mark_defined(t);
  set_type_name(t, name);
  out->append(bufprintf("typedef %s %s %s;\n", t->op() == TYPE_CONST ? "const" : "volatile", base, name));
}

// Drops the name given ahead of the parameters: a part without C form leaves the function
// without one, so that nothing refers to a typedef that is never written.
static void unname(type_node *t) {
  while (annote *a = t->get_annote(k_type_name)) delete a;
}

static void define_function(func_type *t, string_list *out) {
  const char *name = numbered_name(t);
  set_type_name(t, name);
  define_into(t->return_type(), false, out);
  declare_tag_if_in_progress(t->return_type(), out);
  const char *ret = get_type_name(t->return_type());
  bool complete = ret != nullptr;
  const char *params = "";
  if (t->args_known()) {
    unsigned hidden = t->has_varargs() && !flag_instrum ? 2 : 0;
    unsigned n = t->num_args();
    if (n <= hidden) {
      params = "void";
    } else {
      unsigned visible = n - hidden;
      for (unsigned i = 0; i < visible; i++) {
        type_node *p = t->arg_type(i);
        define_into(p, false, out);
        declare_tag_if_in_progress(p, out);
        const char *pname = get_type_name(p);
        if (!pname) complete = false;
        params = bufprintf("%s%s%s", params, pname ? pname : "", i + 1 < visible ? ", " : "");
      }
      if (t->has_varargs()) params = bufprintf("%s, ...", params);
    }
  }
  if (is_defined(t)) return;
  if (!complete) {
    unname(t);
    return;
  }
  mark_defined(t);
  out->append(bufprintf("typedef %s %s(%s);\n", ret, name, params));
}

// The type a bit-field is declared with: an integer of its storage width and its sign.
static type_node *field_storage_type(struct_type *t, unsigned i) {
  type_node *ft = t->field_type(i);
  int width = t->field_storage_width(i);
  if (width == 0) return ft;
  return base_from_sign_and_size(!non_negative(ft), width);
}

static void define_struct(struct_type *t, bool forward_only, string_list *out) {
  const char *name = tagged_name(t->op() == TYPE_STRUCT ? "struct" : "union", t->name(), t);
  set_type_name(t, name);
  if (forward_only) return;
  mark_defined(t);
  unsigned n = t->num_fields();
  bodies_in_progress.push_back(t);
  for (unsigned i = 0; i < n; i++) define_into(field_storage_type(t, i), false, out);
  bodies_in_progress.pop_back();
  int pack = 0;
  if (annote *a = t->peek_annote(k_max_align))
    if (a->immeds() && !a->immeds()->is_empty() && a->immeds()->head()->contents.is_integer())
      pack = (int)a->immeds()->head()->contents.integer();
  if (pack != 0) out->append(bufprintf("#pragma pack(%d)\n", pack));
  out->append(bufprintf("%s\n  {\n", name));
  for (unsigned i = 0; i < n; i++) {
    type_node *ft = t->field_type(i);
    const char *fname = t->field_name(i);
    const char *sname = get_type_name(field_storage_type(t, i));
    if (!sname) sname = "";
    if (t->field_storage_width(i) != 0)
      out->append(bufprintf("    %s%s%s %s : %d;\n", ft->is_const() ? "const " : "", ft->is_volatile() ? "volatile " : "",
                            sname, fname, ft->size()));
    else
      out->append(bufprintf("    %s %s;\n", sname, fname));
  }
  out->append("  };\n");
  if (pack != 0) out->append("#pragma pack()\n");
}

static void define_enum(enum_type *t, string_list *out) {
  const char *name = tagged_name("enum", t->name(), t);
  set_type_name(t, name);
  string_list *body = out;
  body->append(bufprintf("%s\n  {\n", name));
  type_node *base = base_from_enum(t);
  unsigned n = t->num_values();
  for (unsigned i = 0; i < n; i++)
    body->append(bufprintf("    %s = %s%s\n", t->member(i), enum_value_text(t->value(i), base), i + 1 < n ? "," : ""));
  mark_defined(t);
  body->append("  };\n");
}

static void define_into(type_node *t, bool forward_only, string_list *out) {
  if (!t) return;
  if (is_defined(t)) {
    // A const struct first named behind a pointer gets its body when it is met again with
    // forward_only false: descend through arrays and modifiers to find out.
    if (t->op() == TYPE_ARRAY) define_into(static_cast<array_type *>(t)->elem_type(), false, out);
    else if (t->op() == TYPE_CONST || t->op() == TYPE_VOLATILE)
      define_into(static_cast<modifier_type *>(t)->base(), forward_only, out);
    return;
  }
  switch (t->op()) {
  case TYPE_INT: define_integer(static_cast<base_type *>(t), out); break;
  case TYPE_FLOAT: define_float(t, out); break;
  case TYPE_VOID: define_void(t, out); break;
  case TYPE_PTR: define_pointer(static_cast<ptr_type *>(t), out); break;
  case TYPE_ARRAY: define_array(static_cast<array_type *>(t), out); break;
  case TYPE_FUNC: define_function(static_cast<func_type *>(t), out); break;
  case TYPE_STRUCT:
  case TYPE_UNION: define_struct(static_cast<struct_type *>(t), forward_only, out); break;
  case TYPE_ENUM: define_enum(static_cast<enum_type *>(t), out); break;
  case TYPE_CONST:
  case TYPE_VOLATILE: define_modifier(static_cast<modifier_type *>(t), forward_only, out); break;
  default: break;  // groups, and the modifiers that C can't spell
  }
}

string_list *define_type(type_node *type, bool forward_only) {
  string_list *out = new string_list;
  define_into(type, forward_only, out);
  return out;
}

void write_stub_types_header() {
  open_output_file(stubs_dir_path("qvt_stub_types.h"));
  emit_indent();
  fprintf(out_file, "%s", "typedef char __QVT__CHAR;\n");
  string_list pieces;
  for (type_node_list_e *e = global_st->types()->head(); e; e = e->next()) {
    define_into(e->contents, false, &pieces);
    for (string_list_e *p = pieces.head(); p; p = p->next()) emit_line(p->contents);
    pieces.erase();
  }
  close_output_file();
}
