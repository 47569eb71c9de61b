// Reading one bound: what a text means for an integer, enum, pointer or float
// leaf type.
//
// Integers are i_integer throughout, so that 64- and 128-bit types and their
// extremes compare exactly. A float literal given for an integer type is
// rounded outward, a minimum down and a maximum up, so that the integer range
// holds every value of the range the user wrote. Keywords stand for the
// extremes of the type, of its enumerators, or of the float width.
#include "drs/drs_values.h"
#include "driver/options.h"
#include "types/type_predicates.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

static bool type_is_signed(type_node *type) {
  type_node *t = type->unqual();
  if (t->op() == TYPE_ENUM)
    return static_cast<enum_type *>(t)->is_signed();
  if (t->is_base())
    return static_cast<base_type *>(t)->is_signed();
  return false;
}

static enum_type *as_enum(type_node *type) {
  type_node *t = type->unqual();
  return t->op() == TYPE_ENUM ? static_cast<enum_type *>(t) : nullptr;
}

i_integer drs_type_max(type_node *type, bool enum_range) {
  enum_type *e = as_enum(type);
  if (enum_range && e) {
    i_integer lo, hi;
    get_enum_bounds(e, &lo, &hi);
    return hi;
  }
  int bits = type->unqual()->size() - (type_is_signed(type) ? 1 : 0);
  return (i_integer(1) << bits) - i_integer(1);
}

i_integer drs_type_min(type_node *type, bool enum_range) {
  enum_type *e = as_enum(type);
  if (enum_range && e) {
    i_integer lo, hi;
    get_enum_bounds(e, &lo, &hi);
    return lo;
  }
  if (!type_is_signed(type))
    return i_integer(0);
  return -(i_integer(1) << (type->unqual()->size() - 1));
}

i_integer drs_pointer_max(ptr_type *type) {
  if (pointer_to_function(type))
    return i_integer(1);
  type_node *target_type = type->ref_type()->unqual();
  unsigned long s = (unsigned long)target_type->size();
  if (target_type->op() == TYPE_VOID) {
    s = (unsigned long)type_char->size();
  } else if (target_type->is_array()) {
    array_type *a = static_cast<array_type *>(target_type);
    if (a->are_bounds_unknown()) {
      s = (unsigned long)type_ptr_diff->size();
    } else if (s == 0) {
      // An array of zero-sized elements: count its elements at the size of
      // one element, so that the figure stays finite.
      int upper = a->upper_bound().is_constant() ? a->upper_bound().constant() : 0;
      s = (unsigned long)a->elem_type()->unqual()->size() * (unsigned long)(upper + 1);
    }
  }
  unsigned long unit = target.addressable_size > 0 ? (unsigned long)target.addressable_size : 8;
  unsigned long limit = 65535;
  if (type_ptr_diff->size() >= 32 && !flag_instrum)
    limit = 0x7FFFFFFFul / unit;
  // An element smaller than the addressable unit (or of no size) counts as one unit.
  unsigned long units = s / unit ? s / unit : 1;
  unsigned long result = (limit / 2 - 1) / units;
  if (flag_instrum && result > 32)
    result = 32;
  i_integer r;
  r.set_c_unsigned_long(result);
  return r;
}

int drs_float_width(type_node *type) {
  int size = type->unqual()->size();
  if (size < 33 || flag_40bits_longdouble)
    return 5;
  if (size < 65)
    return 6;
  return 7;
}

const char *drs_float_keyword(const char *text, int width) {
  static const char *const mins[3] = {"-3.402823466E+38F", "-1.7976931348623157e+308", "-1.18973e+4932L"};
  static const char *const maxs[3] = {"3.402823466E+38F", "1.7976931348623157e+308", "1.18973e+4932L"};
  if (!text || width < 5 || width > 7)
    return text;
  if (!strcmp(text, "min"))
    return mins[width - 5];
  if (!strcmp(text, "max"))
    return maxs[width - 5];
  return text;
}

// One suffix letter and trailing blanks are allowed; an overflow fails, which
// is how a long double bound beyond the double range is told apart.
int drs_parse_double(const char *text, double *value) {
  errno = 0;
  char *end = nullptr;
  *value = dtoa_strtod(text, &end);
  if (*end == 'F' || *end == 'f' || *end == 'L' || *end == 'l')
    ++end;
  while (*end == ' ' || *end == '\t')
    ++end;
  return errno || *end ? 1 : 0;
}

bool drs_check_int_text(const char *text, type_node *type) {
  if (!text)
    return false;
  if (!strcmp(text, "min") || !strcmp(text, "max"))
    return true;
  if (as_enum(type) && (!strcmp(text, "enum_min") || !strcmp(text, "enum_max")))
    return true;
  if (is_octal_constant(text) || is_hexadecimal_constant(text))
    return true;
  const char *p = text;
  if (*p == '+' || *p == '-')
    ++p;
  if (!*p)
    return false;
  bool float_form = false;
  for (; *p; ++p) {
    if (*p >= '0' && *p <= '9')
      continue;
    if (!strchr("+-.Ee", *p))
      return false;
    float_form = true;
  }
  double value;
  return !float_form || drs_parse_double(text, &value) == 0;
}

// The integer part of the float, and one more outward when a fraction is left;
// the sign is read from the printed text, so "-0.5" counts as negative.
static i_integer round_float_bound(const char *text, bool is_min) {
  double value;
  if (drs_parse_double(text, &value) != 0)
    return i_integer(0);
  char printed[400];
  snprintf(printed, sizeof printed, "%.12f", value);
  char *dot = strchr(printed, '.');
  const char *fraction = "";
  if (dot) {
    *dot = '\0';
    fraction = dot + 1;
  }
  i_integer result(printed, 10);
  while (*fraction == '0')
    ++fraction;
  if (*fraction) {
    bool negative = printed[0] == '-';
    if (is_min && negative)
      result = result - i_integer(1);
    else if (!is_min && !negative)
      result = result + i_integer(1);
  }
  return result;
}

i_integer drs_parse_int_bound(const char *text, type_node *type, bool is_min) {
  if (!strcmp(text, "enum_min"))
    return drs_type_min(type, true);
  if (!strcmp(text, "enum_max"))
    return drs_type_max(type, true);
  if (!strcmp(text, "min"))
    return drs_type_min(type, false);
  if (!strcmp(text, "max"))
    return drs_type_max(type, false);
  if (is_octal_constant(text))
    return i_integer(text, 8);
  if (is_hexadecimal_constant(text)) {
    const char *digits = text + (text[0] == '-' || text[0] == '+' ? 1 : 0) + 2;
    i_integer value(digits, 16);
    return text[0] == '-' ? -value : value;
  }
  if (strpbrk(text, "Ee."))
    return round_float_bound(text, is_min);
  return i_integer(text, 10);
}
