// A fresh IR run for each unit test of the stubber: the library started, the marks of the
// previous run forgotten, the generation state made new, and a builder for the program.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "driver/output_files.h"
#include "ir/builder.h"
#include "ir/ir.h"
#include "types/type_predicates.h"

class ir_test : public ::testing::Test {
protected:
  void SetUp() override {
    static char name[] = "stubber_tests";
    static char *argv[] = {name, nullptr};
    int argc = 1;
    init_suif(argc, argv);
    forget_generation_marks();
    forget_predicate_marks();
    reset_generation_state();
    b = new program_builder(nullptr);
  }
  void TearDown() override {
    delete b;
    exit_suif();
  }

  // All pieces of a list as one text.
  static std::string text_of(string_list *l) {
    std::string s;
    for (string_list_e *e = l->head(); e; e = e->next()) s += e->contents;
    return s;
  }
  static std::string g(type_node *t) { return "__QVT__g__" + std::to_string(t->type_id()); }

  program_builder *b = nullptr;
};
