// Dead marks from the strongly connected components of the call graph.
//
// A procedure keeps its dead mark exactly when every procedure that reaches it
// by direct calls is reached back by it, i.e. when no call enters its strongly
// connected component from another component. One pass of Tarjan's algorithm
// (iterative, so deep call chains don't exhaust the stack) numbers the
// components; one pass over the edges finds those entered from outside.
#include "analysis/used_symbols.h"

#include <algorithm>

namespace {

struct component_finder {
  const std::vector<uint32_t> &first_edge; // edges of node n: targets[first_edge[n] .. first_edge[n+1])
  const std::vector<uint32_t> &targets;
  std::vector<uint32_t> index, lowlink, component;
  std::vector<bool> on_stack;
  std::vector<uint32_t> stack;
  uint32_t next_index = 0, next_component = 0;
  static constexpr uint32_t unvisited = UINT32_MAX;

  component_finder(uint32_t n, const std::vector<uint32_t> &first, const std::vector<uint32_t> &tg)
      : first_edge(first), targets(tg), index(n, unvisited), lowlink(n, 0), component(n, 0), on_stack(n, false) {}

  void visit(uint32_t root) {
    // Each frame is a node and the position of its next edge to look at.
    std::vector<std::pair<uint32_t, uint32_t>> frames;
    enter(root);
    frames.push_back({root, first_edge[root]});
    while (!frames.empty()) {
      auto &[node, edge] = frames.back();
      if (edge < first_edge[node + 1]) {
        uint32_t next = targets[edge++];
        if (index[next] == unvisited) {
          enter(next);
          frames.push_back({next, first_edge[next]});
        } else if (on_stack[next]) {
          lowlink[node] = std::min(lowlink[node], index[next]);
        }
        continue;
      }
      uint32_t done = node;
      frames.pop_back();
      if (lowlink[done] == index[done]) {
        uint32_t member;
        do {
          member = stack.back();
          stack.pop_back();
          on_stack[member] = false;
          component[member] = next_component;
        } while (member != done);
        next_component++;
      }
      if (!frames.empty()) {
        uint32_t parent = frames.back().first;
        lowlink[parent] = std::min(lowlink[parent], lowlink[done]);
      }
    }
  }

  void enter(uint32_t node) {
    index[node] = lowlink[node] = next_index++;
    stack.push_back(node);
    on_stack[node] = true;
  }
};

} // namespace

std::vector<bool> procs_called_from_outside(uint32_t node_count,
                                            const std::vector<std::pair<uint32_t, uint32_t>> &edges) {
  // Adjacency in compressed form: one counting pass, one filling pass.
  std::vector<uint32_t> first_edge(node_count + 1, 0);
  for (const auto &[from, to] : edges)
    first_edge[from + 1]++;
  for (uint32_t n = 0; n < node_count; n++)
    first_edge[n + 1] += first_edge[n];
  std::vector<uint32_t> targets(edges.size());
  std::vector<uint32_t> fill(first_edge.begin(), first_edge.end() - 1);
  for (const auto &[from, to] : edges)
    targets[fill[from]++] = to;

  component_finder finder(node_count, first_edge, targets);
  for (uint32_t n = 0; n < node_count; n++)
    if (finder.index[n] == component_finder::unvisited)
      finder.visit(n);

  std::vector<bool> entered(finder.next_component, false);
  for (const auto &[from, to] : edges)
    if (finder.component[from] != finder.component[to])
      entered[finder.component[to]] = true;

  std::vector<bool> result(node_count);
  for (uint32_t n = 0; n < node_count; n++)
    result[n] = entered[finder.component[n]];
  return result;
}
