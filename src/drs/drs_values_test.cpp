// Bounds of leaf types: the verdict and status of the check, and the literals
// that an accepted entry is normalised to (twice, which must change nothing
// more). Messages and the log are checked end to end by the lit suite.
#include "drs/drs_values.h"
#include "driver/options.h"
#include "types/ir_test_fixture.h"

#include <string>

namespace {

enum leaf { SCHAR, INT, UINT24, INT64, UINT64, INT128, ENUM, FLOAT, DOUBLE, LDOUBLE, CHAR_PTR, STRUCT };

struct row {
  leaf type;
  const char *min, *max;
  bool accepted;
  unsigned status;
  const char *norm_min = nullptr, *norm_max = nullptr; // after normalising, when accepted
  bool instrum = false;
};

class DrsValues : public ir_test {
protected:
  type_node *make(leaf l) {
    switch (l) {
    case SCHAR: return type_signed_char;
    case INT: return type_signed;
    case UINT24: return b->int_of(24, false);
    case INT64: return type_signed_longlong;
    case UINT64: return type_unsigned_longlong;
    case INT128: return b->int_of(128, true);
    case ENUM: return b->enum_of("e", {{"E_LOW", -1}, {"E_HIGH", 5}});
    case FLOAT: return type_float;
    case DOUBLE: return type_double;
    case LDOUBLE: return type_longdouble;
    case CHAR_PTR: return b->ptr(type_char);
    case STRUCT: return b->struct_of("s", {{"x", type_signed}});
    }
    return nullptr;
  }
};

// The cases the log of the lit suite can't show: refused forms, the edges of
// each width, pointers under -instrument, and normalising twice.
const row rows[] = {
  {SCHAR, "-0x10", "010", true, 0, "-16", "8"},
  {INT, "2.0", "2e0", true, 0, "2", "2"},
  {INT, "+7", "08", true, 0, "7", "8"},
  {INT, "", "5", false, 1},
  {INT, "0", nullptr, false, 2},
  {INT, "1x", "0", false, 3},
  {INT, "0", "+-1", false, 4},
  {SCHAR, "-129", "0", false, 5},
  {UINT24, "min", "max", true, 0, "0", "16777215"},
  {INT64, "min", "0x8000000000000000", false, 6},
  {UINT64, "-1", "0", false, 5},
  {INT128, "min", "max", true, 0, "-170141183460469231731687303715884105728",
   "170141183460469231731687303715884105727"},
  {ENUM, "enum_min", "enum_max", true, 0, "-1", "5"},
  {FLOAT, "0", "1.5.", false, 4},
  {FLOAT, "2.5f", "1", false, 7},
  {FLOAT, "enum_min", "1", false, 3},
  {DOUBLE, "1e309", "0", false, 3},
  {LDOUBLE, "min", "max", true, 0, "-1.18973e+4932L", "1.18973e+4932L"},
  {LDOUBLE, "1e4000", "abc", false, 4},
  {CHAR_PTR, "min", "max", true, 0, "0", "32", true},
  {CHAR_PTR, "0", "min", true, 0, "0", "0"},
  {STRUCT, "0", "1", false, 0},
};

TEST_F(DrsValues, CheckAndNormaliseEveryLeaf) {
  for (const row &r : rows) {
    SCOPED_TRACE(std::string(r.min ? r.min : "(null)") + " .. " + (r.max ? r.max : "(null)") + " leaf " +
                 std::to_string(r.type));
    flag_instrum = r.instrum;
    type_node *type = make(r.type);
    unsigned status = 0;
    EXPECT_EQ(drs_check_values(type, r.min, r.max, &status), r.accepted);
    EXPECT_EQ(status, r.status);
    if (r.accepted) {
      drs_entry *entry = drs_new_entry(DRS_MODE_INIT, "v", r.min, r.max, 1, DRS_PTR_MULTI);
      for (int pass = 0; pass < 2; ++pass) {
        drs_normalise_bounds(entry, type);
        EXPECT_STREQ(entry->min, r.norm_min);
        EXPECT_STREQ(entry->max, r.norm_max);
      }
    }
    flag_instrum = false;
  }
}

TEST_F(DrsValues, BoundLiteralsOfRangeProcedures) {
  immed low = drs_bound_immed(type_signed, "-1.5", true);
  EXPECT_TRUE(low.is_ext_integer());
  EXPECT_STREQ(low.ext_integer(), "-2");
  immed high = drs_bound_immed(type_double, "max", false);
  EXPECT_TRUE(high.is_ext_float());
  EXPECT_STREQ(high.ext_flt(), "1.7976931348623157e+308");
  immed other = drs_bound_immed(b->ptr(type_char), "1", true);
  EXPECT_TRUE(other.is_float());
  EXPECT_EQ(other.flt(), 0.0);
}

} // namespace
