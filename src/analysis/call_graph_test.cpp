// The linear dead-mark computation against the closure algorithm it replaces.
#include "analysis/used_symbols.h"

#include <gtest/gtest.h>

#include <random>

#include "analysis/call_closure_test_util.h"

namespace {

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
