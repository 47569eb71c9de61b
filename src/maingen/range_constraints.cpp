// Range constraints. Integers are compared as unlimited integers, so that bounds of 64-bit
// unsigned types and the most negative values are exact; the texts written back go through
// enum_value_text, which never lets C read a minimum as an out-of-range literal.
#include "maingen/range_constraints.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "stubs/stub_text.h"
#include "types/type_emitter.h"

string_list *enum_bounds_text(const char *lvalue, type_node *type)
{
  string_list *result = new string_list;
  i_integer min, max;
  get_enum_bounds(static_cast<enum_type *>(type->unqual()), &min, &max);
  add_piece(result, "\n");
  add_piece(result, "/* range value according to enum bounds */\n");
  std::string min_text = min.to_string(10), max_text = max.to_string(10);
  move_pieces(result, range_constraint(lvalue, min_text.c_str(), max_text.c_str(), type));
  add_piece(result, "\n");
  return result;
}

static string_list *float_constraint(const char *lvalue, const char *min, const char *max, type_node *type)
{
  string_list *result = new string_list;
  const char *min_text = float_bound_text(min, type);
  const char *max_text = float_bound_text(max, type);
  if (flag_instrum) {
    int bits = type->size() == 96 ? 128 : type->size();
    add_piece(result, "%s = __qvt_f%d_rand_range(%s, %s);\n", lvalue, bits, min_text, max_text);
    add_piece(result, "\n");
  } else {
    add_piece(result, "unchecked_assert (%s <= %s);\n", min_text, lvalue);
    add_piece(result, "unchecked_assert (%s <= %s);\n", lvalue, max_text);
  }
  return result;
}

static string_list *integer_constraint(const char *lvalue, const char *min, const char *max, type_node *type)
{
  string_list *result = new string_list;
  i_integer low(min, 10), high(max, 10);
  bool need_min = inttype_min(type) < low;
  bool need_max = high < inttype_max(type);
  if (!need_min && !need_max)
    return result;
  const char *min_text = enum_value_text(low, type);
  const char *max_text = enum_value_text(high, type);
  if (flag_instrum) {
    bool is_signed = static_cast<base_type *>(type)->is_signed();
    add_piece(result, "%s = __qvt_%s%d_rand_range(%s, %s);\n", lvalue, is_signed ? "i" : "u", type->size(),
              min_text, max_text);
    if (need_min && need_max)
      add_piece(result, "\n");
    return result;
  }
  if (need_min)
    add_piece(result, "unchecked_assert(%s >= %s);\n", lvalue, min_text);
  if (need_max)
    add_piece(result, "unchecked_assert(%s <= %s);\n", lvalue, max_text);
  return result;
}

string_list *range_constraint(const char *lvalue, const char *min, const char *max, type_node *type)
{
  type_node *plain = type->unqual();
  switch (plain->op()) {
  case TYPE_FLOAT:
    return float_constraint(lvalue, min, max, plain);
  case TYPE_ENUM:
    return integer_constraint(lvalue, min, max, base_from_enum(plain));
  case TYPE_INT:
    return integer_constraint(lvalue, min, max, plain);
  default:
    return new string_list;
  }
}

// Reads text as a floating literal: the number, then at most one suffix letter and blanks.
static bool parse_float_text(const char *text, double *value)
{
  char *end = nullptr;
  errno = 0;
  *value = dtoa_strtod(text, &end);
  if (errno != 0)
    return false;
  if (*end == 'F' || *end == 'f' || *end == 'L' || *end == 'l') {
    ++end;
    while (*end == ' ' || *end == '\t')
      ++end;
  }
  return *end == '\0';
}

char *float_bound_text(const char *text, type_node *type)
{
  if (!text)
    return nullptr;
  double value;
  if (!parse_float_text(text, &value))
    return const_cast<char *>(text);
  int double_size = type_double->size();
  int size = type->size();
  if (size < double_size)
    return format_text("%eF", value);
  if (size == double_size)
    return format_text("%e", value);
  return format_text("%eL", value);
}
