// The entries of the input range file that the template still has to write,
// with an index by name: every element of the template asks for its path, so
// a walk of the list for each would make the export quadratic.
#include "drs_template/template_export.h"

#include <deque>
#include <string_view>
#include <unordered_map>

namespace {
std::unordered_map<std::string_view, std::deque<drs_entry_list::iterator>> by_name;
}

void template_entries_index() {
  by_name.clear();
  for (auto it = template_entries->begin(); it != template_entries->end(); ++it)
    by_name[(*it)->name].push_back(it);
}

drs_entry *take_template_entry(const char *path) {
  auto found = by_name.find(path);
  if (found == by_name.end())
    return nullptr;
  auto it = found->second.front();
  found->second.pop_front();
  if (found->second.empty())
    by_name.erase(found);
  drs_entry *entry = *it;
  template_entries->erase(it);
  return entry;
}

drs_entry *pop_template_entry() {
  if (template_entries->empty())
    return nullptr;
  // The list's first entry is the first of its name.
  return take_template_entry(template_entries->front()->name);
}
