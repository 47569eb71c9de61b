// Stub writes. clean_write walks a type and guards its own recursion with a mark on the type
// under examination, set on entry to an array, a struct or a pointer and removed on the way out;
// only pointers test it, which is enough to stop on every cycle of C types.
#include "stubs/stub_writes.h"

#include "driver/output_files.h"
#include "stubs/stub_bodies.h"
#include "stubs/stub_text.h"
#include "stubs/user_stubs.h"
#include "types/type_emitter.h"
#include "types/type_predicates.h"
#include "driver/options.h"

static const char *handled_mark()
{
  static const char *name = nullptr;
  if (!name)
    name = intern("clean_write_handled");
  return name;
}

static void set_handled(type_node *type)
{
  type->append_annote(handled_mark());
}

static void clear_handled(type_node *type)
{
  delete type->get_annote(handled_mark());
}

proc_sym *make_free_proc(func_type *type, const char *name)
{
  return new proc_sym(type, src_c, name);
}

// "if (qvt_random_int && LVALUE != 0)" and the call of the function that lvalue points to.
static void add_pointer_call(string_list *result, const char *lvalue, func_type *type)
{
  add_piece(result, "if (qvt_random_int && %s != 0)\n", lvalue);
  proc_sym *callee = make_free_proc(type, lvalue);
  move_pieces(result, call_function_text(callee));
  delete callee;
}

static void clean_write_pointer(string_list *result, const char *lvalue, type_node *type, bool top_level)
{
  if (!top_level)
    add_piece(result, "%s = %s;\n", lvalue, random_var_for(type));
  if (type_node *function = pointer_to_function(type)) {
    add_pointer_call(result, lvalue, static_cast<func_type *>(function));
    return;
  }
  if (type->peek_annote(handled_mark()))
    return;
  type_node *referent = static_cast<ptr_type *>(type)->ref_type();
  if (referent->unqual()->op() == TYPE_VOID) {
    add_piece(result, "((__QVT__CHAR *)%s)[qvt_random_int] = %s;\n", lvalue, random_var_for(type_char));
    return;
  }
  // The referent keeps its qualifiers: memory reached through a pointer to const isn't written.
  set_handled(type);
  move_pieces(result, clean_write(format_text("%s[qvt_random_int]", lvalue), referent, false));
  clear_handled(type);
}

string_list *clean_write(const char *lvalue, type_node *type, bool top_level)
{
  string_list *result = new string_list;
  switch (type->op()) {
  case TYPE_INT:
  case TYPE_FLOAT:
  case TYPE_ENUM:
    if (!top_level)
      add_piece(result, "%s = %s;\n", lvalue, random_var_for(type));
    break;
  case TYPE_PTR:
    clean_write_pointer(result, lvalue, type, top_level);
    break;
  case TYPE_ARRAY:
    set_handled(type);
    move_pieces(result, clean_write(format_text("%s[qvt_random_int]", lvalue),
                                    static_cast<array_type *>(type)->elem_type(), top_level));
    clear_handled(type);
    break;
  case TYPE_STRUCT:
  case TYPE_UNION: {
    struct_type *record = static_cast<struct_type *>(type);
    set_handled(type);
    for (unsigned i = 0; i < record->num_fields(); i++) {
      if (is_filler_field(record->field_name(i)))
        continue;
      move_pieces(result, clean_write(format_text("%s.%s", lvalue, record->field_name(i)), record->field_type(i),
                                      top_level));
    }
    clear_handled(type);
    break;
  }
  case TYPE_CONST:
    move_pieces(result, clean_write(lvalue, type->unqual(), true));
    break;
  case TYPE_VOLATILE:
    move_pieces(result, clean_write(lvalue, type->unqual(), top_level));
    break;
  default: // void, function, group, and the kinds that have no C text
    break;
  }
  return result;
}

const char *random_var_for(type_node *type)
{
  const char *name = format_text("qvt_random_g_%u", type->type_id());
  if (random_type_list && !random_type_list->lookup(type))
    random_type_list->append(type);
  return name;
}

string_list *call_function_text(proc_sym *proc)
{
  string_list *result = new string_list;
  bool is_task = proc->peek_annote(k_is_a_task) != nullptr;
  bool is_main = proc->name() == stringmain;
  add_piece(result, "{ /* call of %s %s */\n", is_task ? "task" : "function", proc->name());
  if (proc->parent() || is_main) {
    char *prototype = stub_signature(proc, false);
    add_piece(result, "%s\n", prototype);
    delete[] prototype;
  }
  func_type *type = proc->type();
  string_list arguments;
  unsigned count = type->num_args();
  for (unsigned i = 0; i < count; i++) {
    add_piece(result, "volatile %s __ARG__%u;\n", type_text(type->arg_type(i)), i);
    add_piece(&arguments, "__ARG__%u%s", i, i + 1 < count ? ", " : "");
  }
  add_piece(result, "\n");
  char *joined = join_strings(&arguments);
  add_piece(result, "%s(%s);\n", proc->name(), joined);
  delete[] joined;
  if (is_task)
    add_piece(result, "assert(0);\n");
  add_piece(result, "}\n");
  return result;
}

const char *stub_for_function_pointer(func_type *type, int requested_kind)
{
  int kind = requested_kind;
  if (kind == -1 || kind == 2 || kind == 3)
    kind = flag_mgen_pure_stubs ? 1 : 0;
  if (kind != 1 && !type->has_varargs()) {
    bool all_const = true;
    for (unsigned i = 0; i < type->num_args() && all_const; i++)
      all_const = is_const_param(type->arg_type(i));
    if (all_const)
      kind = 1;
  }
  const char *name;
  const char *mark;
  if (kind == 1) {
    name = format_text("_stub_p_g_%u", type->type_id());
    mark = k_fct_stub_pure;
  } else if (kind == 3) {
    name = format_text("_stub_w_g_%u", type->type_id());
    mark = k_fct_stub_worst;
  } else {
    name = format_text("_stub_g_%u", type->type_id());
    mark = k_fct_stub;
  }
  if (type->peek_annote(mark))
    return name;
  proc_sym *stub = make_free_proc(type, name);
  move_pieces(fptr_stub_texts, make_stub(stub, kind, true));
  delete stub;
  add_per_file_mark(type, mark);
  return name;
}
