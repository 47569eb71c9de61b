// Membership by hash map beside the list, so that building a list of n symbols
// with "append unless present" and "remove first occurrence" costs O(n).
#include "analysis/sym_list_index.h"

sym_list_index::sym_list_index(sym_node_list *list) : list_(list) {
  for (sym_node_list_e *e = list->head(); e; e = e->next())
    elements_[e->contents].push_back(e);
}

bool sym_list_index::contains(sym_node *sym) const {
  auto found = elements_.find(sym);
  return found != elements_.end() && !found->second.empty();
}

void sym_list_index::append(sym_node *sym) { elements_[sym].push_back(list_->append(sym)); }

bool sym_list_index::append_if_absent(sym_node *sym) {
  if (contains(sym))
    return false;
  append(sym);
  return true;
}

bool sym_list_index::remove_first(sym_node *sym) {
  auto found = elements_.find(sym);
  if (found == elements_.end() || found->second.empty())
    return false;
  sym_node_list_e *first = found->second.front();
  found->second.pop_front();
  delete list_->remove(first);
  return true;
}
