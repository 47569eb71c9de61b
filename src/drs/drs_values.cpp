// Checking the two bounds of an entry against its leaf type, the messages of
// a refusal, and the rewriting of accepted bounds as plain literals.
//
// A check either refuses the entry with a status, or accepts it; an accepted
// long double whose value does not fit a double keeps its status, so that the
// caller can say the value was not checked: such a bound is judged by its form,
// with the two patterns of a C decimal and hexadecimal floating literal.
#include "drs/drs_values.h"

#include <boost/regex.hpp>

#include <cstdlib>
#include <cstring>

static bool is_empty(const char *text) { return !text || !*text; }

static const char *mode_word(unsigned mode) { return drs_mode_names[mode < 4 ? mode : 0]; }

static unsigned check_int_values(type_node *type, const char *min, const char *max) {
  if (!drs_check_int_text(min, type))
    return DRS_VALUE_MIN_NOT_NUMBER;
  if (!drs_check_int_text(max, type))
    return DRS_VALUE_MAX_NOT_NUMBER;
  i_integer highest = drs_type_max(type, false);
  i_integer lowest = drs_type_min(type, false);
  i_integer v = drs_parse_int_bound(min, type, true);
  i_integer w = drs_parse_int_bound(max, type, false);
  if (v < lowest || v > highest)
    return DRS_VALUE_MIN_OUT_OF_TYPE;
  if (w < lowest || w > highest)
    return DRS_VALUE_MAX_OUT_OF_TYPE;
  if (w < v)
    return DRS_VALUE_EMPTY_INTERVAL;
  return DRS_VALUE_OK;
}

// A pointer's bounds say whether it may be null and how many elements it
// reaches; they are read as int here, and "max" gets its figure only when the
// entry is normalised.
static unsigned check_pointer_values(const char *min, const char *max) {
  type_node *int_type = type_signed;
  if (!drs_check_int_text(min, int_type))
    return DRS_VALUE_MIN_NOT_NUMBER;
  if (!drs_check_int_text(max, int_type))
    return DRS_VALUE_MAX_NOT_NUMBER;
  i_integer v = strcmp(min, "min") ? drs_parse_int_bound(min, int_type, true) : i_integer(0);
  i_integer w = strcmp(max, "min") ? drs_parse_int_bound(max, int_type, false) : i_integer(0);
  if (w < v)
    return DRS_VALUE_EMPTY_INTERVAL;
  if (v < i_integer(0))
    return DRS_VALUE_MIN_OUT_OF_TYPE;
  if (drs_type_max(int_type, false) < w)
    return DRS_VALUE_MAX_OUT_OF_TYPE;
  return DRS_VALUE_OK;
}

// The pattern is compiled at each use: it is needed only for a long double
// bound beyond the double range. A match too complex for the engine counts as
// no match.
static bool matches(const char *pattern, const char *text) {
  try {
    boost::regex re(pattern);
    return boost::regex_match(text, re);
  } catch (const std::exception &) {
    return false;
  }
}

static bool is_long_double_form(const char *text) {
  return matches(R"(^[-+]?([0-9]*\.?[0-9]|[0-9]+.)+([eE][-+]?[0-9]+)?[fFLl]?$)", text) ||
         matches(R"(^[-+]?0[xX]([0-9A-Fa-f]*\.?[0-9A-Fa-f]|[0-9A-Fa-f]+.)+([pP][-+]?[0-9]+)?[fFLl]?$)", text);
}

static bool check_float_values(type_node *type, const char *min, const char *max, unsigned *status) {
  int width = drs_float_width(type);
  double v = 0, w = 0;
  if (drs_parse_double(drs_float_keyword(min, width), &v) != 0)
    *status = DRS_VALUE_MIN_NOT_NUMBER;
  if (drs_parse_double(drs_float_keyword(max, width), &w) != 0)
    *status = DRS_VALUE_MAX_NOT_NUMBER;
  if (width != 7) {
    if (*status)
      return false;
    double limit = width == 5 ? 3.4028234663852886e38 : 1.7976931348623157e308;
    if (-limit > v || v > limit)
      *status = DRS_VALUE_MIN_OUT_OF_TYPE;
    else if (-limit > w || w > limit)
      *status = DRS_VALUE_MAX_OUT_OF_TYPE;
    else if (v > w)
      *status = DRS_VALUE_EMPTY_INTERVAL;
    return *status == DRS_VALUE_OK;
  }
  if (!*status) {
    if (v > w) {
      *status = DRS_VALUE_EMPTY_INTERVAL;
      return false;
    }
    return true;
  }
  // The double parser failed, perhaps only because the value is beyond a double.
  bool min_keyword = !strcmp(min, "min"), max_keyword = !strcmp(max, "max");
  if (min_keyword && max_keyword) {
    *status = DRS_VALUE_OK;
    return true;
  }
  if (!min_keyword && !is_long_double_form(min)) {
    *status = DRS_VALUE_MIN_NOT_NUMBER;
    return false;
  }
  if (!max_keyword && !is_long_double_form(max)) {
    *status = DRS_VALUE_MAX_NOT_NUMBER;
    return false;
  }
  return true;
}

bool drs_check_values(type_node *type, const char *min, const char *max, unsigned *status) {
  if (is_empty(min)) {
    *status = DRS_VALUE_NO_MIN;
    return false;
  }
  if (is_empty(max)) {
    *status = DRS_VALUE_NO_MAX;
    return false;
  }
  type_node *t = type->unqual();
  switch (t->op()) {
  case TYPE_INT:
  case TYPE_ENUM:
    *status = check_int_values(type, min, max);
    return *status == DRS_VALUE_OK;
  case TYPE_PTR:
    *status = check_pointer_values(min, max);
    return *status == DRS_VALUE_OK;
  case TYPE_FLOAT:
    return check_float_values(type, min, max, status);
  default:
    return false;
  }
}

void drs_report_status(unsigned status, const char * /*file*/, int line, const char *name, const char *min,
                       const char *max, unsigned mode) {
  const char *word = mode_word(mode);
  switch (status) {
  case DRS_VALUE_NO_MIN:
    drs_warn(line, "data-range-specifications: missing range minimum value for '%s' (%s)", name, word);
    break;
  case DRS_VALUE_NO_MAX:
    drs_warn(line, "data-range-specifications: missing range maximum value for '%s' (%s)", name, word);
    break;
  case DRS_VALUE_MIN_NOT_NUMBER:
    drs_warn(line, "data-range-specifications: not a number used as range minimum value for '%s' (%s)", name, word);
    break;
  case DRS_VALUE_MAX_NOT_NUMBER:
    drs_warn(line, "data-range-specifications: not a number used as range maximum value for '%s' (%s)", name, word);
    break;
  case DRS_VALUE_MIN_OUT_OF_TYPE:
    drs_warn(line, "data-range-specifications: minimum value not within type bounds of '%s' (%s)", name, word);
    break;
  case DRS_VALUE_MAX_OUT_OF_TYPE:
    drs_warn(line, "data-range-specifications: maximum value not within type bounds of '%s' (%s)", name, word);
    break;
  case DRS_VALUE_EMPTY_INTERVAL:
    drs_warn(line, "data-range-specifications: unexpected empty interval [%s..%s] for '%s' (%s)", min, max, name,
             word);
    break;
  default:
    break;
  }
}

static char *decimal_text(const i_integer &value) {
  int length = value.written_length(10) + 1;
  char *text = static_cast<char *>(malloc(length < 128 ? 128 : length));
  value.write(text, 10);
  return text;
}

// Replaced bounds are not freed: an earlier copy of the entry's text may
// still be referred to.
void drs_normalise_bounds(drs_entry *entry, type_node *type) {
  type_node *t = type->unqual();
  switch (t->op()) {
  case TYPE_INT:
  case TYPE_ENUM:
    entry->min = decimal_text(drs_parse_int_bound(entry->min, type, true));
    entry->max = decimal_text(drs_parse_int_bound(entry->max, type, false));
    break;
  case TYPE_FLOAT: {
    int width = drs_float_width(type);
    entry->min = const_cast<char *>(drs_float_keyword(entry->min, width));
    entry->max = const_cast<char *>(drs_float_keyword(entry->max, width));
    break;
  }
  case TYPE_PTR:
    for (char **bound : {&entry->min, &entry->max}) {
      if (!strcmp(*bound, "min"))
        *bound = const_cast<char *>("0");
      else if (!strcmp(*bound, "max"))
        *bound = decimal_text(drs_pointer_max(static_cast<ptr_type *>(t)));
    }
    break;
  default:
    break;
  }
}

immed drs_bound_immed(type_node *type, const char *text, bool is_min) {
  type_node *t = type->unqual();
  if (t->op() == TYPE_INT || t->op() == TYPE_ENUM)
    return immed(im_ext_int, drs_parse_int_bound(text, type, is_min).to_string(10).c_str());
  if (t->op() == TYPE_FLOAT)
    return immed(im_ext_float, drs_float_keyword(text, drs_float_width(type)));
  return immed(0.0);
}
