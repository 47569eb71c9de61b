// The tree that the writer builds before it prints it: the calls may leave
// elements open and come back to a file seen before, so nothing can be printed
// until the end. Texts are kept once each in a pool, since type names and
// bounds repeat across a whole program.
#pragma once

#include <cstdio>

struct drs_node {
  int kind;             // 1 to 5 as in drs_parser.h; 0 a file; -1 the root
  int line;
  const char *name;     // pooled; for a file null when it has none
  const char *type;     // pooled, null when none
  const char *min, *max, *assert_min, *assert_max;
  int sign, size, status, pointer_kind, called;
  int default_status;   // the status of the default call
  bool user_values;     // set by a call that is not the default one
  bool has_assert, allocated_write, unmatched;
  bool is_volatile, is_extern, is_static, is_const, is_dead;
  drs_node *parent, *first_child, *last_child, *next;
};

// Prints root and everything below it as the range file.
void drs_print_tree(FILE *out, const drs_node *root);
