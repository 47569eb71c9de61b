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

TEST(lists, appending_a_whole_list_empties_the_source) {
    int_list a, b;
    a.append(1);
    b.append(2);
    b.append(3);
    a.append(&b);
    EXPECT_EQ(values(a), (std::vector<int>{1, 2, 3}));
    EXPECT_TRUE(b.is_empty());
    EXPECT_EQ(b.head(), nullptr);
    EXPECT_EQ(b.tail(), nullptr);
    // The source is usable again and shares nothing with the target.
    b.append(9);
    a.append(4);
    EXPECT_EQ(values(a), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(values(b), (std::vector<int>{9}));
}

TEST(lists, appending_to_an_empty_doubly_linked_list_keeps_back_links) {
    sym_node_list a, b;
    sym_node *x = reinterpret_cast<sym_node *>(0x10), *y = reinterpret_cast<sym_node *>(0x20);
    b.append(x);
    b.append(y);
    a.append(&b);
    EXPECT_TRUE(b.is_empty());
    ASSERT_EQ(a.count(), 2);
    EXPECT_EQ(a.tail()->prev(), a.head());
    EXPECT_EQ(a.head()->prev(), nullptr);
    delete a.remove(a.tail());
    EXPECT_EQ(a.tail(), a.head());
    EXPECT_EQ(a.head()->next(), nullptr);
}

TEST(lists, removing_the_current_element_while_iterating) {
    int_list l;
    for (int i = 0; i < 6; ++i) l.append(i);
    int_list_iter it(&l);
    while (!it.is_empty()) {
        int v = it.step();
        if (v % 2 == 0) delete l.remove(it.cur_elem());
    }
    EXPECT_EQ(values(l), (std::vector<int>{1, 3, 5}));
    EXPECT_EQ(l.tail()->contents, 5);
}

TEST(lists, removing_the_tail_of_a_singly_linked_list_moves_the_tail) {
    string_list l;
    l.append("a");
    l.append("b");
    delete l.remove(l.tail());
    l.append("c");
    ASSERT_EQ(l.count(), 2);
    EXPECT_STREQ(l[1], "c");
}

TEST(lists, removal_through_next_links_in_a_doubly_linked_list) {
    type_node_list l;
    std::vector<type_node *> t;
    for (int i = 1; i <= 5; ++i) t.push_back(reinterpret_cast<type_node *>((size_t)i * 16));
    for (type_node *x : t) l.append(x);
    for (type_node_list_e *e = l.head(); e;) {
        type_node_list_e *next = e->next();
        if (e != l.head() && e != l.tail()) delete l.remove(e);
        e = next;
    }
    EXPECT_EQ(values(l), (std::vector<type_node *>{t[0], t[4]}));
    EXPECT_EQ(l.tail()->prev(), l.head());
}

TEST(lists, push_pop_and_index) {
    int_list l;
    l.push(2);
    l.push(1);
    l.append(3);
    EXPECT_EQ(l[0], 1);
    EXPECT_EQ(l[2], 3);
    EXPECT_EQ(l.pop(), 1);
    EXPECT_EQ(l.pop(), 2);
    EXPECT_EQ(l.pop(), 3);
    EXPECT_TRUE(l.is_empty());
    EXPECT_EQ(l.tail(), nullptr);
    l.append(7);
    EXPECT_EQ(l.head(), l.tail());
}

TEST(lists, insert_after_and_before) {
    immed_list l;
    immed_list_e *a = l.append(immed(1));
    l.append(immed(3));
    l.insert_after(immed(2), a);
    immed_list_e *last = l.insert_after(immed(4), l.tail());
    EXPECT_EQ(l.tail(), last);
    std::vector<long long> got;
    for (immed_list_e *e = l.head(); e; e = e->next()) got.push_back(e->contents.integer());
    EXPECT_EQ(got, (std::vector<long long>{1, 2, 3, 4}));
    std::vector<long long> back;
    for (immed_list_e *e = l.tail(); e; e = e->prev()) back.push_back(e->contents.integer());
    EXPECT_EQ(back, (std::vector<long long>{4, 3, 2, 1}));
}

TEST(lists, a_tree_node_list_tells_each_node_its_list) {
    tree_node_list l;
    tree_instr *t = new tree_instr(new in_rrr(io_mrk));
    l.append(t);
    EXPECT_EQ(t->parent(), &l);
    tree_node_list m;
    m.append(&l);
    EXPECT_EQ(t->parent(), &m);
}
