// Binding of range entries: from the text of drs_read_entries to three lists of entries whose
// symbol and leaf type are known and whose bounds are plain literals (drs_init_entries,
// drs_permanent_entries, drs_assert_entries). A rejected entry is warned about and stays in
// drs_read_entries only.
#pragma once

#include "drs/drs_model.h"

#include <unordered_map>

// Entries of one mode by interned head name (the symbol part of their names).
using drs_key_map = std::unordered_map<const char *, drs_entry_list>;

// The whole binding: every entry of drs_read_entries, by mode (init, permanent, globalassert),
// then by symbol, then in file order.
void drs_bind_entries();

// Walks type along path (null: the leaf is reached) and checks the leaf and its bounds for
// mode; stores the leaf in entry->type. Function arguments and returns are checked as init.
bool drs_check_path(type_node *type, const char *path, drs_entry *entry, unsigned mode, bool in_aggregate);

// The duplicate rules: the first line in the file wins, except that one init and one
// globalassert range of one name stand together. True if entry goes into a result list.
bool drs_accept_entry(drs_entry *entry);
bool drs_is_range_subset(drs_entry *outer, drs_entry *inner);

// True, after a warning where one is due, when all the entries of key are to be dropped: a
// symbol that doesn't exist or a special function register; a function in globalassert mode.
bool drs_reject_variable(sym_node *symbol, const char *key, const drs_key_map &map);
bool drs_reject_proc_for_assert(sym_node *symbol, const char *key, const drs_key_map &map);

// The word of a type's operator in messages ("integer", "pointer", ...; "" for others).
const char *drs_type_word(type_node *type);
