// Type predicates. The constness walk is checked on the shapes that matter (cycles, const
// placement, arrays, functions) and against a direct transcription of the path-guarded
// walk on many random type graphs; path and range helpers on their boundaries.
#include "types/type_predicates.h"

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "drs/drs_model.h"
#include "types/ir_test_fixture.h"

namespace {

// The walk as first written: a guard mark on each type of the current path.
const char *literal_guard() {
  static const char *k = nullptr;
  if (!k) k = lexicon->enter("literal_const_guard")->sp;
  return k;
}

int literal_param_is_const(type_node *type);

int literal_target_is_const(type_node *type) {
  for (;;) {
    if (type->op() > TYPE_VOLATILE) return 0;
    switch (type->op()) {
    case TYPE_ARRAY: type = static_cast<array_type *>(type)->elem_type(); continue;
    case TYPE_STRUCT:
    case TYPE_UNION: {
      struct_type *s = static_cast<struct_type *>(type->unqual());
      for (unsigned i = 0; i < s->num_fields(); i++)
        if (!literal_target_is_const(s->field_type(i))) return 0;
      return 1;
    }
    case TYPE_CONST: return literal_param_is_const(type->unqual());
    case TYPE_VOLATILE: type = type->unqual(); continue;
    default: return 0;
    }
  }
}

int literal_param_is_const(type_node *type) {
  if (type->peek_annote(literal_guard())) return 1;
  type_node *u = type->unqual();
  int r = 1;
  switch (u->op()) {
  case TYPE_PTR:
    type->append_annote(literal_guard());
    r = literal_target_is_const(static_cast<ptr_type *>(u)->ref_type());
    delete type->get_annote(literal_guard());
    return r;
  case TYPE_ARRAY:
    type->append_annote(literal_guard());
    r = literal_param_is_const(static_cast<array_type *>(u)->elem_type());
    delete type->get_annote(literal_guard());
    return r;
  case TYPE_FUNC: return 0;
  case TYPE_STRUCT:
  case TYPE_UNION: {
    type->append_annote(literal_guard());
    struct_type *s = static_cast<struct_type *>(u);
    for (unsigned i = 0; i < s->num_fields(); i++)
      if (!literal_param_is_const(s->field_type(i)->unqual())) {
        r = 0;
        break;
      }
    delete type->get_annote(literal_guard());
    return r;
  }
  default: return 1;
  }
}

class type_predicates_test : public ir_test {};

TEST_F(type_predicates_test, constness_of_hand_made_shapes) {
  struct_type *ints = b->struct_of("ints", {{"a", type_signed}, {"b", type_double}});
  struct_type *holds_ptr = b->struct_of("holds", {{"a", type_signed}, {"p", b->ptr(type_char)}});
  // struct s { struct s *next; }: writable through next.
  struct_type *s = b->struct_of("s", {{"next", type_signed}});
  ptr_type *ps = b->ptr(s);
  s->set_field_type(0, ps);
  // struct c { const struct c *next; } behind a pointer to const: constant all along.
  struct_type *c = b->struct_of("c", {{"next", type_signed}});
  ptr_type *pcc = b->ptr(b->const_of(c));
  c->set_field_type(0, pcc);
  const std::pair<type_node *, bool> cases[] = {
      {b->ptr(b->const_of(type_char)), true},
      {b->const_of(b->ptr(type_char)), false},
      {b->ptr(type_char), false},
      {type_signed, true},
      {b->ptr(b->func(type_void, {})), false},
      // Only a const on the outside counts: volatile hides the const below it.
      {b->ptr(b->const_of(b->volatile_of(type_signed))), true},
      {b->ptr(b->volatile_of(b->const_of(type_signed))), false},
      {b->ptr(b->array(b->const_of(type_signed), 4)), true},
      {b->ptr(b->array(type_signed, 4)), false},
      {ints, true},
      {holds_ptr, false},
      {b->struct_of("empty", {}), true},
      {b->ptr(b->const_of(ints)), true},
      {b->ptr(ints), false},
      {ps, false},
      {s, false},
      {pcc, true},
  };
  for (auto &[type, want] : cases) {
    EXPECT_EQ(is_const_param(type), want) << type->type_id();
    EXPECT_EQ(literal_param_is_const(type->unqual()) != 0, want) << type->type_id();
  }
}

// Random type graphs: structs and unions that point to each other (cycles), hold each other by
// value (only earlier ones), and fields of every other kind, with qualifiers anywhere.
struct graph_maker {
  program_builder *b;
  std::mt19937 &rng;
  std::vector<struct_type *> aggregates;

  int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng); }

  type_node *random_type(int depth, size_t by_value_limit) {
    int k = pick(depth > 2 ? 5 : 11);
    switch (k) {
    case 0: return type_signed;
    case 1: return type_double;
    case 2: return b->enum_of("e", {{"A", 0}});
    case 3: return aggregates.empty() ? type_char : b->ptr(aggregates[pick((int)aggregates.size())]);
    case 4: return by_value_limit ? aggregates[pick((int)by_value_limit)] : type_signed;
    case 5: return b->ptr(random_type(depth + 1, by_value_limit));
    case 6: return b->const_of(random_type(depth + 1, by_value_limit));
    case 7: return b->volatile_of(random_type(depth + 1, by_value_limit));
    case 8: return b->array(random_type(depth + 1, by_value_limit), 1 + pick(3));
    case 9: return b->func(type_signed, {random_type(depth + 1, by_value_limit)});
    default: return b->ptr(b->const_of(random_type(depth + 1, by_value_limit)));
    }
  }

  void make(int n) {
    for (int i = 0; i < n; i++) {
      int fields = pick(4);
      struct_type *s = pick(4) == 0 ? b->union_of("u", {}) : b->struct_of("s", {});
      s->set_num_fields(fields);
      for (int f = 0; f < fields; f++) {
        s->set_field_name(f, "f");
        s->set_field_type(f, type_signed);
      }
      aggregates.push_back(s);
    }
    for (size_t i = 0; i < aggregates.size(); i++)
      for (unsigned f = 0; f < aggregates[i]->num_fields(); f++) aggregates[i]->set_field_type(f, random_type(0, i));
  }
};

TEST_F(type_predicates_test, fast_walk_agrees_with_the_path_guarded_walk) {
  std::mt19937 rng(12345);
  int compared = 0, constant = 0;
  for (int round = 0; round < 400; round++) {
    graph_maker g{b, rng, {}};
    g.make(1 + g.pick(7));
    std::vector<type_node *> roots;
    for (struct_type *s : g.aggregates) {
      roots.push_back(s);
      roots.push_back(b->ptr(s));
      roots.push_back(b->ptr(b->const_of(s)));
      for (int i = 0; i < 3; i++) roots.push_back(g.random_type(0, g.aggregates.size()));
    }
    for (type_node *t : roots) {
      int want = literal_param_is_const(t->unqual());
      ASSERT_EQ(param_type_is_const(t->unqual()), want) << "round " << round;
      ASSERT_EQ(target_is_const(t), literal_target_is_const(t)) << "round " << round;
      ASSERT_EQ(is_const_param(t), want != 0) << "round " << round;
      compared++;
      constant += want;
    }
  }
  // Both answers occur often enough for the comparison to mean something.
  EXPECT_GT(constant, compared / 10);
  EXPECT_LT(constant, compared - compared / 10);
}

TEST_F(type_predicates_test, shared_parts_are_walked_once) {
  // A ladder of structs, each holding two pointers to const of the next: the path-guarded
  // walk visits the last rung 2^n times; the answer must come at once.
  const int n = 60;
  std::vector<struct_type *> rungs;
  for (int i = 0; i < n; i++) rungs.push_back(b->struct_of("r", {{"a", type_signed}, {"b", type_signed}}));
  for (int i = 0; i + 1 < n; i++) {
    ptr_type *p = b->ptr(b->const_of(rungs[i + 1]));
    rungs[i]->set_field_type(0, p);
    rungs[i]->set_field_type(1, p);
  }
  EXPECT_TRUE(is_const_param(b->ptr(b->const_of(rungs[0]))));
  rungs[n - 1]->set_field_type(1, b->ptr(type_char));
  forget_predicate_marks();
  EXPECT_FALSE(is_const_param(b->ptr(b->const_of(rungs[1]))));
}

TEST_F(type_predicates_test, pointer_shapes) {
  enum_type *e = b->enum_of("e", {{"A", 1}});
  EXPECT_EQ(pointer_to_basic(b->ptr(b->const_of(type_signed))), type_signed);
  EXPECT_EQ(pointer_to_basic(b->const_of(b->ptr(type_float))), type_float);
  EXPECT_EQ(pointer_to_basic(b->ptr(e)), e);
  EXPECT_EQ(pointer_to_basic(b->ptr(b->ptr(type_signed))), nullptr);
  EXPECT_EQ(pointer_to_basic(type_signed), nullptr);
  func_type *f = b->func(type_void, {});
  EXPECT_EQ(pointer_to_function(b->ptr(f)), f);
  EXPECT_EQ(pointer_to_function(b->ptr(type_void)), nullptr);
}

TEST_F(type_predicates_test, split_path_head) {
  const struct {
    const char *path, *head, *rest;
  } cases[] = {
      {"file.c:var.field", "file.c:var", "field"}, {"v.f.g", "v", "f.g"}, {"p*", "p", "*"},
      {"*x.y", "*x", "y"}, {"a:b*c", "a:b", "*c"}, {"f.#1*", "f", "#1*"},
      {"x", "x", nullptr}, {"*", "*", nullptr},
  };
  for (auto &c : cases) {
    const char *rest = "untouched";
    EXPECT_STREQ(split_path_head(c.path, &rest), c.head) << c.path;
    EXPECT_STREQ(rest, c.rest) << c.path;
  }
  const char *rest = "untouched";
  EXPECT_EQ(split_path_head(nullptr, &rest), nullptr);
  EXPECT_EQ(rest, nullptr);
  EXPECT_STREQ(split_path_head("a.b", nullptr), "a");
}

TEST_F(type_predicates_test, find_field_through_anonymous_members) {
  struct_type *inner2 = b->struct_of("i2", {{"deep", type_signed}});
  struct_type *u = b->union_of("9", {{"u1", type_signed}, {"u2", type_float}, {"qvtunnsubs1", inner2}});
  struct_type *s = b->struct_of("s", {{"a", type_signed}, {"qvtunnsubs0", b->const_of(u)}, {"b", type_signed}});
  EXPECT_EQ(find_field("a", s), 0);
  EXPECT_EQ(find_field("u2", s), 1);
  EXPECT_EQ(find_field("deep", s), 1);
  EXPECT_EQ(find_field("b", s), 2);
  EXPECT_EQ(find_field("qvtunnsubs0", s), 1);
  // A name of an anonymous member itself is never looked for inside another one.
  EXPECT_EQ(find_field("qvtunnsubs1", s), -1);
  EXPECT_EQ(find_field("zz", s), -1);
  EXPECT_EQ(find_field("a", b->struct_of("e", {})), -1);
}

TEST_F(type_predicates_test, key_prefix_matches_at_element_boundaries) {
  const struct {
    const char *prefix, *key;
    bool want;
  } cases[] = {
      {"f.#1", "f.#1", true}, {"f.#1", "f.#1.x", true}, {"f.#1", "f.#1*", true}, {"f.#1", "f.#10", false},
      {"f", "fa", false},     {"f", "f:x", true},       {"f", "fA", true},       {"f", "fY", true},
      {"f", "fZ", false},     {"f", "f_", false},       {"f", "f\xc3\xa9", true}, {"g", "f", false},
      {nullptr, "f", false},  {"f", nullptr, false},
  };
  for (auto &c : cases)
    EXPECT_EQ(key_prefix_matches(c.prefix, c.key), c.want) << (c.prefix ? c.prefix : "null") << " / "
                                                           << (c.key ? c.key : "null");
}

TEST_F(type_predicates_test, subranges_of_a_procedure) {
  proc_sym *f = b->extern_proc("f", b->func(type_signed, {b->ptr(type_signed)}));
  b->annotate(f, k_drs, {immed("init"), immed("f.return"), immed("0"), immed("10")});
  b->annotate(f, k_drs, {immed("init"), immed("f.#0"), immed("1"), immed("2"), immed(3)});
  b->annotate(f, k_drs, {immed("init"), immed("f.#01"), immed("5"), immed("6")});
  b->annotate(f, k_drs, {immed(7), immed("f.#0"), immed("8"), immed("9")});
  b->annotate(f, k_source_coordinates, {immed("f.#0")});

  subrange_list *exact = drs_subranges_of(f, "f.return", true);
  ASSERT_NE(exact, nullptr);
  ASSERT_EQ(exact->size(), 1u);
  EXPECT_STREQ((*exact)[0]->path, "");
  EXPECT_STREQ((*exact)[0]->min, "0");
  EXPECT_STREQ((*exact)[0]->max, "10");
  EXPECT_EQ((*exact)[0]->pointer_mode, DRS_PTR_MULTI);

  subrange_list *all = drs_subranges_of(f, "f", false);
  ASSERT_NE(all, nullptr);
  ASSERT_EQ(all->size(), 3u);
  EXPECT_STREQ((*all)[0]->path, "return");
  EXPECT_STREQ((*all)[1]->path, "#0");
  EXPECT_EQ((*all)[1]->pointer_mode, DRS_PTR_MULTI_CERTAIN_WRITE);
  EXPECT_STREQ((*all)[2]->path, "#01");

  subrange_list *arg = drs_subranges_of(f, "f.#0", false);
  ASSERT_NE(arg, nullptr);
  EXPECT_EQ(arg->size(), 1u);
  EXPECT_EQ(drs_subranges_of(f, "f.#2", false), nullptr);
  EXPECT_EQ(drs_subranges_of(f, "f.ret", true), nullptr);

  subrange_list *copy = copy_subranges(all);  // deep: the texts are copies
  ASSERT_EQ(copy->size(), 3u);
  EXPECT_NE((*copy)[0]->path, (*all)[0]->path);
  EXPECT_STREQ((*copy)[0]->path, "return");
  EXPECT_TRUE(copy_subranges(nullptr)->empty());
}

class drs_records_test : public type_predicates_test {
protected:
  void SetUp() override {
    type_predicates_test::SetUp();
    drs_init_state();
  }
  void TearDown() override {
    drs_free_state();
    type_predicates_test::TearDown();
  }
  void add(const char *name, bool handled) {
    drs_entry *e = drs_new_entry(DRS_MODE_INIT, name, "0", "1", 1, DRS_PTR_MULTI);
    e->fully_handled = handled;
    drs_read_entries->push_back(e);
  }
};

TEST_F(drs_records_test, all_entries_flagged) {
  EXPECT_FALSE(all_drs_entries_flagged("f.#0", false, true, true));
  add("f.#0*", true);
  add("f.#0*.x", true);
  add("g", false);
  EXPECT_TRUE(all_drs_entries_flagged("f.#0", false, true, true));
  EXPECT_FALSE(all_drs_entries_flagged("f.#0", true, true, true));
  EXPECT_TRUE(all_drs_entries_flagged("f.#0*", true, true, true));
  EXPECT_TRUE(all_drs_entries_flagged("g", true, false, true));
  add("f.#0*.y", false);
  EXPECT_FALSE(all_drs_entries_flagged("f.#0", false, true, true));
  EXPECT_TRUE(all_drs_entries_flagged("f.#0", false, true, false));
  EXPECT_TRUE(all_drs_entries_flagged("f.#0", false, false, false));
  EXPECT_FALSE(all_drs_entries_flagged("h", false, true, false));
}

TEST_F(drs_records_test, write_is_uncertain) {
  drs_file_version = -1;
  EXPECT_FALSE(drs_write_is_uncertain(DRS_PTR_NONE, "p"));
  EXPECT_FALSE(drs_write_is_uncertain(DRS_PTR_SINGLE_CERTAIN_WRITE, "p"));
  EXPECT_FALSE(drs_write_is_uncertain(DRS_PTR_MULTI_CERTAIN_WRITE, "p"));
  EXPECT_TRUE(drs_write_is_uncertain(DRS_PTR_MULTI, "p"));
  add("p*", true);
  EXPECT_TRUE(drs_write_is_uncertain(DRS_PTR_SINGLE, "p"));
  add("p*.x", false);
  EXPECT_FALSE(drs_write_is_uncertain(DRS_PTR_SINGLE, "p"));
  drs_file_version = 1;
  EXPECT_FALSE(drs_write_is_uncertain(DRS_PTR_MULTI, "p"));
  drs_file_version = 2;
  EXPECT_TRUE(drs_write_is_uncertain(DRS_PTR_MULTI, "p"));
  drs_file_version = 0;
  EXPECT_TRUE(drs_write_is_uncertain(DRS_PTR_MULTI, "p"));
}

// The walks of the list, as the questions are defined, beside the indexed answers.
bool flagged_by_walk(const char *key, bool exact, bool value, bool every) {
  if (exact) {
    for (drs_entry *e : *drs_read_entries)
      if (strcmp(e->name, key) == 0) return e->fully_handled == value;
    return false;
  }
  bool matched = false, last_agreed = false;
  for (drs_entry *e : *drs_read_entries) {
    if (strncmp(e->name, key, strlen(key)) != 0) continue;
    matched = true;
    last_agreed = e->fully_handled == value;
    if (last_agreed && !every) return true;
    if (!last_agreed && every) return false;
  }
  return matched && last_agreed;
}

bool uncertain_by_walk(const char *key) {
  std::string target = std::string(key) + "*";
  for (drs_entry *e : *drs_read_entries)
    if (strncmp(e->name, target.c_str(), target.size()) == 0 && !e->fully_handled) return false;
  return true;
}

TEST_F(drs_records_test, indexed_questions_agree_with_the_walks_on_random_entries) {
  const char *parts[] = {"a", "b", ".x", ".#0", ".#1", "*", "*", ".return", "ab"};
  std::mt19937 rng(7);
  drs_file_version = -1;
  std::vector<std::string> keys;
  for (int round = 0; round < 200; ++round) {
    // Grow the list, set some flags (false to true only), then ask.
    for (int k = rng() % 6; k > 0; --k) {
      std::string name = parts[rng() % 2];
      for (int depth = rng() % 4; depth > 0; --depth) name += parts[2 + rng() % 7];
      add(name.c_str(), rng() % 3 == 0);
      keys.push_back(name);
    }
    for (drs_entry *e : *drs_read_entries)
      if (rng() % 20 == 0) e->fully_handled = true;
    for (int q = 0; q < 20; ++q) {
      std::string key = keys[rng() % keys.size()];
      key.resize(rng() % (key.size() + 1));
      bool exact = rng() % 2, value = rng() % 2, every = rng() % 2;
      ASSERT_EQ(all_drs_entries_flagged(key.c_str(), exact, value, every), flagged_by_walk(key.c_str(), exact, value, every))
          << key << " " << exact << value << every;
      ASSERT_EQ(drs_write_is_uncertain(DRS_PTR_MULTI, key.c_str()), uncertain_by_walk(key.c_str())) << key;
    }
  }
}

}  // namespace
