// Type reachability. The graph of the global table's types is cut into strongly connected
// components once per run (Tarjan's algorithm, without recursion, so that long chains of types
// can't exhaust the stack), in time linear in types and edges. A type reaches another of its
// own component when the component holds a cycle; otherwise only a later-finished component
// can be reached, and a walk pruned by the finishing order answers. The question the random
// writers ask, whether a field's pointer leads back to its struct, has an edge from the struct
// to the field's type, so it is answered by the component numbers alone.
#include "maingen/random_values.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace {

struct reach_graph {
  std::unordered_map<type_node *, int> node_of;
  std::vector<std::vector<int>> edges;
  std::vector<int> component;     // per node, numbered in finishing order
  std::vector<bool> cyclic;       // per component: holds a cycle
};

reach_graph graph;

int node_for(type_node *type)
{
  auto [it, added] = graph.node_of.emplace(type, (int)graph.edges.size());
  if (added)
    graph.edges.emplace_back();
  return it->second;
}

void add_edge(int from, type_node *to)
{
  int target = node_for(to->unqual());
  graph.edges[from].push_back(target);
}

void add_type_edges(type_node *type)
{
  int from = node_for(type);
  switch (type->op()) {
  case TYPE_PTR:
    add_edge(from, static_cast<ptr_type *>(type)->ref_type());
    break;
  case TYPE_ARRAY:
    add_edge(from, static_cast<array_type *>(type)->elem_type());
    break;
  case TYPE_STRUCT:
  case TYPE_UNION: {
    struct_type *record = static_cast<struct_type *>(type);
    for (unsigned i = 0; i < record->num_fields(); i++)
      add_edge(from, record->field_type(i));
    break;
  }
  default: // groups and all other kinds lead nowhere
    break;
  }
}

void find_components()
{
  int count = (int)graph.edges.size();
  std::vector<int> order(count, -1), low(count, 0), stack, next_edge(count, 0), walk;
  std::vector<bool> on_stack(count, false);
  graph.component.assign(count, -1);
  int visited = 0, components = 0;
  for (int root = 0; root < count; root++) {
    if (order[root] >= 0)
      continue;
    walk.push_back(root);
    while (!walk.empty()) {
      int v = walk.back();
      if (order[v] < 0) {
        order[v] = low[v] = visited++;
        stack.push_back(v);
        on_stack[v] = true;
      }
      if (next_edge[v] < (int)graph.edges[v].size()) {
        int w = graph.edges[v][next_edge[v]++];
        if (order[w] < 0)
          walk.push_back(w);
        else if (on_stack[w])
          low[v] = std::min(low[v], order[w]);
        continue;
      }
      walk.pop_back();
      if (!walk.empty())
        low[walk.back()] = std::min(low[walk.back()], low[v]);
      if (low[v] != order[v])
        continue;
      bool cycle = false;
      int w;
      do {
        w = stack.back();
        stack.pop_back();
        on_stack[w] = false;
        graph.component[w] = components;
        cycle = cycle || w != v;
      } while (w != v);
      for (int x : graph.edges[v])
        cycle = cycle || x == v;
      graph.cyclic.push_back(cycle);
      components++;
    }
  }
}

// The relation is built over the types of the run's global table; a new table (a new run) has
// no mark yet and is built anew.
const char *built_mark()
{
  const char *name = intern("type_reach_built");
  if (!lookup_annote(name))
    register_annote(new annote_def(name, false));
  return name;
}

void build_graph()
{
  graph = reach_graph();
  global_symtab *table = static_cast<global_symtab *>(type_void->parent());
  for (type_node_list_e *e = table->types()->head(); e; e = e->next())
    add_type_edges(e->contents);
  find_components();
}

// Components finish before any that reaches them, so only those numbered from the target's
// up to the start's can lie on a path.
bool walk_reaches(int from, int to)
{
  int floor = graph.component[to], ceiling = graph.component[from];
  std::vector<bool> seen(graph.edges.size(), false);
  std::vector<int> pending = graph.edges[from];
  while (!pending.empty()) {
    int v = pending.back();
    pending.pop_back();
    if (v == to)
      return true;
    if (seen[v] || graph.component[v] < floor || graph.component[v] > ceiling)
      continue;
    seen[v] = true;
    pending.insert(pending.end(), graph.edges[v].begin(), graph.edges[v].end());
  }
  return false;
}

} // namespace

bool type_reaches(type_node *from, type_node *to)
{
  const char *mark = built_mark();
  base_symtab *table = type_void->parent();
  if (!table->peek_annote(mark)) {
    build_graph();
    table->append_annote(mark);
  }
  auto f = graph.node_of.find(from), t = graph.node_of.find(to);
  if (f == graph.node_of.end() || t == graph.node_of.end())
    return false;
  int cf = graph.component[f->second], ct = graph.component[t->second];
  if (cf == ct)
    return graph.cyclic[cf];
  if (ct > cf)
    return false;
  const std::vector<int> &back = graph.edges[t->second];
  if (std::find(back.begin(), back.end(), f->second) != back.end())
    return false; // to leads to from, and they are not one component
  return walk_reaches(f->second, t->second);
}
