// Making range entries from text, and the range pragma.
#include "drs/drs_model.h"

#include <cstdlib>
#include <cstring>

drs_entry *drs_new_entry(unsigned mode, const char *name, const char *min, const char *max, int line,
                         unsigned pointer_kind) {
  drs_entry *entry = static_cast<drs_entry *>(malloc(sizeof(drs_entry)));
  entry->mode = mode;
  entry->name = strdup(name);
  entry->min = strdup(min);
  entry->max = strdup(max);
  entry->line = line;
  entry->type = nullptr;
  entry->symbol = nullptr;
  entry->pointer_kind = pointer_kind;
  entry->template_pointer_done = false;
  entry->fully_handled = false;
  return entry;
}

// Digit and word are equivalent; anything unknown, "multi" among it, is the
// default, so a wrong attribute is never an error.
unsigned drs_pointer_kind_of(const char *attribute) {
  if (!attribute)
    return DRS_PTR_MULTI;
  if (!strcmp(attribute, "1") || !strcmp(attribute, "single"))
    return DRS_PTR_SINGLE;
  if (!strcmp(attribute, "2") || !strcmp(attribute, "none"))
    return DRS_PTR_NONE;
  if (!strcmp(attribute, "3") || !strcmp(attribute, "multi_certain_write"))
    return DRS_PTR_MULTI_CERTAIN_WRITE;
  if (!strcmp(attribute, "4") || !strcmp(attribute, "single_certain_write"))
    return DRS_PTR_SINGLE_CERTAIN_WRITE;
  return DRS_PTR_MULTI;
}

unsigned drs_mode_of_word(const char *word) {
  if (!strcmp(word, "init"))
    return DRS_MODE_INIT;
  if (!strcmp(word, "permanent"))
    return DRS_MODE_PERMANENT;
  if (!strcmp(word, "globalassert"))
    return DRS_MODE_GLOBALASSERT;
  return DRS_MODE_UNKNOWN;
}

// The pragma's entry waits in drs_pragma_entries until a range run moves it
// behind the entries of the file; an unknown mode word leaves nothing.
void drs_add_pragma(const char *mode, const char *name, const char *min, const char *max,
                    const char *pointer_attribute) {
  unsigned drs_mode = drs_mode_of_word(mode);
  if (drs_mode == DRS_MODE_UNKNOWN)
    return;
  unsigned kind = drs_pointer_kind_of(pointer_attribute);
  drs_pragma_entries->push_back(drs_new_entry(drs_mode, name, min, max, 0, kind));
}
