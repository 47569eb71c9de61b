// A symbol list with constant-time membership and removal of a symbol's first
// occurrence, for the lists that symbol collection searches by symbol.
//
// The list itself stays an ordinary sym_node_list that the generators read;
// the index only remembers, for each symbol, its elements in list order.
#pragma once

#include "ir/ir.h"

#include <deque>
#include <unordered_map>

class sym_list_index {
public:
  // Indexes list as it stands; later changes must go through this object.
  // REQUIRES: list is not null and outlives the index.
  explicit sym_list_index(sym_node_list *list);

  bool contains(sym_node *sym) const;
  void append(sym_node *sym);
  // Appends sym unless the list holds it already; true if appended.
  bool append_if_absent(sym_node *sym);
  // Unlinks and deletes the first element holding sym; false if there is none.
  bool remove_first(sym_node *sym);

private:
  sym_node_list *list_;
  std::unordered_map<sym_node *, std::deque<sym_node_list_e *>> elements_;
};
