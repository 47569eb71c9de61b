// The range writer. It follows the type and hands each part of the object the records whose
// path names that part: a pointer takes the record of its own (null, one object, an array) and
// passes the rest to its target, a struct sorts the records by field. What no record names is
// left to the random writers, and a record with the bound "random" asks for them by name.
// Records are cut and taken out on the way down, so a caller gives up the list it passes.
#include "maingen/var_init.h"

#include <cstring>
#include <string>
#include <vector>

#include "drs/drs_model.h"
#include "maingen/const_writes.h"
#include "maingen/random_values.h"
#include "maingen/range_constraints.h"
#include "stubs/stub_text.h"
#include "stubs/stub_writes.h"

static bool path_is_empty(const subrange *record)
{
  return !record->path || !record->path[0];
}

// A scalar takes the first record, whatever its path: the value is drawn, bounded, then stored.
static void range_scalar(string_list *result, const char *lvalue, type_node *type, subrange *record)
{
  const char *tmp = next_main_gen_tmp();
  add_piece(result, "%s %s;\n", type_text(type), tmp);
  add_piece(result, "%s = %s;\n", tmp, random_var_for(type));
  move_pieces(result, range_constraint(tmp, record->min, record->max, type));
  add_piece(result, "%s = %s;\n", lvalue, tmp);
}

static void open_guard(string_list *result, bool guard)
{
  if (guard) {
    add_piece(result, "if (QVT_TRUE())\n");
    add_piece(result, "{\n");
  }
}

static void close_guard(string_list *result, bool guard)
{
  if (guard)
    add_piece(result, "}\n");
}

// A pointer's own record says whether it may be null (minimum 0), must be (0..0), points to
// one object (maximum 1) or to an array of maximum elements. The other records are its target's.
// written: lvalue as it is assigned (a const pointer through a non-const view); lvalue itself
// names the pointer in the question whether its write is uncertain.
static void range_pointer(string_list *result, const char *lvalue, const char *written, ptr_type *type,
                          subrange_list *ranges, bool init_other_fields, const char *key, bool uncertain_writes)
{
  subrange *own = nullptr;
  size_t own_index = 0;
  for (size_t i = 0; i < ranges->size(); i++) {
    subrange *record = (*ranges)[i];
    if (path_is_empty(record)) {
      own = record;
      own_index = i;
      continue;
    }
    const char *rest = nullptr;
    split_path_head(record->path, &rest);
    record->path = const_cast<char *>(rest);
  }
  if (!own)
    return;
  ranges->erase(ranges->begin() + own_index);

  bool min_zero = own->min[0] == '0';
  bool max_zero = own->max[0] == '0';
  bool single = strcmp(own->max, "1") == 0;
  if (min_zero && max_zero) {
    add_piece(result, "%s = 0;\n", written);
    return;
  }
  if (min_zero) {
    add_piece(result, "if (qvt_random_int)\n");
    add_piece(result, "{\n");
    add_piece(result, "%s = 0;\n", written);
    add_piece(result, "}\n");
    add_piece(result, "else\n");
  }
  add_piece(result, "{\n");

  const char *target_name;
  type_node *target = pointed_object_type(type, &target_name);
  if (target->op() == TYPE_FUNC) {
    add_piece(result, "%s = &%s;\n", written, stub_for_function_pointer(static_cast<func_type *>(target), -1));
    add_piece(result, "}\n");
    return;
  }
  const char *target_key = key ? format_text("%s%s", key, "*") : nullptr;

  if (single) {
    bool guard = uncertain_writes && drs_write_is_uncertain(own->pointer_mode, lvalue);
    const char *tmp = next_main_gen_tmp();
    add_piece(result, "static %s %s;\n", target_name, tmp);
    open_guard(result, guard);
    move_pieces(result, write_range_init(tmp, target, ranges, init_other_fields, target_key, uncertain_writes));
    add_piece(result, "%s = &(%s);\n", written, tmp);
    close_guard(result, guard);
    add_piece(result, "}\n");
    return;
  }

  // The array case asks about the key where the single case asks about the lvalue; the range
  // marks of the two cases were made that way and stay so.
  bool guard = uncertain_writes && drs_write_is_uncertain(own->pointer_mode, key);
  const char *tmp = next_main_gen_tmp();
  add_piece(result, "static %s %s[%s];\n", target_name, tmp, own->max);
  if (own->pointer_mode != DRS_PTR_MULTI && own->pointer_mode != DRS_PTR_MULTI_CERTAIN_WRITE) {
    open_guard(result, guard);
    move_pieces(result, write_range_init(format_text("%s[0]", tmp), target, ranges, init_other_fields, target_key,
                                         uncertain_writes));
    close_guard(result, guard);
  } else {
    open_guard(result, guard);
    const char *index = next_main_gen_tmp();
    type_node *index_type = type_signed_long->size() < type->size() ? type_unsigned_long : type_signed_long;
    add_piece(result, "%s %s;\n", type_text(index_type), index);
    add_piece(result, "for (%s = 0; %s < %s; %s++)\n", index, index, own->max, index);
    add_piece(result, "{\n");
    move_pieces(result, write_range_init(format_text("%s[%s]", tmp, index), target, ranges, init_other_fields,
                                         target_key, uncertain_writes));
    add_piece(result, "}\n");
    close_guard(result, guard);
  }
  add_piece(result, "%s = &(%s)[0];\n", written, tmp);
  add_piece(result, "}\n");
}

// One loop in the text writes every element alike; an array adds nothing to the key.
static void range_array(string_list *result, const char *lvalue, array_type *type, subrange_list *ranges,
                        bool init_other_fields, const char *key, bool uncertain_writes)
{
  const char *index = next_main_gen_tmp();
  add_piece(result, "%s %s;\n", type_text(type_signed), index);
  i_integer count = i_integer(type->upper_bound().constant()) + i_integer(1);
  if (!(count < inttype_max(type_signed)))
    count = inttype_max(type_signed);
  std::string count_text = count.to_string(10);
  add_piece(result, "for (%s = 0; %s < %s; %s++)\n", index, index, count_text.c_str(), index);
  add_piece(result, "{\n");
  move_pieces(result, write_range_init(format_text("%s[%s]", lvalue, index), type->elem_type(), ranges,
                                       init_other_fields, key, uncertain_writes));
  add_piece(result, "}\n");
}

// The storage integer of a bit-field of declared width, or the field's type itself.
static type_node *field_value_type(struct_type *record, unsigned i)
{
  type_node *type = record->field_type(i);
  if (int width = record->field_storage_width(i))
    return base_from_sign_and_size(!non_negative(type), width);
  return type;
}

// The fields that no record names: random content, a bit-field drawn in its storage integer
// and bounded to its own width.
static void random_other_fields(string_list *result, const char *lvalue, struct_type *record,
                                const std::vector<const char *> &seen)
{
  for (unsigned i = 0; i < record->num_fields(); i++) {
    const char *name = record->field_name(i);
    if (is_filler_field(name))
      continue;
    bool named = false;
    for (const char *s : seen)
      named = named || strcmp(s, name) == 0;
    if (named || is_const_bit_field(record, i))
      continue;
    const char *field_lvalue = format_text("%s.%s", lvalue, name);
    type_node *orig = record->field_type(i);
    type_node *type = field_value_type(record, i);
    if (record->field_storage_width(i) && type->size() != orig->size()) {
      add_piece(result, "{\n");
      add_piece(result, "%s bitf;\n", type_text(type));
      move_pieces(result, random_value_lines("bitf", type, false));
      std::string min = inttype_min(orig).to_string(10), max = inttype_max(orig).to_string(10);
      move_pieces(result, range_constraint("bitf", min.c_str(), max.c_str(), type));
      add_piece(result, "%s = bitf;\n", field_lvalue);
      add_piece(result, "}\n");
    } else {
      move_pieces(result, random_value_lines(field_lvalue, type, false));
    }
  }
}

struct field_ranges {
  const char *head;
  subrange_list *ranges;
};

// Records sorted by the field that heads their path; pointers first, aggregates next, scalars
// last, each group in the order its first record came.
static void range_record(string_list *result, const char *lvalue, struct_type *record, subrange_list *ranges,
                         bool init_other_fields, const char *key, bool uncertain_writes)
{
  std::vector<field_ranges> groups[3]; // rest, aggregates, scalars
  std::vector<const char *> seen;
  for (subrange *range : *ranges) {
    const char *rest = nullptr;
    const char *head = split_path_head(range->path, &rest);
    if (!head)
      continue;
    int idx = find_field(head, record);
    if (idx < 0)
      continue;
    head = intern(head);
    field_ranges *group = nullptr;
    for (std::vector<field_ranges> &list : groups)
      for (field_ranges &g : list)
        if (g.head == head)
          group = &g;
    if (!group) {
      int rank;
      switch (record->field_type(idx)->unqual()->op()) {
      case TYPE_INT:
      case TYPE_FLOAT:
      case TYPE_VOID:
      case TYPE_ENUM:
        rank = 2;
        break;
      case TYPE_GROUP:
      case TYPE_STRUCT:
      case TYPE_UNION:
        rank = 1;
        break;
      default:
        rank = 0;
      }
      groups[rank].push_back({head, new subrange_list});
      group = &groups[rank].back();
      const char *field = record->field_name(idx);
      bool known = false;
      for (const char *s : seen)
        known = known || strcmp(s, field) == 0;
      if (!known)
        seen.push_back(field);
    }
    range->path = const_cast<char *>(rest);
    group->ranges->push_back(range);
  }
  ranges->clear();

  if (init_other_fields)
    random_other_fields(result, lvalue, record, seen);

  for (std::vector<field_ranges> &list : groups)
    for (field_ranges &g : list) {
      // A head inside an anonymous member is reached through the members that hold it.
      std::string expr = lvalue;
      struct_type *holder = record;
      type_node *type;
      int idx;
      for (;;) {
        idx = find_field(g.head, holder);
        const char *name = holder->field_name(idx);
        expr += format_text(".%s", name);
        type = field_value_type(holder, idx);
        if (strcmp(name, g.head) == 0)
          break;
        holder = static_cast<struct_type *>(holder->field_type(idx)->unqual());
      }
      if (is_const_bit_field(holder, (unsigned)idx)) {
        delete g.ranges;
        continue;
      }
      const char *field_key = key ? format_text("%s.%s", key, g.head) : nullptr;
      add_piece(result, "{\n");
      move_pieces(result, write_range_init(format_text("%s", expr.c_str()), type, g.ranges, init_other_fields,
                                           field_key, uncertain_writes));
      add_piece(result, "}\n");
      delete g.ranges;
    }
}

string_list *write_range_init(const char *lvalue, type_node *type, subrange_list *ranges, bool init_other_fields,
                              const char *key, bool uncertain_writes)
{
  string_list *result = new string_list;
  type_node *plain = type->unqual();
  subrange *own = nullptr;
  if (ranges)
    for (subrange *record : *ranges)
      if (path_is_empty(record)) {
        own = record;
        break;
      }
  // A const object is assigned through a non-const view (C refuses the plain assignment).
  const char *written = writable_lvalue(lvalue, type);
  if (!ranges || ranges->empty() || (own && strcmp(own->min, "random") == 0)) {
    add_piece(result, "/* random */\n");
    move_pieces(result, random_value_lines(written, plain, false));
    return result;
  }
  switch (plain->op()) {
  case TYPE_INT:
  case TYPE_FLOAT:
  case TYPE_ENUM:
    range_scalar(result, written, plain, ranges->front());
    break;
  case TYPE_PTR:
    range_pointer(result, lvalue, written, static_cast<ptr_type *>(plain), ranges, init_other_fields, key,
                  uncertain_writes);
    break;
  case TYPE_ARRAY:
    range_array(result, lvalue, static_cast<array_type *>(plain), ranges, init_other_fields, key, uncertain_writes);
    break;
  case TYPE_STRUCT:
  case TYPE_UNION:
    range_record(result, written, static_cast<struct_type *>(plain), ranges, init_other_fields, key,
                 uncertain_writes);
    break;
  default: // void, functions, groups and the kinds without C text write nothing
    break;
  }
  return result;
}
