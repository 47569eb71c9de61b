// Small tables, looked up by a walk: they have a handful of rows each.
#include "drsxml/drs_words.h"

#include <cstdlib>
#include <cstring>
#include <initializer_list>

namespace {
const char *const element_words[] = {nullptr, "scalar", "pointer", "function", "array", "struct"};

struct targets_row {
  int kind;
  const char *word;
};
const targets_row targets_rows[] = {
    {0, "none"}, {1, "single"}, {2, "multi"}, {5, "single_certain_write"}, {6, "multi_certain_write"}};
} // namespace

const char *drs_element_word(int kind) { return kind >= 1 && kind <= 5 ? element_words[kind] : nullptr; }

int drs_element_kind(const char *word) {
  for (int k = 1; k <= 5; k++)
    if (strcmp(word, element_words[k]) == 0)
      return k;
  return 0;
}

const char *drs_mode_word(int status) {
  switch (status) {
  case 0: return "off";
  case 1: return "init";
  case 2: return "permanent";
  case 4: return "written";
  default: return "default";
  }
}

int drs_mode_status(const char *word) {
  for (int s : {0, 1, 2, 4})
    if (strcmp(word, drs_mode_word(s)) == 0)
      return s;
  return 3;
}

const char *drs_sign_word(int sign) {
  switch (sign) {
  case -1: return "none";
  case 0: return "signed";
  case 1: return "unsigned";
  case 2: return "float";
  default: return nullptr;
  }
}

int drs_sign_value(const char *word) {
  for (int s : {0, 1, 2})
    if (strcmp(word, drs_sign_word(s)) == 0)
      return s;
  return -1;
}

const char *drs_targets_word(int kind) {
  for (const targets_row &row : targets_rows)
    if (row.kind == kind)
      return row.word;
  return nullptr;
}

// The schema admits a word or a number; a number too large for an int is no
// kind the stubber knows, and reads as 7, which it treats as unknown.
int drs_targets_kind(const char *text) {
  for (const targets_row &row : targets_rows)
    if (strcmp(text, row.word) == 0)
      return row.kind;
  char *end = nullptr;
  unsigned long n = strtoul(text, &end, 10);
  return n > 1000000 ? 7 : (int)n;
}
