// The element of one object in the template, by its type: scalars and
// pointers with the stubber's defaults and then the input's range laid over
// them; arrays, structs and functions as containers.
//
// Two counters bound the struct nesting (-drs-struct-depth-max) and an
// annotation on each struct type counts how often it is open on the way down
// (-drs-struct-recursion-depth-max), so that a type that contains itself stops.
#include "drs_template/template_export.h"
#include "driver/options.h"
#include "drsxml/drs_parser.h"
#include "types/type_emitter.h"
#include "types/type_predicates.h"

#include <cstring>

namespace {
void set_qualifiers(const template_context &ctx) {
  drs_set_element_qualifiers(ctx.is_volatile, ctx.is_extern, ctx.is_static, ctx.is_const, 0);
}

// The ranges of the input for this path: the first range of mode init or
// permanent, and the first globalassert. Later ones of the same sort are dropped.
struct overlay {
  bool has_range = false, has_assert = false;
  unsigned status = 3, pointer_kind = DRS_PTR_MULTI;
  const char *min = nullptr, *max = nullptr, *assert_min = "", *assert_max = "";
};

overlay take_overlay(const char *path) {
  overlay o;
  while (drs_entry *e = take_template_entry(path)) {
    if ((e->mode == DRS_MODE_INIT || e->mode == DRS_MODE_PERMANENT) && !o.has_range) {
      o.has_range = true;
      o.status = e->mode;
      o.min = e->min;
      o.max = e->max;
      o.pointer_kind = e->pointer_kind;
    } else if (e->mode == DRS_MODE_GLOBALASSERT && !o.has_assert) {
      o.has_assert = true;
      o.assert_min = e->min;
      o.assert_max = e->max;
    }
  }
  return o;
}

void export_scalar(type_node *type, const char *name, const char *path, const template_context &ctx) {
  int sign = 2, size = type->size();
  if (type->op() == TYPE_INT)
    sign = ((base_type *)type)->is_signed() ? 0 : 1;
  else if (type->op() == TYPE_ENUM)
    size = enum_base_info(type, &sign);
  const char *tname = suif_c_type_string(type);
  drs_add_element(DRS_ELEMENT_SCALAR, name, ctx.line, 0, 0);
  set_qualifiers(ctx);
  bool is_enum = type->op() == TYPE_ENUM;
  const char *min = is_enum ? "enum_min" : "min";
  const char *max = is_enum ? "enum_max" : "max";
  bool defaulted = (flag_flaw_scan && ctx.is_volatile) ||
                   (!ctx.is_volatile && (!ctx.in_function || ctx.of_defined_function));
  drs_set_scalar(sign, size, tname, defaulted ? 3 : 2, min, max, 6, "", "", 1);
  overlay o = take_overlay(path);
  if (o.has_range || o.has_assert)
    drs_set_scalar(sign, size, tname, o.has_range ? o.status : 3, o.has_range ? o.min : min,
                   o.has_range ? o.max : max, o.has_assert ? 7 : 6, o.assert_min, o.assert_max, 0);
  drs_write_up();
}

void export_pointer(type_node *type, const char *name, const char *path, template_context ctx) {
  if (flag_flaw_scan && ctx.pointer_depth >= 1)
    return;
  drs_add_element(DRS_ELEMENT_POINTER, name, ctx.line, 0, 0);
  set_qualifiers(ctx);
  ctx.is_const = false;
  ctx.behind_pointer = true;
  int status = 3, kind = DRS_PTR_MULTI;
  bool allocated_write = false;
  if (ctx.in_function && !ctx.of_defined_function) {
    status = 2;
    bool text_like = template_version == -1 || template_version == 1;
    if (ctx.of_pure_stub)
      kind = DRS_PTR_NONE;
    else if (!text_like && name[0] == '#')
      kind = DRS_PTR_MULTI_CERTAIN_WRITE;
    else if (text_like && !drs_write_is_uncertain(DRS_PTR_MULTI, path))
      allocated_write = true;
  }
  const char *tname = suif_c_type_string(type);
  drs_set_pointer(status, tname, "0", "max", kind, 1);
  overlay o = take_overlay(path);
  if (o.has_range) {
    unsigned k = o.pointer_kind;
    drs_set_pointer(o.status, tname, o.min, o.max, k == 3 || k == 4 || k > 6 ? DRS_PTR_MULTI : k, 0);
  }
  if (allocated_write)
    drs_set_pointer_init_allocated_write(1);
  // A volatile pointer has no target element.
  if (!ctx.is_volatile)
    export_type(((ptr_type *)type)->ref_type(), "", bufprintf("%s*", path), &ctx);
  drs_write_up();
}

int type_exported_count(type_node *type) {
  annote *a = type->peek_annote(k_type_exported);
  return a && a->immeds() && !a->immeds()->is_empty() ? (int)a->immeds()->head()->contents.integer() : 0;
}

void set_type_exported(type_node *type, int count) {
  delete type->get_annote(k_type_exported);
  if (count >= 1) {
    immed_list *data = new immed_list;
    data->append(immed(count));
    type->append_annote(k_type_exported, data);
  }
}

void export_struct(type_node *type, const char *name, const char *path, const template_context &ctx) {
  struct_type *st = (struct_type *)type;
  bool anon = strncmp(name, "qvtunnsubs", 10) == 0;
  drs_add_element(DRS_ELEMENT_STRUCT, anon ? "" : name, ctx.line, 0, 0);
  set_qualifiers(ctx);
  struct_type *unq = (struct_type *)type->unqual();
  drs_set_struct(is_anonymous_tag(unq->name()) ? nullptr : suif_c_type_string(type));
  int count = type_exported_count(type);
  if (count <= drs_struct_recursion_depth_max) {
    set_type_exported(type, count + 1);
    bool too_deep = drs_struct_depth_max != 0 && ctx.struct_depth > drs_struct_depth_max;
    for (unsigned i = 0; !too_deep && i < st->num_fields(); i++) {
      const char *field = st->field_name(i);
      if (is_filler_field(field))
        continue;
      // The fields of an anonymous member stand at the path of its parent.
      const char *fpath = strncmp(field, "qvtunnsubs", 10) == 0 ? path : bufprintf("%s.%s", path, field);
      template_context inner = ctx;
      if (drs_struct_depth_max > 0)
        inner.struct_depth++;
      export_type(st->field_type(i), field, fpath, &inner);
    }
  }
  set_type_exported(type, count);
  drs_write_up();
}
} // namespace

int enum_base_info(type_node *type, int *sign) {
  type_node *base = base_from_enum(type);
  if (base && base->op() == TYPE_INT) {
    *sign = ((base_type *)base)->is_signed() ? 0 : 1;
    return base->size();
  }
  if (base && base->op() == TYPE_FLOAT) {
    *sign = 2;
    return base->size();
  }
  if (base && base->op() == TYPE_VOID) {
    *sign = 0;
    return 8;
  }
  *sign = -1;
  return 0;
}

void export_type(type_node *type, const char *name, const char *path, template_context *caller) {
  template_context ctx = *caller;
  type_ops op = type->op();
  if (flag_flaw_scan && !(op >= TYPE_CONST && op <= TYPE_NULL))
    ctx.pointer_depth++;
  switch (op) {
  case TYPE_INT:
  case TYPE_FLOAT:
  case TYPE_ENUM:
    export_scalar(type, name, path, ctx);
    break;
  case TYPE_PTR:
    export_pointer(type, name, path, ctx);
    break;
  case TYPE_ARRAY:
    drs_add_element(DRS_ELEMENT_ARRAY, name, ctx.line, 0, 0);
    set_qualifiers(ctx);
    drs_set_array(suif_c_type_string(type));
    // An array keeps the path of its element: a range holds for all elements.
    export_type(((array_type *)type)->elem_type(), "", path, &ctx);
    drs_write_up();
    break;
  case TYPE_FUNC:
    drs_add_element(DRS_ELEMENT_FUNCTION, name, ctx.line, 0, 0);
    drs_set_function(3, 1);
    drs_write_up();
    break;
  case TYPE_STRUCT:
  case TYPE_UNION:
    export_struct(type, name, path, ctx);
    break;
  case TYPE_CONST:
    ctx.is_const = true;
    export_type(((modifier_type *)type)->base(), name, path, &ctx);
    break;
  case TYPE_VOLATILE:
    // All modifiers go at once: a const below a volatile isn't seen.
    ctx.is_volatile = true;
    export_type(type->unqual(), name, path, &ctx);
    break;
  default:
    break;
  }
}
