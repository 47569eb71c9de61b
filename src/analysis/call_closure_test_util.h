// The dead-mark rule as first written, for the random comparisons of the
// call graph and of the used-symbol marks: call lists searched linearly, a
// closure repeated until nothing changes, then the removal walk over every
// caller's list. loses[x]: something outside x's own cycle calls x.
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

using edge_list = std::vector<std::pair<uint32_t, uint32_t>>;

inline std::vector<bool> losers_by_closure(uint32_t node_count, const edge_list &edges) {
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
