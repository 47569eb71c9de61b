// The linear dead-mark computation against the closure algorithm it replaces,
// written out step by step: call lists searched linearly, a closure repeated
// until nothing changes, then the removal walk over every caller's list.
#include "analysis/used_symbols.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace {

using edge_list = std::vector<std::pair<uint32_t, uint32_t>>;

std::vector<bool> losers_by_closure(uint32_t node_count, const edge_list &edges) {
  std::map<uint32_t, std::vector<uint32_t>> call_map;
  std::vector<uint32_t> caller_list;
  auto add_call_edge = [&](uint32_t caller, uint32_t callee) {
    auto found = call_map.find(caller);
    if (found != call_map.end()) {
      auto &list = found->second;
      if (std::find(list.begin(), list.end(), callee) != list.end())
        return false;
      list.push_back(callee);
      return true;
    }
    call_map[caller] = {callee};
    caller_list.push_back(caller);
    return true;
  };
  for (const auto &[from, to] : edges)
    add_call_edge(from, to);

  bool changed = true;
  while (changed) {
    changed = false;
    std::vector<uint32_t> scratch = caller_list;
    for (uint32_t c : scratch) {
      for (size_t i = 0; i < call_map[c].size(); i++) { // grows during the walk
        uint32_t x = call_map[c][i];
        auto xs = call_map.find(x);
        if (xs == call_map.end())
          continue;
        std::vector<uint32_t> ys = xs->second;
        for (uint32_t y : ys)
          if (add_call_edge(c, y))
            changed = true;
      }
    }
  }

  std::vector<bool> loses(node_count, false);
  for (uint32_t c : caller_list)
    for (uint32_t x : call_map[c]) {
      auto xs = call_map.find(x);
      if (xs != call_map.end() && std::find(xs->second.begin(), xs->second.end(), c) != xs->second.end())
        continue;
      loses[x] = true;
    }
  return loses;
}

edge_list random_graph(std::mt19937 &rng, uint32_t nodes, uint32_t edge_count) {
  std::uniform_int_distribution<uint32_t> pick(0, nodes - 1);
  edge_list edges;
  for (uint32_t e = 0; e < edge_count; e++)
    edges.push_back({pick(rng), pick(rng)});
  return edges;
}

TEST(CallGraph, MatchesClosureOnRandomGraphs) {
  std::mt19937 rng(20261122);
  for (int round = 0; round < 3000; round++) {
    uint32_t nodes = 1 + rng() % 24;
    uint32_t edge_count = rng() % (nodes * 3 + 1);
    edge_list edges = random_graph(rng, nodes, edge_count);
    ASSERT_EQ(procs_called_from_outside(nodes, edges), losers_by_closure(nodes, edges))
        << "round " << round << ", " << nodes << " nodes, " << edge_count << " edges";
  }
}

TEST(CallGraph, LongChainDoesNotExhaustStack) {
  const uint32_t n = 2000000;
  edge_list edges;
  for (uint32_t i = 0; i + 1 < n; i++)
    edges.push_back({i, i + 1});
  edges.push_back({n - 1, 1}); // nodes 1..n-1 form one big cycle entered from 0
  std::vector<bool> loses = procs_called_from_outside(n, edges);
  EXPECT_FALSE(loses[0]);
  EXPECT_TRUE(loses[1]);
  EXPECT_TRUE(loses[n - 1]);
}

} // namespace
