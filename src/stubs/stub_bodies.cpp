// Stub bodies. The body is built first, then framed by the comment, the pragmas and the
// signature. Everything unknown comes from volatile sources: qvt_random_int, qvt_random_char,
// the per-type random variables of random_var_for, and volatile locals.
//
// The kinds: a pure stub only returns; a default stub writes through each pointer parameter and
// calls each function-pointer parameter; a clean stub writes every part that a parameter leads
// to, type by type; a worst stub lets two byte pointers roam over everything reachable and link
// any two objects. Ranges on a parameter's target or on the return narrow what is written.
#include "stubs/stub_bodies.h"

#include <cstring>

#include "analysis/stub_pragmas.h"
#include "drs/drs_model.h"
#include "driver/options.h"
#include "maingen/range_constraints.h"
#include "maingen/var_init.h"
#include "stubs/stub_text.h"
#include "stubs/stub_writes.h"
#include "stubs/user_stubs.h"
#include "types/type_emitter.h"
#include "types/type_predicates.h"

static const char *take_tmp_name()
{
  return format_text("_main_gen_tmp_%d", main_gen_tmp_counter++);
}

static void add_pointer_call(string_list *body, const char *param, func_type *type)
{
  add_piece(body, "if (qvt_random_int && %s != 0)\n", param);
  proc_sym *callee = make_free_proc(type, param);
  string_list *call = call_function_text(callee);
  delete callee;
  for (string_list_iter it(call); !it.is_empty();)
    add_piece(body, "%s", it.step());
  delete call;
  add_piece(body, "\n");
}

// The loop over all elements of a pointer target, from the last one that the block holds.
static void add_element_loop(string_list *body, const char *tmp, bool guarded)
{
  if (guarded)
    add_piece(body, "for (%s = %s - 1; (%s >= 0) && QVT_TRUE(); %s --)\n", tmp, tmp, tmp, tmp);
  else
    add_piece(body, "for (%s = %s - 1; %s >= 0; %s --)\n", tmp, tmp, tmp, tmp);
  add_piece(body, "{\n");
}

// A whole value of the pointee written at once, from a volatile source of its type.
static void add_whole_value_write(string_list *body, const char *param, type_node *pointee, bool plain,
                                  bool all_elements, bool guarded)
{
  type_node *elem = pointee->op() == TYPE_ARRAY ? get_element_type(pointee)->unqual() : nullptr;
  const char *tmp = take_tmp_name();
  const char *pointee_name = type_text(pointee);
  add_piece(body, "if (%s != 0)\n", param);
  add_piece(body, "{\n");
  add_piece(body, "volatile %s %s_v %s;\n", pointee_name, tmp, plain ? " = 0" : "");
  add_piece(body, "%s %s = __qv_builtin_available_size(%s) / sizeof(%s);\n", type_text(type_signed_long), tmp, param,
            pointee_name);
  if (all_elements) {
    add_element_loop(body, tmp, guarded);
    if (!elem) {
      add_piece(body, "%s[%s] = %s_v;\n", param, tmp, tmp);
      if (pointee->op() == TYPE_ENUM)
        move_pieces(body, enum_bounds_text(format_text("%s[%s]", param, tmp), pointee));
    } else {
      add_piece(body, "((%s *)(&%s[%s][0]))[qvt_random_int] = ((%s *)&%s_v[0])[qvt_random_int];\n",
                type_text(elem), param, tmp, type_text(elem), tmp);
    }
  } else {
    if (guarded)
      add_piece(body, "if ((%s > 0) && QVT_TRUE())", tmp);
    else
      add_piece(body, "if (%s > 0)", tmp);
    add_piece(body, "{\n");
    if (!elem) {
      add_piece(body, "%s[0] = %s_v;\n", param, tmp);
      if (pointee->op() == TYPE_ENUM)
        move_pieces(body, enum_bounds_text(format_text("%s[0]", param), pointee));
    } else {
      add_piece(body, "((%s *)(&%s[0][0]))[qvt_random_int] = ((%s *)&%s_v[0])[qvt_random_int];\n", type_text(elem),
                param, type_text(elem), tmp);
    }
  }
  add_piece(body, "}\n");
  add_piece(body, "}\n\n");
}

// The target written within the ranges that stand on it.
static void add_range_write(string_list *body, const char *param, ptr_type *type, subrange_list *targets,
                            const char *target_key, bool all_elements, bool guarded)
{
  type_node *pointee = type->ref_type()->unqual();
  const char *tmp = take_tmp_name();
  add_piece(body, "if (%s != 0)\n", param);
  add_piece(body, "{\n");
  add_piece(body, "%s %s = __qv_builtin_available_size (%s) / sizeof(%s);\n", type_text(type_signed_long), tmp, param,
            type_text(pointee));
  subrange_list *list;
  const char *lvalue;
  if (all_elements) {
    list = copy_subranges(targets);
    add_element_loop(body, tmp, guarded);
    lvalue = format_text("(%s[%s])", param, tmp);
  } else {
    list = targets;
    if (guarded)
      add_piece(body, "if ((%s > 0) && QVT_TRUE())\n", tmp);
    else
      add_piece(body, "if (%s > 0)\n", tmp);
    add_piece(body, "{\n");
    lvalue = format_text("(%s[0])", param);
  }
  move_pieces(body, write_range_init(lvalue, type->ref_type(), list, true, target_key, true));
  add_piece(body, "}\n");
  add_piece(body, "}\n\n");
}

// Without a usable range: an element walk for a pointer to a scalar, a byte walk through bytes
// and stored pointers for anything else.
static void add_fallback_write(string_list *body, const char *param, type_node *type)
{
  add_piece(body, "{\n");
  if (type_node *pointee = pointer_to_basic(type)) {
    add_piece(body, "if ((%s != 0) && QVT_TRUE())\n", param);
    add_piece(body, "{\n");
    add_piece(body, "while (qvt_random_int)\n");
    add_piece(body, "{\n");
    add_piece(body, "%s[qvt_random_int] = %s;\n", param, random_var_for(pointee));
    add_piece(body, "}\n");
    add_piece(body, "%s[0] = %s;\n", param, random_var_for(pointee));
    if (pointee->op() == TYPE_ENUM)
      move_pieces(body, enum_bounds_text(format_text("%s[0]", param), pointee));
  } else {
    add_piece(body, "__QVT__CHAR *p_addr = (__QVT__CHAR *)&%s;\n", param);
    add_piece(body, "while (qvt_random_int)\n");
    add_piece(body, "{\n");
    add_piece(body, "p_addr += qvt_random_int;\n");
    add_piece(body, "if (qvt_random_int)\n");
    add_piece(body, "{\n");
    add_piece(body, "p_addr = *(__QVT__CHAR **)p_addr;\n");
    add_piece(body, "}\n");
    add_piece(body, "*p_addr = (__QVT__CHAR)qvt_random_char;\n");
  }
  add_piece(body, "}\n");
  add_piece(body, "}\n\n");
}

// What a default stub does to one non-constant parameter, after its comment.
static void add_default_param(string_list *body, proc_sym *proc, int index, const char *param, type_node *type)
{
  const char *key = format_text("%s.#%d", proc->name(), index);
  const char *target_key = format_text("%s*", key);
  subrange_list *exact = drs_subranges_of(proc, key, true);
  subrange *entry = exact && !exact->empty() ? exact->front() : nullptr;
  subrange_list *targets = drs_subranges_of(proc, target_key, false);
  bool no_write = entry && entry->pointer_mode == DRS_PTR_NONE;
  bool all_elements =
      !entry || entry->pointer_mode == DRS_PTR_MULTI || entry->pointer_mode == DRS_PTR_MULTI_CERTAIN_WRITE;
  bool guarded = !entry || drs_write_is_uncertain(entry->pointer_mode, key);

  if (type->op() != TYPE_PTR)
    return;
  bool from_range_write = false;
  if (!pointer_to_function(type) && !no_write) {
    ptr_type *pointer = static_cast<ptr_type *>(type);
    type_node *pointee = pointer->ref_type()->unqual();
    bool plain = pointee->is_scalar() && pointee->op() != TYPE_PTR;
    if (all_drs_entries_flagged(target_key, plain, true, true)) {
      if (pointee->op() != TYPE_VOID && pointee->op() != TYPE_FUNC) {
        add_whole_value_write(body, param, pointee, plain, all_elements, guarded);
        return;
      }
    } else if (targets) {
      add_range_write(body, param, pointer, targets, target_key, all_elements, guarded);
      return;
    } else {
      from_range_write = true;
    }
  }

  if (type_node *function = pointer_to_function(type)) {
    add_pointer_call(body, param, static_cast<func_type *>(function));
    return;
  }
  if (no_write)
    return;
  if (from_range_write && entry && static_cast<ptr_type *>(type)->ref_type()->is_volatile())
    return;
  add_fallback_write(body, param, type);
}

static void add_param_text(string_list *body, proc_sym *proc, int kind, int index)
{
  type_node *type = proc->type()->arg_type((unsigned)index)->unqual();
  const char *param = format_text("P_%d", index);
  if (is_const_param(type)) {
    add_piece(body, "/* parameter %d is constant */\n\n", index);
    return;
  }
  switch (kind) {
  case STUB_DEFAULT:
    add_piece(body, "/* parameter %d */\n\n", index);
    add_default_param(body, proc, index, param, type);
    break;
  case STUB_CLEAN:
    add_piece(body, "/* parameter %d - CLEAN mode */\n\n", index);
    add_piece(body, "if (%s != 0)\n", param);
    add_piece(body, "{\n");
    move_pieces(body, clean_write(param, type, true));
    add_piece(body, "}\n\n");
    break;
  case STUB_WORST:
    add_piece(body, "/* parameter %d - WORST mode */\n\n", index);
    if (type_node *function = pointer_to_function(type)) {
      add_pointer_call(body, param, static_cast<func_type *>(function));
    } else {
      add_piece(body, "ptr_1 = (__QVT__CHAR *)&%s;\n", param);
      add_piece(body, "ptr_2 = (__QVT__CHAR *)&%s;\n", param);
      add_piece(body, "\n");
    }
    break;
  default: // STUB_NO_INSTRUMENT, and kinds without effects
    break;
  }
}

static const char *const worst_pointer_effect[] = {
    "/* pointer effect - WORST mode */\n\n",
    "while (qvt_random_int)\n",
    "{\n",
    "ptr_1 += qvt_random_int;\n",
    "if (qvt_random_int)\n",
    "{\n",
    "ptr_1 = *(__QVT__CHAR **)ptr_1;\n",
    "}\n\n",
    "ptr_2 += qvt_random_int;\n",
    "if (qvt_random_int)\n",
    "{\n",
    "ptr_2 = *(__QVT__CHAR **)ptr_2;\n",
    "}\n\n",
    "if (qvt_random_int)\n",
    "{\n",
    "*((__QVT__CHAR **)ptr_1) = ptr_2;\n",
    "}\n\n",
    "*ptr_1 = (__QVT__CHAR)qvt_random_char;\n",
    "*ptr_2 = (__QVT__CHAR)qvt_random_char;\n",
    "}\n\n",
};

static const char *const varargs_access[] = {
    "/* varargs access */\n",
    "\n",
    "{\n",
    "volatile int random = 0;\n",
    "volatile char random_char = 0;\n",
    "int i=0;\n",
    "char *tmp, *tmp2;\n",
    "for (i = 0; i < __quorvanta_nb_varargs; i++)\n",
    "{ /* Access each variable argument */\n",
    "tmp = (char *)__quorvanta_vararg[i];\n",
    "tmp2 = (char *)(int)*tmp;\n",
    "while (random)\n",
    "{ /* write random in all levels */\n",
    "*tmp2 = random_char;\n",
    "tmp2 += random;\n",
    "tmp2 = *(char**)tmp2;\n",
    "}\n",
    "}\n",
    "}\n\n",
};

template <size_t N>
static void add_fixed_pieces(string_list *body, const char *const (&pieces)[N])
{
  for (const char *piece : pieces)
    body->append(piece);
}

static bool returns_void(func_type *type)
{
  return type->return_type()->unqual()->op() == TYPE_VOID;
}

static void add_return(string_list *body, proc_sym *proc, int kind)
{
  type_node *returned = proc->type()->return_type();
  type_node *plain = returned->unqual();
  if (plain->op() == TYPE_VOID) {
    add_piece(body, "return;\n");
    return;
  }
  const char *init = returned->is_scalar() && plain->op() != TYPE_PTR ? " = 0" : "";
  add_piece(body, "/* random return value */\n\n");
  add_piece(body, "{\n");
  if (kind == STUB_WORST) {
    add_piece(body, "volatile %s random_for_return %s;\n", type_text(plain), init);
    add_piece(body, "return random_for_return;\n");
    add_piece(body, "}\n");
    return;
  }
  add_piece(body, "volatile %s real_random_for_return %s;\n", type_text(returned), init);
  add_piece(body, "%s random_for_return = real_random_for_return;\n", type_text(returned));
  const char *return_key = format_text("%s.return", proc->name());
  if (subrange_list *ranges = drs_subranges_of(proc, return_key, false)) {
    add_piece(body, "{\n");
    move_pieces(body, write_range_init("random_for_return", returned, ranges, true, return_key, false));
    add_piece(body, "}\n");
  } else if (plain->op() == TYPE_ENUM) {
    move_pieces(body, enum_bounds_text("random_for_return", plain));
  }
  add_piece(body, "return random_for_return;\n");
  add_piece(body, "}\n");
}

static string_list *make_body(proc_sym *proc, int kind)
{
  string_list *body = new string_list;
  func_type *type = proc->type();
  if (kind == STUB_PURE) {
    add_piece(body, "/* function is pure */\n\n");
  } else {
    if (kind == STUB_WORST) {
      add_piece(body, "__QVT__CHAR *ptr_1;\n");
      add_piece(body, "__QVT__CHAR *ptr_2;\n");
      add_piece(body, "\n");
    }
    int visible = visible_param_count(type);
    for (int i = 0; i < visible; i++)
      add_param_text(body, proc, kind, i);
    if (kind == STUB_WORST)
      add_fixed_pieces(body, worst_pointer_effect);
    if (type->has_varargs())
      add_fixed_pieces(body, varargs_access);
  }
  add_return(body, proc, kind);
  return body;
}

string_list *make_stub(proc_sym *proc, int kind, bool is_static)
{
  string_list *body = make_body(proc, kind);
  string_list *result = new string_list;
  const char *name = proc->name();
  add_piece(result, "/*\n * %s\n */\n", name);
  if (kind == STUB_PURE) {
    bool has_return_ranges =
        !returns_void(proc->type()) && drs_subranges_of(proc, format_text("%s.return", name), false) != nullptr;
    if (!has_return_ranges)
      add_piece(result, "\n#pragma QUORVANTA_POLYMORPHIC \"%s\"\n", name);
  }
  if (flag_instrum)
    add_piece(result, "\n#pragma QUORVANTA_AUTO_STUB \"%s\"\n", name);
  else
    add_piece(result, "\n");
  add_piece(result, "\n");
  char *signature = stub_signature(proc, true);
  add_piece(result, "%s%s\n", is_static ? "static " : "", signature);
  delete[] signature;
  add_piece(result, "{\n");
  move_pieces(result, body);
  add_piece(result, "}\n\n");
  return result;
}
