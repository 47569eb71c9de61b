// What a user and the instrumenting tool see of the ranges that took effect:
// one line on stderr for each entry that reaches application, and the same
// facts as a k_drs_instrum annotation on its symbol under -instrument.
#pragma once

#include "drs/drs_model.h"

// The log line of an entry, as the user wrote its name ("#N" shown as
// "argN+1", "*" as "[]"); silent under drs_no_log.
void drs_log_entry(drs_entry *entry);
// Appends k_drs_instrum to entry->symbol; nothing without flag_instrum or a
// symbol. REQUIRES: entry->type set.
void drs_record_instrum(drs_entry *entry);
// "int32", "uint8", "float64", "void" for a base or enum type: a new 32-byte
// text; null for any other type.
char *drs_base_type_word(type_node *type);
