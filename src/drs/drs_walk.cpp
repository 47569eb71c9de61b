// The walker over the memory of a ranged variable.
//
// A walk starts at a variable's symbol and follows the range path down to its leaves. On the
// way it builds the address of what it stands on as an expression: the variable's address as
// a typed constant, plus a field offset for each field, plus an index for each array level.
// An array level takes every element at once for a write (through the analysis target's
// builtin that reads as every index) and element 0 for a read or a test. At a leaf, the phase
// decides what is made: a range procedure, a store of a range-limited volatile value, or a
// copy of the address into a local. The path has been proved by binding, so every field that
// it names exists.
#include "drs/drs_apply.h"
#include "drs/drs_range_procs.h"
#include "types/type_predicates.h"

#include <cstring>

static void drop(operand dest) {
  if (dest.is_instr())
    delete dest.instr();
}

// The builtin of the analysis target that stands for every index of an array at once; made
// in the global table the first time a run needs it.
static var_sym *builtin_all(global_symtab *g) {
  static const char name[] = "__qv_builtin_all";
  if (var_sym *v = g->lookup_var(name, false))
    return v;
  return g->new_var(type_unsigned, name);
}

// The address of the variable that a symbol operand names, typed as a pointer to type.
static operand address_of(operand dest, type_node *type) {
  return operand(new in_ldc(type->ptr_to(), nullop, immed(dest.symbol(), 0)));
}

// A leaf written through a volatile global of the leaf's type: its range procedure says what
// it may hold, and the store makes the leaf hold such a value.
static tree_node_list *write_from_volatile(operand dest, type_node *etype, type_node *t, drs_entry *entry,
                                           int phase) {
  global_symtab *g = drs_fse->parent()->globals;
  tree_node_list *list = new tree_node_list;
  type_node *vtype = drs_install(g, new modifier_type(TYPE_VOLATILE, t->is_enum() ? base_from_enum(t) : t));
  var_sym *v = g->new_unique_var(vtype, nullptr);
  v->set_addr_taken();
  drs_fse->symtab()->add_def(new var_def(v, get_alignment(vtype)));
  if (flag_instrum && phase == DRS_PHASE_MARK)
    list->append(new tree_instr(drs_sym_range_call(v, original_bitfield_type(t), entry)));
  else
    drs_make_range_proc(operand(v), entry, phase, false);
  if (dest.is_instr())
    dest.instr()->annotes()->append(coordinate_to_annote(k_source_coordinates, drs_hidden_coord));
  in_rrr *write = etype->unqual()->is_ptr() ? new in_rrr(io_str, type_void, nullop, dest, operand(v))
                                            : new in_rrr(io_cpy, etype->unqual(), dest, operand(v));
  recursive_hidden_check(write);
  list->append(new tree_instr(write));
  return list;
}

static tree_node_list *walk_leaf(proc_symtab *symtab, operand dest, type_node *etype, type_node *t,
                                 drs_entry *entry, int phase, bool in_array) {
  if (phase == DRS_PHASE_WRITE && dest.is_symbol()) {
    drs_make_range_proc(dest, entry, phase, in_array);
    return nullptr;
  }
  if (phase == DRS_PHASE_ASSERT) {
    if (flag_instrum)
      drop(dest);
    else
      drs_make_range_proc(dest, entry, phase, in_array);
    return nullptr;
  }
  if (phase == DRS_PHASE_TOUCH) {
    tree_node_list *list = new tree_node_list;
    list->append(create_assignment(symtab->new_unique_var(etype, nullptr), dest, nullptr));
    return list;
  }
  return write_from_volatile(dest, etype, t, entry, phase);
}

static tree_node_list *walk_array(proc_symtab *symtab, operand dest, type_node *etype, array_type *t,
                                  drs_entry *entry, const char *path, int phase, bool in_array) {
  type_node *e = t->elem_type()->unqual();
  operand base = etype->unqual()->is_ptr() ? dest : address_of(dest, e);
  if (phase == DRS_PHASE_MARK || phase == DRS_PHASE_WRITE) {
    var_sym *all = builtin_all(drs_fse->parent()->globals);
    in_rrr *every = new in_rrr(io_add, e->ptr_to(), nullop, operand(all), base);
    return drs_walk_operand(symtab, operand(every), entry, path, phase, in_array);
  }
  in_ldc *zero = new in_ldc(type_unsigned, nullop, immed(0));
  in_ldc *size = new in_ldc(type_unsigned, nullop, immed(e->size() / target.addressable_size));
  in_rrr *index = new in_rrr(io_mul, type_unsigned, nullop, operand(size), operand(zero));
  in_rrr *first = new in_rrr(io_add, e->ptr_to(), nullop, operand(index), base);
  return drs_walk_operand(symtab, operand(first), entry, path, phase, true);
}

static tree_node_list *walk_struct(proc_symtab *symtab, operand dest, type_node *etype, struct_type *t,
                                   drs_entry *entry, const char *path, int phase, bool in_array) {
  const char *rest = nullptr;
  char *head = split_path_head(path, &rest);
  int i = find_field(head, t);
  for (;;) {
    type_node *field = t->field_type(i)->unqual();
    operand base = etype->unqual()->is_ptr() ? dest : address_of(dest, static_cast<var_sym *>(dest.symbol())->type());
    in_ldc *offset = new in_ldc(type_unsigned, nullop, immed(t->field_offset(i) / target.addressable_size));
    in_rrr *address = new in_rrr(io_add, field->ptr_to(), nullop, base, operand(offset));
    address->append_annote(k_fields, [&] {
      immed_list *l = new immed_list;
      l->append(immed(t->field_name(i)));
      return l;
    }());
    if (strcmp(t->field_name(i), head) == 0)
      return drs_walk_operand(symtab, operand(address), entry, rest, phase, in_array);
    // An anonymous member that holds head: on to the field inside it.
    t = static_cast<struct_type *>(field);
    i = find_field(head, t);
    dest = operand(address);
    etype = address->result_type();
  }
}

tree_node_list *drs_walk_operand(proc_symtab *symtab, operand dest, drs_entry *entry, const char *path, int phase,
                                 bool in_array) {
  type_node *etype = dest.type();
  type_node *t = etype->unqual()->is_ptr() ? static_cast<ptr_type *>(etype->unqual())->ref_type() : etype;
  t = t->unqual();
  switch (t->op()) {
  case TYPE_INT:
  case TYPE_FLOAT:
  case TYPE_ENUM:
    return walk_leaf(symtab, dest, etype, t, entry, phase, in_array);
  case TYPE_ARRAY:
    return walk_array(symtab, dest, etype, static_cast<array_type *>(t), entry, path, phase, in_array);
  case TYPE_STRUCT:
  case TYPE_UNION:
    return walk_struct(symtab, dest, etype, static_cast<struct_type *>(t), entry, path, phase, in_array);
  default:
    drop(dest);
    return nullptr;
  }
}
