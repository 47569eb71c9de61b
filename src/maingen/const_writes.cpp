// Writes into const objects: the view through a non-const pointer and the test for aggregates
// that can't be assigned whole. The test walks member types only (pointers end it); a set of
// the types met keeps a malformed type that holds itself from looping, and a type shared by many
// members from being walked again: a type met and left answered no.
#include "maingen/const_writes.h"

#include <unordered_set>

#include "stubs/stub_text.h"

const char *writable_lvalue(const char *lvalue, type_node *type)
{
  if (!type->is_const())
    return lvalue;
  type_node *plain = type->unqual();
  if (plain->op() == TYPE_ARRAY || plain->op() == TYPE_FUNC || plain->op() == TYPE_VOID)
    return lvalue;
  return format_text("(*(%s *)&%s)", type_text(plain), lvalue);
}

static bool holds_const(type_node *type, std::unordered_set<type_node *> &walk)
{
  if (type->is_const())
    return true;
  type_node *plain = type->unqual();
  if (plain->op() == TYPE_ARRAY)
    return holds_const(static_cast<array_type *>(plain)->elem_type(), walk);
  if (plain->op() != TYPE_STRUCT && plain->op() != TYPE_UNION && plain->op() != TYPE_GROUP)
    return false;
  if (!walk.insert(plain).second)
    return false;
  struct_type *record = static_cast<struct_type *>(plain);
  for (unsigned i = 0; i < record->num_fields(); i++)
    if (holds_const(record->field_type(i), walk))
      return true;
  return false;
}

bool holds_const_member(type_node *type)
{
  type_node *plain = type->unqual();
  if (plain->op() != TYPE_STRUCT && plain->op() != TYPE_UNION)
    return false;
  std::unordered_set<type_node *> walk;
  walk.insert(plain);
  struct_type *record = static_cast<struct_type *>(plain);
  for (unsigned i = 0; i < record->num_fields(); i++)
    if (holds_const(record->field_type(i), walk))
      return true;
  return false;
}

bool is_const_bit_field(struct_type *record, unsigned i)
{
  return record->field_storage_width(i) != 0 && record->field_type(i)->is_const();
}

bool is_read_only_object(type_node *type)
{
  while (!type->is_const() && type->unqual()->op() == TYPE_ARRAY)
    type = static_cast<array_type *>(type->unqual())->elem_type();
  return type->is_const();
}
