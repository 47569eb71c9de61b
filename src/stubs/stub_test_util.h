// Shared set-up of the stub generator's unit tests: a fresh IR per test, the per-file state
// made new, every type named as the type header would name it, and readers of generated pieces.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/options.h"
#include "driver/output_files.h"
#include "drs/drs_model.h"
#include "ir/builder.h"
#include "ir/ir.h"
#include "types/type_emitter.h"
#include "types/type_predicates.h"

class generator_test : public ::testing::Test {
protected:
  void SetUp() override
  {
    static char arg0[] = "stubber_tests";
    static char *argv[] = {arg0, nullptr};
    int argc = 1;
    init_suif(argc, argv);
    flag_instrum = false;
    flag_mgen_pure_stubs = false;
    b = new program_builder(nullptr);
    forget_generation_marks();
    forget_predicate_marks();
    reset_generation_state();
  }

  void TearDown() override
  {
    delete b;
    b = nullptr;
    flag_instrum = false;
    exit_suif();
  }

  // Names every type of the global table, as the type header does before any stub is made.
  void name_types()
  {
    for (type_node_list_iter it(global_st->types()); !it.is_empty();)
      delete define_type(it.step(), false);
  }

  // The generated name of a type that has a number for a name.
  static std::string gname(type_node *type) { return "__QVT__g__" + std::to_string(type->type_id()); }
  static std::string rnd(type_node *type) { return "qvt_random_g_" + std::to_string(type->type_id()); }

  program_builder *b = nullptr;
};

// The pieces of a generated list, in order; the list is consumed.
inline std::vector<std::string> pieces_of(string_list *list)
{
  std::vector<std::string> result;
  for (string_list_iter it(list); !it.is_empty();)
    result.push_back(it.step());
  delete list;
  return result;
}

// All pieces joined.
inline std::string text_of(string_list *list)
{
  std::string result;
  for (const std::string &piece : pieces_of(list))
    result += piece;
  return result;
}
