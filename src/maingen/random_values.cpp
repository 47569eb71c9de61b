// Random values. Scalars and aggregates are filled by a function per type, defined once in the
// run and declared in every file that calls it: the function exists before its body is built,
// so a type that reaches itself calls its own function rather than recursing for ever. Inside a
// struct, a pointer field that leads back to the struct is cut off with a random value of its
// own; pointers and arrays are written inline.
#include "maingen/random_values.h"

#include <string>
#include <vector>

#include "driver/output_files.h"
#include "maingen/const_writes.h"
#include "maingen/range_constraints.h"
#include "maingen/var_init.h"
#include "stubs/stub_text.h"
#include "stubs/stub_writes.h"

string_list *random_value_lines(const char *lvalue, type_node *type, bool non_null)
{
  switch (type->unqual()->op()) {
  case TYPE_INT:
  case TYPE_FLOAT:
  case TYPE_STRUCT:
  case TYPE_UNION:
  case TYPE_ENUM:
    return gen_init_proc_call(lvalue, type);
  case TYPE_PTR:
    return gen_random_value(lvalue, type, non_null);
  default:
    return gen_random_value(lvalue, type, false);
  }
}

// The declaration goes to the head of the section and the definitions to its tail, so that the
// file declares every function before it defines any, whatever the order of recursion.
static void declare_init_proc(type_node *type, const char *name, const char *function)
{
  add_per_file_mark(type, k_init_proc_decl);
  init_proc_texts->push(format_text("extern %s %s(void);\n\n", name, function));
}

// The aggregates being filled in place, so that a malformed type that holds itself by value
// falls back to its function instead of unfolding for ever.
static std::vector<type_node *> filled_in_place;

string_list *gen_init_proc_call(const char *lvalue, type_node *type)
{
  // A struct or union with a const member can't be assigned whole (C refuses it): its members
  // are written in place, each const one through a non-const view.
  if (!type->peek_annote(k_init_proc) && holds_const_member(type)) {
    type_node *plain = type->unqual();
    bool unfolding = false;
    for (type_node *t : filled_in_place)
      unfolding = unfolding || t == plain;
    if (!unfolding) {
      filled_in_place.push_back(plain);
      string_list *result = gen_random_value(lvalue, type, false);
      filled_in_place.pop_back();
      return result;
    }
  }
  const char *function = format_text("_main_gen_init_g%u", type->type_id());
  const char *name = type_text(type);
  if (type->peek_annote(k_init_proc)) {
    if (!type->peek_annote(k_init_proc_decl))
      declare_init_proc(type, name, function);
  } else {
    type->append_annote(k_init_proc);
    declare_init_proc(type, name, function);
    string_list *body = new string_list;
    add_piece(body, "%s %s(void)\n", name, function);
    add_piece(body, "{\n");
    bool aggregate = type->op() == TYPE_STRUCT || type->op() == TYPE_UNION;
    // The value of a const type is built in a plain variable: C refuses to assign a const one,
    // and the analyser takes a const local for read-only memory.
    type_node *value_type = type->is_const() ? type->unqual() : type;
    add_piece(body, "%s%s x;\n", aggregate ? "static " : "", type_text(value_type));
    move_pieces(body, gen_random_value("x", value_type, false));
    add_piece(body, "return x;\n");
    add_piece(body, "}\n\n");
    init_proc_texts->append(body);
    delete body;
  }
  string_list *result = new string_list;
  add_piece(result, "%s = %s();\n", writable_lvalue(lvalue, type), function);
  return result;
}

type_node *pointed_object_type(ptr_type *type, const char **name)
{
  type_node *target = type->ref_type()->unqual();
  // A struct that the program only declares (FILE's markers in the C library) has no fields and
  // no size to make an object of: its memory is taken as bytes, like that behind a void pointer.
  bool opaque = (target->op() == TYPE_STRUCT || target->op() == TYPE_UNION) &&
                static_cast<struct_type *>(target)->num_fields() == 0;
  if (target->op() == TYPE_VOID || opaque)
    target = type_signed_char;
  *name = type_text(target);
  if (target->op() == TYPE_ARRAY && static_cast<array_type *>(target)->are_bounds_unknown()) {
    // An array of unknown size can't be declared: the object is a pointer to its elements.
    type_node *elem = static_cast<array_type *>(target)->elem_type();
    ptr_type *made = new ptr_type(elem);
    target = type_void->parent()->install_type(made);
    if (target != made)
      delete made;
    *name = format_text("%s *", type_text(elem));
  }
  return target;
}

// A pointer into the middle of a static array of random elements, or null.
static void random_pointer(string_list *result, const char *lvalue, ptr_type *type, bool non_null)
{
  const char *target_name;
  type_node *target = pointed_object_type(type, &target_name);
  if (target->op() == TYPE_FUNC) {
    const char *stub = stub_for_function_pointer(static_cast<func_type *>(target), -1);
    add_piece(result, "/* function pointer */\n");
    if (non_null)
      add_piece(result, "%s = %s;\n", lvalue, stub);
    else
      add_piece(result, "%s = QVT_TRUE() ? 0 : %s;\n", lvalue, stub);
    return;
  }
  const char *array = next_main_gen_tmp();
  const char *index = format_text("_i%s", next_main_gen_tmp());
  add_piece(result, "/* pointer */\n");
  add_piece(result, "{\n");
  add_piece(result, "static %s %s[ARRAY_NBELEM(%s)];\n", target_name, array, target_name);
  add_piece(result, "%s %s;\n", type_text(type_unsigned_long), index);
  add_piece(result, "for (%s = 0; %s < ARRAY_NBELEM(%s); %s++)\n", index, index, target_name, index);
  add_piece(result, "{\n");
  move_pieces(result, random_value_lines(format_text("%s[%s]", array, index), target, false));
  add_piece(result, "}\n");
  if (non_null)
    add_piece(result, "%s = &%s[ARRAY_NBELEM(%s) / 2];\n", lvalue, array, target_name);
  else
    add_piece(result, "%s = QVT_TRUE() ? 0 : &%s[ARRAY_NBELEM(%s) / 2];\n", lvalue, array, target_name);
  add_piece(result, "}\n");
}

// An array of arrays in one nest of loops, one per dimension; a dimension of unknown size runs
// to a random bound. The elements are filled inline, not through their type's function.
static void random_array(string_list *result, const char *lvalue, array_type *type)
{
  std::vector<int> sizes;
  type_node *elem = type;
  while (elem->op() == TYPE_ARRAY) {
    array_type *dimension = static_cast<array_type *>(elem);
    array_bound upper = dimension->upper_bound();
    sizes.push_back(upper.is_constant() ? upper.constant() + 1 : 0);
    elem = dimension->elem_type();
  }
  const char *base = next_main_gen_tmp();
  add_piece(result, "{ /* array type */\n");
  std::string subscripts = lvalue;
  for (size_t k = 0; k < sizes.size(); k++) {
    const char *index = format_text("%s_%zu", base, k);
    add_piece(result, "%s %s;\n", type_text(type_unsigned_long), index);
    add_piece(result, "\n");
    if (sizes[k] != 0)
      add_piece(result, "for (%s = 0; %s < %d; %s++)\n", index, index, sizes[k], index);
    else
      add_piece(result, "for (%s = 0; %s < %s; %s++)\n", index, index, random_var_for(type_unsigned_long), index);
    add_piece(result, "{\n");
    subscripts += format_text("[%s]", index);
  }
  move_pieces(result, gen_random_value(format_text("%s", subscripts.c_str()), elem, false));
  for (size_t k = 0; k < sizes.size(); k++)
    add_piece(result, "}\n");
  add_piece(result, "}\n");
}

// Pointers first, then aggregates, then scalars.
static int field_rank(type_node *field_type)
{
  switch (field_type->unqual()->op()) {
  case TYPE_INT:
  case TYPE_FLOAT:
  case TYPE_VOID:
  case TYPE_ENUM:
    return 2;
  case TYPE_GROUP:
  case TYPE_STRUCT:
  case TYPE_UNION:
    return 1;
  default:
    return 0;
  }
}

// A bit-field is drawn as its storage integer and bounded to the field's own range.
static void random_bit_field(string_list *result, const char *lvalue, type_node *storage, type_node *field)
{
  add_piece(result, "{\n");
  add_piece(result, "%s bitf;\n", type_text(storage));
  move_pieces(result, random_value_lines("bitf", storage, false));
  std::string min = inttype_min(field).to_string(10), max = inttype_max(field).to_string(10);
  move_pieces(result, range_constraint("bitf", min.c_str(), max.c_str(), storage));
  add_piece(result, "%s = bitf;\n", lvalue);
  add_piece(result, "}\n");
}

static void random_record(string_list *result, const char *lvalue, struct_type *record)
{
  std::vector<unsigned> order[3];
  for (unsigned i = 0; i < record->num_fields(); i++)
    if (!is_filler_field(record->field_name(i)))
      order[field_rank(record->field_type(i))].push_back(i);
  add_piece(result, "/* struct/union type */\n");
  for (const std::vector<unsigned> &fields : order)
    for (unsigned i : fields) {
      // A const member is written through a non-const view; a const bit-field, whose address
      // can't be taken, is left alone.
      if (is_const_bit_field(record, i))
        continue;
      const char *field_lvalue =
          writable_lvalue(format_text("%s.%s", lvalue, record->field_name(i)), record->field_type(i));
      type_node *ft = record->field_type(i)->unqual();
      type_node *orig = nullptr;
      if (int width = record->field_storage_width(i)) {
        orig = ft;
        ft = base_from_sign_and_size(!non_negative(orig), width);
      }
      if (ft->op() == TYPE_PTR && type_reaches(ft, record)) {
        add_piece(result, "%s = %s; /* break cycle */\n", field_lvalue, random_var_for(ft));
        continue;
      }
      if (orig && ft->size() != orig->size()) {
        random_bit_field(result, field_lvalue, ft, orig);
        continue;
      }
      move_pieces(result, random_value_lines(field_lvalue, ft, false));
    }
}

string_list *gen_random_value(const char *lvalue, type_node *type, bool non_null)
{
  string_list *result = new string_list;
  type_node *plain = type->unqual();
  lvalue = writable_lvalue(lvalue, type);
  switch (plain->op()) {
  case TYPE_INT:
  case TYPE_FLOAT:
    add_piece(result, "/* base type */\n");
    add_piece(result, "%s = %s;\n", lvalue, random_var_for(plain));
    break;
  case TYPE_ENUM:
    add_piece(result, "/* enum */\n");
    add_piece(result, "%s = %s;\n", lvalue, random_var_for(type));
    move_pieces(result, enum_bounds_text(lvalue, type));
    break;
  case TYPE_PTR:
    random_pointer(result, lvalue, static_cast<ptr_type *>(plain), non_null);
    break;
  case TYPE_ARRAY:
    random_array(result, lvalue, static_cast<array_type *>(plain));
    break;
  case TYPE_STRUCT:
  case TYPE_UNION:
    random_record(result, lvalue, static_cast<struct_type *>(plain));
    break;
  default: // void, functions, groups and the kinds without C text
    break;
  }
  return result;
}
