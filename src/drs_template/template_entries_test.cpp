// The indexes of the entries still to be written against a plain walk of the
// list, on random names made of few parts so that names repeat and many are
// pointer targets of others.
#include "drs_template/template_export.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

drs_entry *linear_take(std::vector<drs_entry *> &list, const char *path) {
  for (auto it = list.begin(); it != list.end(); ++it)
    if (!strcmp((*it)->name, path)) {
      drs_entry *e = *it;
      list.erase(it);
      return e;
    }
  return nullptr;
}

drs_entry *linear_target(const std::vector<drs_entry *> &list, const char *name) {
  std::string target = std::string(name) + "*";
  for (drs_entry *e : list)
    if (strncmp(e->name, target.c_str(), target.size()) == 0)
      return e;
  return nullptr;
}

std::string random_name(std::mt19937 &rng) {
  static const char *parts[] = {"a", "b", "*", "*", ".x", ".#0", "f:"};
  std::string s = rng() % 4 ? "a" : "b";
  for (unsigned n = rng() % 4; n; n--)
    s += parts[rng() % 7];
  return s;
}

TEST(TemplateEntries, IndexesFindWhatAWalkOfTheListFinds) {
  std::mt19937 rng(7);
  for (int round = 0; round < 200; round++) {
    std::vector<std::string> names;
    for (unsigned n = rng() % 40; n; n--)
      names.push_back(random_name(rng));
    std::vector<drs_entry> storage(names.size());
    drs_entry_list list;
    std::vector<drs_entry *> expected;
    for (size_t i = 0; i < names.size(); i++) {
      storage[i].name = names[i].data();
      list.push_back(&storage[i]);
      expected.push_back(&storage[i]);
    }
    template_entries = &list;
    template_entries_index();
    for (int op = 0; op < 60; op++) {
      std::string probe = random_name(rng);
      switch (rng() % 3) {
      case 0:
        ASSERT_EQ(take_template_entry(probe.c_str()), linear_take(expected, probe.c_str())) << probe;
        break;
      case 1:
        ASSERT_EQ(pop_template_entry(), expected.empty() ? nullptr : linear_take(expected, expected[0]->name));
        break;
      default:
        ASSERT_EQ(first_template_target(probe.c_str()), linear_target(expected, probe.c_str())) << probe;
      }
    }
    ASSERT_EQ(std::vector<drs_entry *>(list.begin(), list.end()), expected);
  }
  template_entries = nullptr;
}

} // namespace
