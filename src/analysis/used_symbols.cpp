// Used symbols and dead procedures, from one walk over every body.
//
// The walk marks every symbol that an instruction refers to and records the
// direct calls (a call whose address is a load of a procedure's symbol). A
// procedure with a body starts dead and loses the mark when a procedure outside
// its own call cycle calls it, directly or through others; the components of
// the call graph answer that in linear time (call_graph.cpp), where a
// closure over edge lists would be quadratic or worse.
#include "analysis/used_symbols.h"
#include "driver/options.h"

#include <algorithm>

static const char *k_used_symbol;
static const char *k_dead_proc;

namespace {

// What the walk gathers: the procedures walked (a procedure's number is its
// place here), the direct calls from each, and the symbols referred to by the
// body at hand. Those are marked once the body is walked, each once, in
// address order: touching a symbol at each reference would cost a cache miss
// per reference. It must happen before the body is freed, which frees its
// local symbols too.
struct walk_state {
  std::vector<sym_node *> procs;
  std::vector<std::pair<sym_node *, uint32_t>> calls; // callee, caller number
  std::vector<sym_node *> referred;
  uint32_t caller = 0;
};

walk_state *walk; // the state of the running analysis; null outside it

void mark_used(sym_node *sym) { walk->referred.push_back(sym); }

void visit_operand(instruction *, operand *r, void *) {
  if (r->is_symbol())
    mark_used(r->symbol());
}

void visit_instr(instruction *i, void *) {
  switch (i->opcode()) {
  case io_cal: {
    operand addr = static_cast<in_cal *>(i)->addr_op();
    if (addr.is_instr() && addr.instr()->opcode() == io_ldc) {
      const immed &callee = static_cast<in_ldc *>(addr.instr())->value();
      if (callee.is_symbol())
        walk->calls.push_back({callee.symbol(), walk->caller});
    }
    i->src_map(visit_operand, nullptr);
    break;
  }
  case io_ldc: {
    const immed &value = static_cast<in_ldc *>(i)->value();
    if (value.is_symbol())
      mark_used(value.symbol());
    break;
  }
  default:
    i->src_map(visit_operand, nullptr);
    break;
  }
}

void visit_node(tree_node *t, void *) {
  if (t->is_instr())
    static_cast<tree_instr *>(t)->instr_map(visit_instr, nullptr, true);
}

void mark_referred_symbols(std::vector<sym_node *> &referred) {
  std::sort(referred.begin(), referred.end());
  referred.erase(std::unique(referred.begin(), referred.end()), referred.end());
  for (sym_node *sym : referred)
    if (!sym->peek_annote(k_used_symbol))
      sym->append_annote(k_used_symbol);
  referred.clear();
}

// The calls as edges between procedure numbers, by a merge of the calls and
// the procedures both sorted by address, which is cheaper than a lookup per
// call. A callee that was not walked has no body here: it carries no dead
// mark, and no edge leaves it, so the calls to it change nothing and go.
std::vector<std::pair<uint32_t, uint32_t>> numbered_calls(walk_state &state) {
  std::vector<std::pair<sym_node *, uint32_t>> numbers;
  numbers.reserve(state.procs.size());
  for (uint32_t n = 0; n < state.procs.size(); n++)
    numbers.push_back({state.procs[n], n});
  std::sort(numbers.begin(), numbers.end());
  std::sort(state.calls.begin(), state.calls.end());
  std::vector<std::pair<uint32_t, uint32_t>> edges;
  edges.reserve(state.calls.size());
  auto proc = numbers.begin();
  for (const auto &[callee, caller] : state.calls) {
    while (proc != numbers.end() && proc->first < callee)
      ++proc;
    if (proc != numbers.end() && proc->first == callee)
      edges.push_back({caller, proc->second});
  }
  return edges;
}

// Removes the first dead mark of sym; the annotation object is not freed, as
// others may still hold it.
void remove_dead_mark(sym_node *sym) {
  annote_list *annotes = sym->annotes_if_any();
  if (!annotes)
    return;
  for (annote_list_e *e = annotes->head(); e; e = e->next())
    if (e->contents->name() == k_dead_proc) {
      delete annotes->remove(e); // the list element only
      return;
    }
}

} // namespace

void compute_used_symbols(file_set_entry *fse) {
  k_used_symbol = register_annote(new annote_def("used_symbol", false));
  k_dead_proc = register_annote(new annote_def("dead_proc", false));
  walk_state state;
  walk = &state;

  fse->reset_proc_iter();
  while (proc_sym *proc = fse->next_proc()) {
    proc->append_annote(k_dead_proc);
    proc->read_proc(true, false);
    if (tree_proc *body = proc->block()) {
      state.caller = static_cast<uint32_t>(state.procs.size());
      state.procs.push_back(proc);
      body->map(visit_node, nullptr, true, true);
      mark_referred_symbols(state.referred);
    }
    proc->flush_proc();
  }

  if (!flag_all_procs_used) {
    std::vector<bool> called =
        procs_called_from_outside(static_cast<uint32_t>(state.procs.size()), numbered_calls(state));
    for (uint32_t n = 0; n < state.procs.size(); n++)
      if (called[n])
        remove_dead_mark(state.procs[n]);
  }
  walk = nullptr;
}

bool is_used_symbol(sym_node *sym) { return k_used_symbol && sym->peek_annote(k_used_symbol); }

bool is_dead_proc(sym_node *sym) { return k_dead_proc && sym->peek_annote(k_dead_proc); }

// The analysis keeps nothing between runs but its two names, which the next
// run registers anew.
void free_used_symbols_scratch() {
  k_used_symbol = nullptr;
  k_dead_proc = nullptr;
}
