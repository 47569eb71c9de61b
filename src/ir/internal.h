// Library-internal state shared by the tables, the reader and the writer:
// the run-wide id counters and the id maps of the reader.
#pragma once

#include "ir/forward.h"

namespace ir_internal {
// Fresh ids; ids read from a file are noted so that fresh ones stay above.
unsigned new_sym_id();
unsigned new_type_id();
// The next fresh ids, without taking them.
unsigned peek_sym_id();
unsigned peek_type_id();
void note_sym_id(unsigned id);
void note_type_id(unsigned id);
// Forgets all ids (exit_suif).
void reset_ids();

// Objects by id, for the reader and for bodies read later.
void map_sym(unsigned id, sym_node *s);
void map_type(unsigned id, type_node *t);
void unmap_sym(unsigned id);
void unmap_type(unsigned id);
sym_node *sym_by_id(unsigned id);
// The sym_kinds value of a symbol id, -1 when absent.
int sym_kind_of_id(unsigned id);
type_node *type_by_id(unsigned id);
bool sym_id_taken(unsigned id);
bool type_id_taken(unsigned id);
}  // namespace ir_internal
