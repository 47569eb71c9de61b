// The range log and the instrumentation record of an applied entry.
//
// The log prints the name as the user wrote it, with an argument shown by its
// position from 1 ("f.#0" as "f.arg1") and each pointer step as "[]"; a
// pointer's bounds are told as null-ness and element count rather than as an
// interval.
#include "drs/drs_log.h"
#include "driver/options.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

// The name as the log shows it: the first "#N" becomes "argN+1", and every
// "*" becomes "[]". Built in one pass, so that a long name costs one copy.
static std::string log_name(const char *name) {
  std::string shown;
  const char *hash = strchr(name, '#');
  for (const char *c = name; *c; ++c) {
    if (c == hash) {
      long long number = 0;
      for (; c[1] >= '0' && c[1] <= '9'; ++c)
        if (number < 1000000000000LL)
          number = number * 10 + (c[1] - '0');
      shown += "arg" + std::to_string(number + 1);
    } else if (*c == '*') {
      shown += "[]";
    } else {
      shown += *c;
    }
  }
  return shown;
}

static const char *pointer_kind_text(unsigned kind) {
  switch (kind) {
  case DRS_PTR_MULTI:
    return "(multi) ";
  case DRS_PTR_SINGLE:
    return "(single) ";
  case DRS_PTR_MULTI_CERTAIN_WRITE:
    return "(multi_certain_write) ";
  case DRS_PTR_SINGLE_CERTAIN_WRITE:
    return "(single_certain_write) ";
  case DRS_PTR_NONE:
    return "(none) ";
  default:
    return "";
  }
}

static bool is_pointer_entry(const drs_entry *entry) { return entry->type && entry->type->unqual()->is_ptr(); }

void drs_log_entry(drs_entry *entry) {
  if (drs_no_log)
    return;
  fputs(flag_instrum ? "instrumenting drs: " : "data-range-specifications: ", stderr);
  fprintf(stderr, "'%s' ", log_name(entry->name).c_str());
  if (!is_pointer_entry(entry)) {
    fprintf(stderr, "in [%s..%s] ", entry->min, entry->max);
  } else {
    // Only the first character counts: a min of "0x10" reads as maybe null.
    if (entry->min[0] != '0')
      fprintf(stderr, "[%s] (not null) ", entry->max);
    else if (entry->max[0] == '0')
      fputs("(null) ", stderr);
    else
      fprintf(stderr, "[%s] (maybe null) ", entry->max);
    fputs(pointer_kind_text(entry->pointer_kind), stderr);
  }
  fprintf(stderr, "(%s)\n", drs_mode_names[entry->mode < 4 ? entry->mode : 0]);
}

char *drs_base_type_word(type_node *type) {
  type_node *t = type->unqual();
  char *word = static_cast<char *>(malloc(32));
  switch (t->op()) {
  case TYPE_INT:
    snprintf(word, 32, static_cast<base_type *>(t)->is_signed() ? "int%d" : "uint%d", t->size());
    return word;
  case TYPE_ENUM:
    snprintf(word, 32, static_cast<enum_type *>(t)->is_signed() ? "int%d" : "uint%d", t->size());
    return word;
  case TYPE_FLOAT:
    snprintf(word, 32, "float%u", (unsigned)t->size());
    return word;
  case TYPE_VOID:
    snprintf(word, 32, "void");
    return word;
  default:
    free(word);
    return nullptr;
  }
}

// The certain-write kinds fall to their plain form: the instrumenting tool
// knows only none, single and multi.
static const char *instrum_pointer_word(unsigned kind) {
  if (kind == DRS_PTR_NONE)
    return "none";
  if (((kind - 1) & ~4u) == 0)
    return "single";
  return "multi";
}

void drs_record_instrum(drs_entry *entry) {
  if (!flag_instrum || !entry->symbol)
    return;
  immed_list *data = new immed_list;
  data->append(immed(entry->name));
  data->append(immed(entry->min));
  data->append(immed(entry->max));
  data->append(immed(drs_mode_names[entry->mode < 4 ? entry->mode : 0]));
  if (is_pointer_entry(entry)) {
    data->append(immed("ptr"));
    data->append(immed(instrum_pointer_word(entry->pointer_kind)));
  } else if (char *word = entry->type ? drs_base_type_word(entry->type) : nullptr) {
    data->append(immed(word));
    free(word);
  }
  entry->symbol->append_annote(k_drs_instrum, data);
}
