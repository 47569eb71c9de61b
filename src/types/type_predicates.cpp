// Type predicates: constness of parameters, pointer shapes, range paths and range marks.
//
// Constness is asked of a type graph that may hold cycles (through pointers) and many shared
// parts. A walk that only guards the types on its current path, as a first version would, can
// visit a shared part once per path and grows exponentially with the nesting. The answer does
// not depend on the path, though: a type is constant exactly when no state reachable from it
// is a non-constant leaf (the guard of a cycle answers "constant", the neutral value of the
// conjunction). So the walk below computes the strongly connected components of the graph of
// (question, type) states once, and keeps every answer for the rest of the run: each state is
// looked at once, whatever the number of parameters that reach it.
#include "types/type_predicates.h"

#include <algorithm>
#include <cstring>
#include <unordered_map>
#include <vector>

#include "drs/drs_model.h"

const char *k_const_type_handled = nullptr;
const char *k_const_param_type = nullptr;
const char *k_clean_write_handled = nullptr;

namespace {

// A state of the walk: one of the two questions about one type.
enum question { PARAM_IS_CONST = 0, TARGET_IS_CONST = 1 };

struct state {
  type_node *type;
  question q;
  bool operator==(const state &o) const { return type == o.type && q == o.q; }
};

struct state_hash {
  size_t operator()(const state &s) const {
    return std::hash<const void *>()(s.type) * 2 + (size_t)s.q;
  }
};

// Final answers of the run, 0 or 1.
std::unordered_map<state, char, state_hash> answers;

// The states a state's answer depends on (all must be constant), and its own value when it
// has none of them to ask: the leaves of the conjunction.
void successors(const state &s, std::vector<state> &out, char *leaf) {
  out.clear();
  *leaf = 1;
  type_node *t = s.type;
  if (s.q == PARAM_IS_CONST) {
    type_node *u = t->unqual();
    switch (u->op()) {
    case TYPE_PTR: out.push_back({static_cast<ptr_type *>(u)->ref_type(), TARGET_IS_CONST}); break;
    // The element as the array holds it, qualifiers included.
    case TYPE_ARRAY: out.push_back({static_cast<array_type *>(u)->elem_type(), PARAM_IS_CONST}); break;
    case TYPE_FUNC: *leaf = 0; break;
    case TYPE_STRUCT:
    case TYPE_UNION: {
      struct_type *st = static_cast<struct_type *>(u);
      for (unsigned i = 0; i < st->num_fields(); i++) out.push_back({st->field_type(i)->unqual(), PARAM_IS_CONST});
      break;
    }
    default: break;  // a value passed by copy can't be written through
    }
    return;
  }
  if (t->op() > TYPE_VOLATILE) {
    *leaf = 0;
    return;
  }
  switch (t->op()) {
  case TYPE_ARRAY: out.push_back({static_cast<array_type *>(t)->elem_type(), TARGET_IS_CONST}); break;
  case TYPE_STRUCT:
  case TYPE_UNION: {
    struct_type *st = static_cast<struct_type *>(t->unqual());
    for (unsigned i = 0; i < st->num_fields(); i++) out.push_back({st->field_type(i), TARGET_IS_CONST});
    break;
  }
  case TYPE_CONST: out.push_back({t->unqual(), PARAM_IS_CONST}); break;
  // unqual() drops every qualifier: a const under a volatile no longer counts.
  case TYPE_VOLATILE: out.push_back({t->unqual(), TARGET_IS_CONST}); break;
  default: *leaf = 0; break;
  }
}

// Tarjan's components, iteratively (type graphs can be deep). A component's answer is the
// conjunction of its members' leaves and of the answers of the components it reaches, which
// are final before it is closed.
int solve(const state &root) {
  auto known = answers.find(root);
  if (known != answers.end()) return known->second;

  struct info {
    int index, low;
    bool on_stack;
    char value;
  };
  struct frame {
    state s;
    std::vector<state> succ;
    size_t next;
  };
  std::unordered_map<state, info, state_hash> seen;
  std::vector<state> stack;
  std::vector<frame> calls;
  int counter = 0;

  auto enter = [&](const state &s) {
    char leaf;
    frame f{s, {}, 0};
    successors(s, f.succ, &leaf);
    seen[s] = {counter, counter, true, leaf};
    counter++;
    stack.push_back(s);
    calls.push_back(std::move(f));
  };

  enter(root);
  while (!calls.empty()) {
    frame &f = calls.back();
    info &fi = seen[f.s];
    if (f.next < f.succ.size()) {
      state w = f.succ[f.next++];
      auto a = answers.find(w);
      if (a != answers.end()) {
        fi.value &= a->second;
        continue;
      }
      auto it = seen.find(w);
      if (it == seen.end()) {
        enter(w);  // invalidates f and fi
      } else if (it->second.on_stack) {
        fi.low = std::min(fi.low, it->second.index);
      }
      continue;
    }
    state v = f.s;
    int low = fi.low;
    if (fi.low == fi.index) {
      // Close the component: its members share one answer.
      char value = 1;
      size_t first = stack.size();
      do {
        first--;
      } while (!(stack[first] == v));
      for (size_t i = first; i < stack.size(); i++) value &= seen[stack[i]].value;
      for (size_t i = first; i < stack.size(); i++) {
        seen[stack[i]].on_stack = false;
        answers[stack[i]] = value;
      }
      stack.resize(first);
    }
    calls.pop_back();
    if (!calls.empty()) {
      info &pi = seen[calls.back().s];
      auto a = answers.find(v);
      if (a != answers.end()) pi.value &= a->second;
      else pi.low = std::min(pi.low, low);
    }
  }
  return answers[root];
}

const char *register_mark(const char *name) {
  return register_annote(new annote_def(name, false));
}

}  // namespace

void forget_predicate_marks() {
  k_const_type_handled = k_const_param_type = k_clean_write_handled = nullptr;
  answers.clear();
}

int param_type_is_const(type_node *type) {
  if (!k_const_type_handled) k_const_type_handled = register_mark("const_type_handled");
  if (type->peek_annote(k_const_type_handled)) return 1;
  return solve({type, PARAM_IS_CONST});
}

int target_is_const(type_node *type) {
  return solve({type, TARGET_IS_CONST});
}

bool is_const_param(type_node *param_type) {
  if (!k_const_param_type) k_const_param_type = register_mark("const_param_type");
  if (annote *a = param_type->peek_annote(k_const_param_type))
    return a->immeds() && !a->immeds()->is_empty() && a->immeds()->head()->contents.integer() != 0;
  int r = param_type_is_const(param_type->unqual());
  immed_list *l = new immed_list;
  l->append(immed(r));
  param_type->append_annote(k_const_param_type, l);
  return r != 0;
}

static type_node *unqual_pointee(type_node *type) {
  if (!type) return nullptr;
  type_node *u = type->unqual();
  if (u->op() != TYPE_PTR) return nullptr;
  return static_cast<ptr_type *>(u)->ref_type()->unqual();
}

type_node *pointer_to_basic(type_node *type) {
  type_node *r = unqual_pointee(type);
  if (r && (r->op() == TYPE_INT || r->op() == TYPE_FLOAT || r->op() == TYPE_ENUM)) return r;
  return nullptr;
}

type_node *pointer_to_function(type_node *type) {
  type_node *r = unqual_pointee(type);
  if (r && r->op() == TYPE_FUNC) return r;
  return nullptr;
}

char *join_strings(string_list *pieces) {
  size_t n = 0;
  if (pieces)
    for (string_list_e *e = pieces->head(); e; e = e->next()) n += strlen(e->contents);
  char *r = new char[n + 1];
  r[0] = '\0';
  char *p = r;
  if (pieces)
    for (string_list_e *e = pieces->head(); e; e = e->next()) {
      size_t k = strlen(e->contents);
      memcpy(p, e->contents, k);
      p += k;
    }
  *p = '\0';
  return r;
}

char *split_path_head(const char *path, const char **rest) {
  if (rest) *rest = nullptr;
  if (!path) return nullptr;
  const char *colon = strchr(path, ':');
  size_t i = colon ? (size_t)(colon - path) : 0;
  // A "*" in the very first position is the path's own step through a pointer, no separator.
  for (; path[i]; i++) {
    if (path[i] == '.' || (i != 0 && path[i] == '*')) break;
  }
  if (!path[i]) return const_cast<char *>(path);
  if (rest) *rest = path[i] == '.' ? path + i + 1 : path + i;
  return bufprintf("%.*s", (int)i, path);
}

int find_field(const char *name, struct_type *type) {
  static const char anon[] = "qvtunnsubs";
  const size_t anon_len = sizeof anon - 1;
  if (!name || !type) return -1;
  bool name_is_anon = strncmp(name, anon, anon_len) == 0;
  for (unsigned i = 0; i < type->num_fields(); i++) {
    const char *fname = type->field_name(i);
    if (!fname) continue;
    if (strcmp(fname, name) == 0) return (int)i;
    if (name_is_anon || strncmp(fname, anon, anon_len) != 0) continue;
    type_node *ft = type->field_type(i)->unqual();
    if ((ft->op() == TYPE_STRUCT || ft->op() == TYPE_UNION) && find_field(name, static_cast<struct_type *>(ft)) >= 0)
      return (int)i;
  }
  return -1;
}

bool key_prefix_matches(const char *key, const char *name) {
  if (!key || !name) return false;
  size_t n = strlen(key);
  if (strncmp(name, key, n) != 0) return false;
  char c = name[n];
  if (c == '\0') return true;
  // Names go on with lower-case letters, digits, and the characters from "Z" up; anything
  // else ends the key's element. The stop at "Z" is deliberate.
  return (signed char)c < '0' || (c >= ':' && c < 'Z');
}

int pointer_kind_from_annote(int code) {
  switch (code) {
  case 1: return DRS_PTR_SINGLE;
  case 2: return DRS_PTR_NONE;
  case 3: return DRS_PTR_MULTI_CERTAIN_WRITE;
  case 4: return DRS_PTR_SINGLE_CERTAIN_WRITE;
  default: return DRS_PTR_MULTI;
  }
}

static char *copy_text(const char *s) {
  return s ? strdup(s) : nullptr;
}

subrange_list *drs_subranges_of(sym_node *sym, const char *key, bool exact) {
  subrange_list *result = nullptr;
  if (!sym || !key || !sym->annotes_if_any()) return nullptr;
  size_t key_len = strlen(key);
  for (annote_list_e *e = sym->annotes_if_any()->head(); e; e = e->next()) {
    annote *a = e->contents;
    if (a->name() != k_drs || !a->immeds()) continue;
    immed_list_e *mode = a->immeds()->head();
    if (!mode || !mode->contents.is_string()) continue;
    immed_list_e *full = mode->next();
    if (!full || !full->contents.is_string()) continue;
    const char *name = full->contents.string();
    if (exact ? strcmp(name, key) != 0 : !key_prefix_matches(key, name)) continue;
    immed_list_e *lo = full->next();
    immed_list_e *hi = lo ? lo->next() : nullptr;
    immed_list_e *code = hi ? hi->next() : nullptr;
    subrange *s = new subrange;
    const char *path = name + key_len;
    if (*path == '.') path++;
    s->path = copy_text(path);
    s->min = lo && lo->contents.is_string() ? lo->contents.string() : "";
    s->max = hi && hi->contents.is_string() ? hi->contents.string() : "";
    s->pointer_mode = pointer_kind_from_annote(code ? (int)code->contents.integer() : 0);
    if (!result) result = new subrange_list;
    result->push_back(s);
  }
  return result;
}

subrange_list *copy_subranges(subrange_list *list) {
  subrange_list *r = new subrange_list;
  if (!list) return r;
  for (subrange *s : *list) r->push_back(new subrange{copy_text(s->path), copy_text(s->min), copy_text(s->max), s->pointer_mode});
  return r;
}

// The questions on the entries read are put once a pointer or a range of every generated
// function, and the entries may number as many as the program's symbols: a walk of the list per
// question grows with their product. They are answered from the entries sorted by name (list
// order kept among equal names), so that the entries of one name or one prefix stand together.
// The index is made again when the list is another or has grown; a fully_handled flag only
// ever goes from false to true, and is read from the entry at each question.
namespace {

struct entry_index {
  const drs_entry_list *list = nullptr;
  size_t size = 0;
  const drs_entry *front = nullptr, *back = nullptr;
  std::vector<drs_entry *> by_name;
};

entry_index &current_entry_index() {
  static entry_index index;
  const drs_entry_list *list = drs_read_entries;
  const drs_entry *front = list->empty() ? nullptr : list->front();
  const drs_entry *back = list->empty() ? nullptr : list->back();
  if (index.list != list || index.size != list->size() || index.front != front || index.back != back) {
    index.list = list;
    index.size = list->size();
    index.front = front;
    index.back = back;
    index.by_name.clear();
    for (drs_entry *e : *list)
      if (e->name) index.by_name.push_back(e);
    std::stable_sort(index.by_name.begin(), index.by_name.end(),
                     [](const drs_entry *a, const drs_entry *b) { return strcmp(a->name, b->name) < 0; });
  }
  return index;
}

// The first entry, in name order, whose name is not below text.
std::vector<drs_entry *>::const_iterator first_not_below(const entry_index &index, const char *text) {
  return std::lower_bound(index.by_name.begin(), index.by_name.end(), text,
                          [](const drs_entry *e, const char *t) { return strcmp(e->name, t) < 0; });
}

} // namespace

bool all_drs_entries_flagged(const char *key, bool exact, bool value, bool every) {
  if (!key || !drs_read_entries) return false;
  const entry_index &index = current_entry_index();
  auto it = first_not_below(index, key);
  if (exact)
    return it != index.by_name.end() && strcmp((*it)->name, key) == 0 && (*it)->fully_handled == value;
  // In list order the answer would be: with every, whether all entries of the prefix agree; without
  // it, whether one does; false when none has the prefix. Order among them doesn't change that.
  size_t n = strlen(key);
  bool matched = false;
  for (; it != index.by_name.end() && strncmp((*it)->name, key, n) == 0; ++it) {
    matched = true;
    bool agreed = (*it)->fully_handled == value;
    if (agreed && !every) return true;
    if (!agreed && every) return false;
  }
  return matched && every;
}

bool drs_write_is_uncertain(int pointer_mode, const char *key) {
  if (pointer_mode != DRS_PTR_SINGLE && pointer_mode != DRS_PTR_MULTI) return false;
  if (drs_file_version != -1 && drs_file_version != 1) return true;
  if (!drs_read_entries || !key) return true;
  const char *target = bufprintf("%s*", key);
  size_t n = strlen(target);
  const entry_index &index = current_entry_index();
  for (auto it = first_not_below(index, target); it != index.by_name.end() && strncmp((*it)->name, target, n) == 0; ++it)
    if (!(*it)->fully_handled) return false;
  return true;
}
