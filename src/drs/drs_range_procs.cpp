// Range and list procedures in the IR.
//
// Every procedure is built the same way: a symbol in the global table with a body made in
// memory, a table of its own under the global one, and the place of the generated stub file,
// so that the generators and the symbol filters know it for generated code. The body opens
// with a mark and ends with a return of an int; what lies between, and the annotations of the
// body, carry the range. Bounds go into the code as literals of the leaf type: extended
// integers or extended floats, whose text is kept exactly as normalised.
#include "drs/drs_range_procs.h"
#include "drs/drs_log.h"
#include "drs/drs_values.h"

#include <cstdio>

const coord drs_stubs_coord = {"C-STUBS\\\\qvt_stubs_0.c", 1, 1};
const coord drs_hidden_coord = {"?qvt_hidden_file?", 1, 1};

type_node *drs_install(global_symtab *g, type_node *t) {
  type_node *installed = g->install_type(t);
  if (installed != t)
    delete t;
  return installed;
}

type_node *drs_leaf_type(operand dest, bool enum_base) {
  type_node *t = dest.type();
  if (t->unqual()->is_ptr())
    t = static_cast<ptr_type *>(t->unqual())->ref_type();
  t = t->unqual();
  return enum_base && t->is_enum() ? base_from_enum(t) : t;
}

static void put_coord(suif_object *object, const coord &place) {
  object->annotes()->append(coordinate_to_annote(k_source_coordinates, place));
}

static immed_list *strings(std::initializer_list<const char *> texts) {
  immed_list *list = new immed_list;
  for (const char *text : texts)
    list->append(immed(text));
  return list;
}

const char *drs_unique_proc_name(global_symtab *g) {
  static int counter = 1;
  char name[128];
  do
    snprintf(name, sizeof name, "Qvt_Global_Assert_%d", counter++);
  while (g->lookup_sym(name, SYM_PROC, true));
  return intern(name);
}

tree_instr *drs_make_marker(coord place) {
  in_rrr *mark = new in_rrr(io_mrk, type_void);
  annote *an = coordinate_to_annote(k_source_coordinates, place);
  an->set_name(k_sequence_point);
  mark->annotes()->append(an);
  return new tree_instr(mark);
}

// A new procedure of type ftype with an empty body in table symtab, ready for its statements.
static proc_sym *new_generated_proc(const char *name, func_type *ftype, proc_symtab *symtab) {
  global_symtab *g = drs_fse->parent()->globals;
  ftype = static_cast<func_type *>(drs_install(g, ftype));
  proc_sym *proc = g->new_proc(ftype, src_c, name);
  proc->set_userdef();
  proc->set_file(drs_fse);
  put_coord(proc, drs_stubs_coord);
  g->add_child(symtab);
  tree_proc *body = new tree_proc(new tree_node_list, symtab);
  put_coord(body, drs_stubs_coord);
  proc->set_block(body);
  return proc;
}

static tree_instr *return_of(operand value) { return new tree_instr(new in_rrr(io_ret, type_signed, nullop, value)); }

void drs_make_range_proc(operand dest, drs_entry *entry, int phase, bool by_parameter) {
  global_symtab *g = drs_fse->parent()->globals;
  const char *name = drs_unique_proc_name(g);
  func_type *ftype = by_parameter ? new func_type(type_signed, dest.type(), false, nullptr)
                                  : new func_type(false, type_signed, nullptr);
  proc_symtab *symtab = new proc_symtab(name);
  proc_sym *proc = new_generated_proc(name, ftype, symtab);
  tree_proc *body = proc->block();
  tree_node_list *list = body->body();
  list->append(drs_make_marker(drs_hidden_coord));
  body->append_annote(k_enable_exceptions, strings({"int_divide-by-0"}));

  type_node *t = drs_leaf_type(dest, true);
  const char *dest_name = dest.is_symbol() ? dest.symbol()->name() : "";
  operand result;
  if (phase != DRS_PHASE_ASSERT) {
    result = operand(new in_ldc(type_signed, nullop, immed(1)));
    if (dest.is_instr())
      delete dest.instr();
  } else if (!by_parameter) {
    list->append(drs_build_range_test(&result, symtab, dest, entry));
  } else {
    // The test is on the parameter; the loaded copy keeps the leaf in view of the analysis.
    var_sym *param = symtab->new_unique_var(t, nullptr);
    param->set_userdef();
    param->set_param();
    symtab->params()->append(param);
    var_sym *copy = symtab->new_unique_var(t, nullptr);
    copy->set_userdef();
    operand source = dest.clone();
    if (source.is_instr())
      put_coord(source.instr(), drs_hidden_coord);
    in_rrr *load = new in_rrr(io_lod, t, operand(copy), source);
    recursive_hidden_check(load);
    list->append(new tree_instr(load));
    list->append(drs_make_marker(drs_hidden_coord));
    list->append(drs_build_range_test(&result, symtab, operand(param), entry));
    if (dest.is_instr())
      delete dest.instr();
  }
  list->append(return_of(result));
  drs_normalise_bounds(entry, t);

  if (phase == DRS_PHASE_ASSERT) {
    body->append_annote(k_drs, strings({"globalassert",
                                        bufprintf("failure of global assertion condition [%s in the range of %s...%s]",
                                                  entry->name, entry->min, entry->max)}));
  } else {
    body->append_annote(k_drs, strings({"permanent", dest_name, t->op() == TYPE_FLOAT ? "frange" : "irange",
                                        entry->min, entry->max}));
  }
}

tree_node *drs_build_range_test(operand *result, proc_symtab *symtab, operand value, drs_entry *entry) {
  tree_node_list *head = new tree_node_list;
  operand v = value;
  type_node *t = drs_leaf_type(value, false);
  if (value.type()->unqual()->is_ptr())
    v = operand(new in_rrr(io_lod, t, nullop, value));
  if (t->is_enum()) {
    type_node *base = base_from_enum(t);
    var_sym *e = symtab->new_unique_var(base, nullptr);
    head->append(new tree_instr(new in_rrr(io_cvt, base, operand(e), v)));
    v = operand(e);
    t = base;
  }
  label_sym *label = symtab->new_unique_label(nullptr);
  in_ldc *zero = new in_ldc(t, nullop, immed(0));
  var_sym *c = symtab->new_unique_var(type_signed, nullptr);
  in_ldc *lo = new in_ldc(t, nullop, drs_bound_immed(t, entry->min, true));
  in_ldc *hi = new in_ldc(t, nullop, drs_bound_immed(t, entry->max, false));
  drs_normalise_bounds(entry, t);

  operand v_again = v.clone();
  head->append(new tree_instr(new in_rrr(io_sle, type_signed, operand(c), operand(lo), v)));
  head->append(new tree_instr(new in_bj(io_btrue, label, operand(c))));
  var_sym *r = symtab->new_unique_var(type_signed, nullptr);
  *result = operand(r);
  tree_node_list *then_part = new tree_node_list;
  then_part->append(create_assignment(r, operand(zero), nullptr));
  tree_node_list *else_part = new tree_node_list;
  else_part->append(new tree_instr(new in_rrr(io_sle, type_signed, operand(r), v_again, operand(hi))));
  // A true branch enters the else part: under min gives 0, anything else v <= max.
  return new tree_if(label, head, then_part, else_part);
}

proc_sym *drs_make_list_proc(proc_symtab *symtab, tree_node_list *list) {
  const char *name = drs_unique_proc_name(drs_fse->parent()->globals);
  symtab->set_name(name);
  proc_sym *proc = new_generated_proc(name, new func_type(false, type_signed, nullptr), symtab);
  tree_proc *body = proc->block();
  body->append_annote(k_drs_range_func);
  body->body()->append(drs_make_marker(drs_hidden_coord));
  body->body()->append(list);
  delete list;
  body->body()->append(return_of(operand(new in_ldc(type_signed, nullop, immed(1)))));
  return proc;
}

instruction *drs_sym_range_call(var_sym *v, type_node *type, drs_entry *entry) {
  drs_normalise_bounds(entry, type);
  char first[1024], second[1024];
  snprintf(first, sizeof first, "%s", "_drs_sym_range(\"");
  const char *word = drs_base_type_word(type);
  snprintf(second, sizeof second, "\", \"%s\", \"%s\", \"%s\");", entry->min, entry->max, word ? word : "");
  immed_list *list = strings({first, second});
  list->append(immed(v, 0));
  in_rrr *mark = new in_rrr(io_mrk, type_void);
  mark->append_annote(k_drs_instrum, list);
  return mark;
}
