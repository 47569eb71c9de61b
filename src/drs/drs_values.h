// Bounds of range entries: which texts are valid for which leaf type, and
// how the bounds of an accepted entry are rewritten as plain literals.
//
// Bounds stay text from the reader to the generated code, because the target's
// types reach beyond what a machine integer or a double holds: integers are
// compared as i_integer of unlimited size, floats as doubles, and a long double
// too big for a double is judged by its form alone.
#pragma once

#include "drs/drs_model.h"

// Result codes of drs_check_values; drs_report_status prints the message of
// 1 to 7 at the entry's line, and nothing for any other code.
enum drs_value_status : unsigned {
  DRS_VALUE_OK = 0,
  DRS_VALUE_NO_MIN = 1,
  DRS_VALUE_NO_MAX = 2,
  DRS_VALUE_MIN_NOT_NUMBER = 3,
  DRS_VALUE_MAX_NOT_NUMBER = 4,
  DRS_VALUE_MIN_OUT_OF_TYPE = 5,
  DRS_VALUE_MAX_OUT_OF_TYPE = 6,
  DRS_VALUE_EMPTY_INTERVAL = 7,
};

// Checks min and max for a leaf type. REQUIRES: *status cleared by the caller.
// True: the entry may stand, and a status other than 0 then says that a value
// could not be checked. False: the entry is refused with *status (0 for a type
// that can carry no range).
bool drs_check_values(type_node *type, const char *min, const char *max, unsigned *status);
void drs_report_status(unsigned status, const char *file, int line, const char *name, const char *min,
                       const char *max, unsigned mode);

// Integer bounds: the text is a number of an integer form, a float literal or a
// keyword that this type allows; its value, a float rounded outward (a minimum
// down, a maximum up).
bool drs_check_int_text(const char *text, type_node *type);
i_integer drs_parse_int_bound(const char *text, type_node *type, bool is_min);
// Highest and lowest value of an integer or enum type by its width and sign, or
// with enum_range of an enum, its highest and lowest enumerator.
i_integer drs_type_max(type_node *type, bool enum_range);
i_integer drs_type_min(type_node *type, bool enum_range);
// How many target elements a pointer may reach: the figure behind "max".
i_integer drs_pointer_max(ptr_type *type);

// Float bounds: the width of a float type (5 single, 6 double, 7 long double),
// the literal for "min" and "max" at that width (any other text unchanged), and
// a text to double; 0 on success, failure also on overflow or trailing text.
int drs_float_width(type_node *type);
const char *drs_float_keyword(const char *text, int width);
int drs_parse_double(const char *text, double *value);

// Rewrites the bounds of an accepted entry as plain literals for its leaf type;
// running it twice changes nothing more.
void drs_normalise_bounds(drs_entry *entry, type_node *type);
// A bound as the literal of a generated range procedure.
immed drs_bound_immed(type_node *type, const char *text, bool is_min);
