// Type reachability against the closure as first written (lists of reached types, extended
// until a whole pass adds nothing), on many random graphs of structs, unions, pointers, arrays
// and qualifiers, cycles among them.
#include "maingen/random_values.h"

#include <algorithm>
#include <map>
#include <random>

#include "stubs/stub_test_util.h"
#include "stubs/stub_text.h"

using type_reach_test = generator_test;

static std::map<type_node *, std::vector<type_node *>> closure_by_passes()
{
  std::map<type_node *, std::vector<type_node *>> reach;
  auto add = [&](type_node *from, type_node *to) {
    std::vector<type_node *> &list = reach[from];
    if (std::find(list.begin(), list.end(), to) != list.end())
      return false;
    list.push_back(to);
    return true;
  };
  for (type_node_list_iter it(global_st->types()); !it.is_empty();) {
    type_node *t = it.step();
    if (t->op() == TYPE_PTR)
      add(t, static_cast<ptr_type *>(t)->ref_type()->unqual());
    else if (t->op() == TYPE_ARRAY)
      add(t, static_cast<array_type *>(t)->elem_type()->unqual());
    else if (t->op() == TYPE_STRUCT || t->op() == TYPE_UNION)
      for (unsigned i = 0; i < static_cast<struct_type *>(t)->num_fields(); i++)
        add(t, static_cast<struct_type *>(t)->field_type(i)->unqual());
  }
  for (bool changed = true; changed;) {
    changed = false;
    for (auto &[from, list] : reach) {
      std::vector<type_node *> copy = list;
      for (type_node *x : copy) {
        auto found = reach.find(x);
        if (found == reach.end())
          continue;
        std::vector<type_node *> next = found->second;
        for (type_node *y : next)
          changed = add(from, y) || changed;
      }
    }
  }
  return reach;
}

TEST_F(type_reach_test, matches_the_closure_by_passes_on_random_graphs)
{
  std::mt19937 random(20261123);
  for (int round = 0; round < 150; round++) {
    if (round > 0) {
      TearDown();
      SetUp();
    }
    int records = 1 + random() % 12;
    std::vector<type_node *> pool = {type_signed, type_char, type_void};
    std::vector<struct_type *> made;
    for (int i = 0; i < records; i++) {
      struct_type *s = random() % 3 ? b->struct_of(format_text("s%d", i), {{"a", type_signed}, {"b", type_signed}})
                                    : b->union_of(format_text("u%d", i), {{"a", type_signed}});
      made.push_back(s);
      pool.push_back(s);
    }
    // Pointers, arrays and qualified forms over what exists so far, then fields that point
    // anywhere in the pool, so that cycles of every length arise.
    for (int i = 0; i < records * 3; i++) {
      type_node *t = pool[random() % pool.size()];
      switch (random() % 4) {
      case 0:
      case 1:
        pool.push_back(b->ptr(t));
        break;
      case 2:
        if (t->op() != TYPE_VOID)
          pool.push_back(b->array(t, 1 + random() % 4));
        break;
      default:
        pool.push_back(b->const_of(t));
      }
    }
    for (struct_type *s : made)
      for (unsigned f = 0; f < s->num_fields(); f++)
        s->set_field_type(f, pool[random() % pool.size()]);

    auto reach = closure_by_passes();
    for (type_node *from : pool)
      for (type_node *to : pool) {
        const std::vector<type_node *> &list = reach[from];
        bool expected = std::find(list.begin(), list.end(), to) != list.end();
        ASSERT_EQ(type_reaches(from, to), expected) << "round " << round << ": " << from->type_id() << " -> "
                                                    << to->type_id();
      }
  }
}
