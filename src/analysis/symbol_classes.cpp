// The questions symbol collection asks of one symbol or type: is it the
// generators' business, which stub kind it gets, can its function pointers
// be modelled, and where it stands in the source.
#include "analysis/stub_pragmas.h"
#include "analysis/symbol_collection.h"
#include "driver/global_lists.h"
#include "driver/options.h"
#include "types/type_predicates.h"

#include <cstring>
#include <strings.h>

namespace {

// The source file of a k_source_coordinates annotation, or null.
const char *source_file_of(const suif_object *object) {
  annote *a = object->peek_annote(k_source_coordinates);
  if (!a || !a->immeds() || a->immeds()->is_empty())
    return nullptr;
  return a->immeds()->head()->contents.string();
}

bool begins_with(const char *text, const char *prefix) {
  return text && !strncmp(text, prefix, strlen(prefix));
}

// Variables of generated code, and constants and volatile objects, which the
// main does not write.
bool is_ignored_variable(var_sym *var) {
  if (var_def *def = var->definition()) {
    const char *file = source_file_of(def);
    if (begins_with(file, "__quorvanta") || begins_with(file, "C-STUBS"))
      return true;
  } else if (flag_instrum) {
    return true;
  }
  if (var->is_extern())
    return false;
  return is_qualified_or_volatile(var->type());
}

bool is_ignored_procedure(proc_sym *proc) {
  if (proc->peek_annote(k_inline))
    return true;
  if (proc->src_lang() == src_unknown)
    return true;
  const char *name = proc->name();
  if (!lexicon_strcmp_with_cheks(name, stringassert) || !strcmp(name, "unchecked_assert") ||
      !lexicon_strcmp_with_cheks(name, string__QVT__MAIN__ENTRY__POINT__))
    return true;
  if (!strncmp(name, "_quorvanta_random_", 18))
    return true;
  if (!strncasecmp(name, "Qvt_Global_Assert_", 18))
    return true;
  if (proc->peek_annote(k_builtin))
    return true;
  return begins_with(source_file_of(proc), "C-STUBS");
}

// The walk from a pointer's target: through modifiers and array levels to a
// function, which rule F judges; anything else is not looked into.
bool complex_fptr_target(type_node *type, bool top);

// Rule F: only a top-level pointer to a prototyped function whose parameters
// hold no pointer can be stubbed.
bool complex_function(func_type *func, bool top) {
  if (!top || !func->args_known())
    return true;
  for (unsigned i = 0; i < func->num_args(); i++)
    if (contains_pointer(func->arg_type(i)))
      return true;
  return false;
}

bool complex_fptr_target(type_node *type, bool top) {
  for (;;) {
    if (type->is_modifier()) {
      type = type->unqual();
      top = false;
    } else if (type->op() == TYPE_ARRAY) {
      type = static_cast<array_type *>(type)->elem_type();
      top = false;
    } else {
      break;
    }
  }
  if (type->op() == TYPE_FUNC)
    return complex_function(static_cast<func_type *>(type), top);
  return false;
}

} // namespace

const char *display_name(sym_node *sym) {
  return strcmp(sym->name(), "__quorvanta_fake_main") ? sym->name() : "main";
}

void print_symbol_location(sym_node *sym) {
  annote *a = sym->peek_annote(k_source_coordinates);
  if (!a)
    a = sym->peek_annote(k_sequence_point);
  if (!a)
    a = sym->peek_annote(k_extdcl_sc);
  if (!a)
    return;
  coord where;
  annote_to_coordinate(a, &where);
  fprint_localization(stderr, where.file, where.line, -1, true);
}

bool is_ignored_symbol(sym_node *sym) {
  if (!sym->is_userdef())
    return true;
  if (sym->peek_annote(k_drs_var))
    return true;
  if (sym->is_var())
    return is_ignored_variable(static_cast<var_sym *>(sym));
  if (sym->is_proc())
    return is_ignored_procedure(static_cast<proc_sym *>(sym));
  return true;
}

bool is_qualified_or_volatile(type_node *type) {
  switch (type->op()) {
  case TYPE_CONST:
  case TYPE_VOLATILE:
  case TYPE_CALL_BY_REF:
  case TYPE_NULL:
    return true;
  case TYPE_ARRAY:
    return is_qualified_or_volatile(static_cast<array_type *>(type)->elem_type());
  case TYPE_GROUP:
  case TYPE_STRUCT:
  case TYPE_UNION:
    return any_part_volatile(type);
  default:
    return false;
  }
}

bool in_ignored_file(sym_node *sym) {
  annote *a = sym->peek_annote(k_source_coordinates);
  if (!a)
    return false;
  const char *file = a->immeds() && !a->immeds()->is_empty() ? a->immeds()->head()->contents.string() : nullptr;
  return file && file_is_part_of_list(file, ignored_files, 1);
}

// A pragma kind other than "no instrument" never beats a function that has
// no way to write anything: no parameters, or only constant ones.
int stub_kind_of(proc_sym *proc) {
  int mode = stub_mode_of(proc);
  func_type *type = proc->type();
  if (mode != STUB_NO_INSTRUMENT && !type->has_varargs()) {
    bool all_const = true;
    for (unsigned i = 0; i < type->num_args() && all_const; i++)
      all_const = is_const_param(type->arg_type(i));
    if (all_const)
      return STUB_PURE;
  }
  if (mode != STUB_DEFAULT)
    return mode;
  if (flag_stub_all_worst)
    return STUB_WORST;
  return flag_stub_all_clean ? STUB_CLEAN : STUB_DEFAULT;
}

bool check_stubbable(proc_sym *proc) {
  func_type *type = proc->type();
  bool result = true;
  for (unsigned i = 0; i < type->num_args(); i++) {
    if (!refers_to_complex_fptr(type->arg_type(i), true))
      continue;
    if (!flag_permissive_stubber) {
      print_symbol_location(proc);
      error_line(0, nullptr,
                 "function '%s' refers to a function pointer that is either too complex,\n"
                 "|        or within a complex data-structure, or with unknown parameters.\n"
                 "|        It cannot be stubbed automatically.\n"
                 "|        This error can be ignored by using the -permissive-stubber option.\n",
                 display_name(proc));
      exit_status = 1;
      result = false;
    }
    break;
  }
  if (refers_to_complex_fptr(type->return_type(), false) && !flag_permissive_stubber) {
    print_symbol_location(proc);
    error_line(0, nullptr,
               "function '%s' returns a function pointer.\n"
               "|        It cannot be stubbed automatically.\n"
               "|        This error can be ignored by using the -permissive-stubber option.\n",
               display_name(proc));
    exit_status = 1;
    return false;
  }
  return result;
}

bool refers_to_complex_fptr(type_node *type, bool top) {
  switch (type->op()) {
  case TYPE_CONST:
  case TYPE_VOLATILE:
    return refers_to_complex_fptr(type->unqual(), top);
  case TYPE_ARRAY:
    return refers_to_complex_fptr(static_cast<array_type *>(type)->elem_type(), false);
  case TYPE_STRUCT:
  case TYPE_UNION: {
    struct_type *s = static_cast<struct_type *>(type);
    for (unsigned i = 0; i < s->num_fields(); i++)
      if (refers_to_complex_fptr(s->field_type(i), false))
        return true;
    return false;
  }
  case TYPE_FUNC:
    return complex_function(static_cast<func_type *>(type), top);
  case TYPE_PTR:
    return complex_fptr_target(static_cast<ptr_type *>(type)->ref_type(), top);
  default:
    return false;
  }
}

bool contains_pointer(type_node *type) {
  type = type->unqual();
  switch (type->op()) {
  case TYPE_PTR:
  case TYPE_FUNC:
    return true;
  case TYPE_ARRAY:
    return contains_pointer(static_cast<array_type *>(type)->elem_type());
  case TYPE_STRUCT:
  case TYPE_UNION: {
    struct_type *s = static_cast<struct_type *>(type);
    for (unsigned i = 0; i < s->num_fields(); i++)
      if (contains_pointer(s->field_type(i)))
        return true;
    return false;
  }
  default:
    return false;
  }
}
