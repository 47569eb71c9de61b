// The entries of the input range file that the template still has to write,
// with two indexes: by name, and by every prefix of a name that ends at a '*'
// (the pointer targets below an entry). Every element of the template asks for
// its path and every leftover entry for its targets, so a walk of the list for
// each would make the export quadratic.
//
// Both indexes hold entries in list order and are built once: the list only
// loses entries while the template is written. The target index drops the
// entries taken out lazily, when they come to the front of a bucket.
#include "drs_template/template_export.h"

#include <cstring>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace {
std::unordered_map<std::string_view, std::deque<drs_entry_list::iterator>> by_name;
std::unordered_map<std::string_view, std::deque<drs_entry *>> by_target_prefix;
std::unordered_set<const drs_entry *> taken;
}

void template_entries_index() {
  by_name.clear();
  by_target_prefix.clear();
  taken.clear();
  for (auto it = template_entries->begin(); it != template_entries->end(); ++it) {
    const char *name = (*it)->name;
    by_name[name].push_back(it);
    for (const char *star = name; (star = strchr(star, '*')); star++)
      by_target_prefix[std::string_view(name, star - name + 1)].push_back(*it);
  }
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
  taken.insert(entry);
  return entry;
}

drs_entry *pop_template_entry() {
  if (template_entries->empty())
    return nullptr;
  // The list's first entry is the first of its name.
  return take_template_entry(template_entries->front()->name);
}

drs_entry *first_template_target(const char *name) {
  std::string prefix = std::string(name) + "*";
  auto found = by_target_prefix.find(prefix);
  if (found == by_target_prefix.end())
    return nullptr;
  std::deque<drs_entry *> &bucket = found->second;
  while (!bucket.empty() && taken.count(bucket.front()))
    bucket.pop_front();
  return bucket.empty() ? nullptr : bucket.front();
}
