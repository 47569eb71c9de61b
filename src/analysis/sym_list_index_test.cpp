// The indexed symbol list against the direct list operations it replaces:
// a linear search for membership and for the first occurrence to remove.
#include "analysis/sym_list_index.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

std::vector<sym_node *> contents(const sym_node_list &list) {
  std::vector<sym_node *> out;
  for (sym_node_list_e *e = list.head(); e; e = e->next())
    out.push_back(e->contents);
  return out;
}

// Stand-ins for symbols: the index never looks behind the pointer.
sym_node *fake_sym(uintptr_t n) { return reinterpret_cast<sym_node *>((n + 1) * 16); }

TEST(SymListIndex, MatchesLinearSearchesOnRandomOperations) {
  std::mt19937 rng(4242);
  for (int round = 0; round < 400; round++) {
    uint32_t universe = 1 + rng() % 12;
    sym_node_list fast_list, slow_list;
    // Start from a list with duplicates, as an index may be built over any list.
    for (uint32_t i = rng() % 8; i > 0; i--) {
      sym_node *s = fake_sym(rng() % universe);
      fast_list.append(s);
      slow_list.append(s);
    }
    sym_list_index index(&fast_list);
    for (int step = 0; step < 60; step++) {
      sym_node *s = fake_sym(rng() % universe);
      sym_node_list_e *first = slow_list.lookup(s);
      switch (rng() % 4) {
      case 0:
        ASSERT_EQ(index.contains(s), first != nullptr);
        break;
      case 1:
        index.append(s);
        slow_list.append(s);
        break;
      case 2:
        ASSERT_EQ(index.append_if_absent(s), first == nullptr);
        if (!first)
          slow_list.append(s);
        break;
      case 3:
        ASSERT_EQ(index.remove_first(s), first != nullptr);
        if (first)
          delete slow_list.remove(first);
        break;
      }
      ASSERT_EQ(contents(fast_list), contents(slow_list)) << "round " << round << " step " << step;
    }
  }
}

} // namespace
