// Lists: moving whole lists, removal during iteration, links kept in step.
#include <gtest/gtest.h>

#include <vector>

#include "ir/ir.h"

template <class L>
static std::vector<typename L::value_type> values(const L &l) {
    std::vector<typename L::value_type> v;
    for (auto *e = l.head(); e; e = e->next()) v.push_back(e->contents);
    return v;
}

// Reads a doubly linked list from its tail, so that a stale back link shows.
template <class L>
static std::vector<typename L::value_type> backwards(const L &l) {
    std::vector<typename L::value_type> v;
    for (auto *e = l.tail(); e; e = e->prev()) v.insert(v.begin(), e->contents);
    return v;
}

TEST(lists, appending_a_whole_list_empties_the_source) {
    int_list a, b;
    a.append(1);
    b.append(2);
    b.append(3);
    a.append(&b);
    EXPECT_TRUE(b.is_empty());
    EXPECT_EQ(b.tail(), nullptr);
    // The source is usable again and shares nothing with the target.
    b.append(9);
    a.append(4);
    EXPECT_EQ(values(a), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(values(b), (std::vector<int>{9}));
    // Into an empty doubly linked list, the back links come along.
    sym_node_list d, e;
    sym_node *x = reinterpret_cast<sym_node *>(0x10), *y = reinterpret_cast<sym_node *>(0x20);
    e.append(x);
    e.append(y);
    d.append(&e);
    EXPECT_EQ(backwards(d), values(d));
    EXPECT_EQ(d.head()->prev(), nullptr);
}

TEST(lists, removal_keeps_head_tail_and_links) {
    int_list l;
    for (int i = 0; i < 6; ++i) l.append(i);
    for (int_list_iter it(&l); !it.is_empty();)
        if (it.step() % 2 == 0) delete l.remove(it.cur_elem());  // the current element, while iterating
    EXPECT_EQ(values(l), (std::vector<int>{1, 3, 5}));
    EXPECT_EQ(l.tail()->contents, 5);
    string_list s;
    s.append("a");
    s.append("b");
    delete s.remove(s.tail());
    s.append("c");
    ASSERT_EQ(s.count(), 2);
    EXPECT_STREQ(s[1], "c");
    type_node_list t;
    std::vector<type_node *> n;
    for (int i = 1; i <= 5; ++i) t.append(n.emplace_back(reinterpret_cast<type_node *>((size_t)i * 16)));
    for (type_node_list_e *e = t.head(); e;) {
        type_node_list_e *next = e->next();
        if (e != t.head() && e != t.tail()) delete t.remove(e);
        e = next;
    }
    EXPECT_EQ(values(t), (std::vector<type_node *>{n[0], n[4]}));
    EXPECT_EQ(backwards(t), values(t));
    delete t.remove(t.tail());
    EXPECT_EQ(t.tail(), t.head());
    EXPECT_EQ(t.head()->next(), nullptr);
}

TEST(lists, push_pop_insert_and_index) {
    int_list l;
    l.push(2);
    l.push(1);
    l.append(3);
    EXPECT_EQ(l[2], 3);
    EXPECT_EQ(l.pop(), 1);
    EXPECT_EQ(l.pop(), 2);
    EXPECT_EQ(l.pop(), 3);
    EXPECT_EQ(l.tail(), nullptr);
    l.append(7);
    EXPECT_EQ(l.head(), l.tail());
    immed_list m;
    immed_list_e *a = m.append(immed(1));
    m.append(immed(3));
    m.insert_after(immed(2), a);
    immed_list_e *four = m.insert_after(immed(4), m.tail());
    EXPECT_EQ(four, m.tail());
    std::vector<long long> got, back;
    for (immed_list_e *e = m.head(); e; e = e->next()) got.push_back(e->contents.integer());
    for (immed_list_e *e = m.tail(); e; e = e->prev()) back.insert(back.begin(), e->contents.integer());
    EXPECT_EQ(got, (std::vector<long long>{1, 2, 3, 4}));
    EXPECT_EQ(back, got);
}

TEST(lists, a_tree_node_list_tells_each_node_its_list) {
    tree_node_list l, m;
    tree_instr *t = new tree_instr(new in_rrr(io_mrk));
    l.append(t);
    EXPECT_EQ(t->parent(), &l);
    m.append(&l);
    EXPECT_EQ(t->parent(), &m);
}
