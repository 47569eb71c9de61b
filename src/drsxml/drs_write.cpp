// The writing side of the range file: each call works on the current element
// of a tree kept in an arena, and drs_write_end prints the tree.
//
// A file's level is found again by its name, so the elements of one source
// file stand together in the order in which they came. The stubber's own
// values of an element (is_default 1) are written as mode "default" (or
// "default-permanent"): they tell the user what happens without a range and
// read back as no range at all.
#include "drsxml/drs_parser.h"
#include "drsxml/drs_write_tree.h"

#include <cerrno>
#include <cstring>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace {
std::deque<drs_node> nodes;
// The pool: texts stored once in a deque (stable addresses), found by view.
std::deque<std::string> pool_texts;
std::unordered_set<std::string_view> pool;
std::unordered_map<std::string, drs_node *> files;
drs_node *root;
drs_node *current;
const char *(*decode_name)(const char *);

const char *pooled(const char *text) {
  if (!text)
    return nullptr;
  auto found = pool.find(std::string_view(text));
  if (found != pool.end())
    return found->data();
  const std::string &kept = pool_texts.emplace_back(text);
  pool.insert(std::string_view(kept));
  return kept.c_str();
}

drs_node *new_node(int kind, drs_node *parent) {
  drs_node *n = &nodes.emplace_back();
  n->kind = kind;
  n->sign = -2;
  n->status = 3;
  n->pointer_kind = 2;
  n->called = 3;
  n->parent = parent;
  if (parent) {
    if (parent->last_child)
      parent->last_child->next = n;
    else
      parent->first_child = n;
    parent->last_child = n;
  }
  return n;
}

// An element call before any drs_set_file goes to the level without a file.
drs_node *writable() {
  if (!current)
    drs_set_file(nullptr);
  return current;
}
} // namespace

void drs_write_init(void) {
  nodes.clear();
  pool.clear();
  pool_texts.clear();
  files.clear();
  root = new_node(-1, nullptr);
  current = nullptr;
}

void drs_set_decode_func(const char *(*decode)(const char *)) { decode_name = decode; }

void drs_set_file(const char *file) {
  if (!root)
    drs_write_init();
  if (file && decode_name)
    file = decode_name(file);
  // The level without a file has a key that no file name can have.
  std::string key = file ? std::string("f") + file : std::string("n");
  auto it = files.find(key);
  if (it == files.end()) {
    drs_node *f = new_node(0, root);
    f->name = pooled(file);
    it = files.emplace(key, f).first;
  }
  current = it->second;
}

void drs_add_element(int kind, const char *name, int line, int flag, int) {
  // A kind the format doesn't know still gets an element that holds children.
  if (kind < DRS_ELEMENT_SCALAR || kind > DRS_ELEMENT_STRUCT)
    kind = DRS_ELEMENT_STRUCT;
  drs_node *n = new_node(kind, writable());
  n->name = pooled(name ? name : "");
  n->line = line > 0 ? line : 0;
  n->unmatched = flag == 1;
  current = n;
}

void drs_set_element_qualifiers(int is_volatile, int is_extern, int is_static, int is_const, int is_dead) {
  drs_node *n = writable();
  n->is_volatile = is_volatile;
  n->is_extern = is_extern;
  n->is_static = is_static;
  n->is_const = is_const;
  n->is_dead = is_dead;
}

// Later calls replace what the first said; a default call after the user's
// values leaves them alone.
static bool takes_values(drs_node *n, int is_default) {
  if (is_default && n->user_values)
    return false;
  n->user_values = !is_default;
  return true;
}

void drs_set_scalar(int sign, int size, const char *type_name, int init_status, const char *min, const char *max,
                    int assert_status, const char *assert_min, const char *assert_max, int is_default) {
  drs_node *n = writable();
  if (!takes_values(n, is_default))
    return;
  n->sign = sign;
  n->size = size;
  if (type_name && *type_name)
    n->type = pooled(type_name);
  n->status = init_status;
  if (is_default)
    n->default_status = init_status;
  n->min = pooled(min && *min ? min : "min");
  n->max = pooled(max && *max ? max : "max");
  n->has_assert = assert_status == 7;
  if (n->has_assert) {
    n->assert_min = pooled(assert_min && *assert_min ? assert_min : "min");
    n->assert_max = pooled(assert_max && *assert_max ? assert_max : "max");
  }
}

void drs_set_pointer(int init_status, const char *type_name, const char *min, const char *max, int pointer_kind,
                     int is_default) {
  drs_node *n = writable();
  if (!takes_values(n, is_default))
    return;
  if (type_name && *type_name)
    n->type = pooled(type_name);
  n->status = init_status;
  if (is_default)
    n->default_status = init_status;
  n->min = pooled(min && *min ? min : "min");
  n->max = pooled(max && *max ? max : "max");
  n->pointer_kind = pointer_kind;
}

void drs_set_pointer_init_allocated_write(int value) { writable()->allocated_write = value != 0; }

void drs_set_array(const char *type_name) {
  drs_node *n = writable();
  n->type = type_name && *type_name ? pooled(type_name) : nullptr;
}

void drs_set_struct(const char *type_name) { drs_set_array(type_name); }

void drs_set_function(int status, int) { writable()->called = status; }

void drs_write_up(void) {
  if (current && current->kind > 0)
    current = current->parent;
}

void drs_write_end(const char *path) {
  if (!root)
    drs_write_init();
  FILE *out = fopen(path, "wb");
  if (!out) {
    fprintf(stderr, "error: file '%s' can't be written: %s\n", path, strerror(errno));
    return;
  }
  static char buffer[1 << 16];
  setvbuf(out, buffer, _IOFBF, sizeof buffer);
  drs_print_tree(out, root);
  if (fclose(out) != 0)
    fprintf(stderr, "error: file '%s' can't be written: %s\n", path, strerror(errno));
}
