// The call generator. A wrapper declares the function locally with the prototype of the user
// stubs, so that the main file needs no declaration of its own, and gives each parameter the
// value its ranges ask for, or else an unknown one: scalars and aggregates by the init function
// of their type, pointers by a random value that may be null. A return value is kept in
// "__ret__" and not looked at.
#include "maingen/call_generator.h"

#include <string>

#include "driver/output_files.h"
#include "maingen/random_values.h"
#include "maingen/var_init.h"
#include "stubs/stub_text.h"
#include "stubs/user_stubs.h"
#include "types/type_predicates.h"

static const char *wrapper_name(proc_sym *proc)
{
  return format_text("_main_gen_call_%s", proc->name());
}

// The prototype of proc as a text that lives with the generated text.
static const char *prototype_text(proc_sym *proc)
{
  char *prototype = stub_signature(proc, false);
  const char *text = format_text("%s", prototype);
  delete[] prototype;
  return text;
}

// The statements that give parameter i of proc, named by lvalue, its value.
static void add_argument_value(string_list *text, proc_sym *proc, unsigned i, const char *lvalue)
{
  type_node *type = proc->type()->arg_type(i);
  const char *key = format_text("%s.#%u", proc->name(), i);
  if (subrange_list *ranges = drs_subranges_of(proc, key, false)) {
    add_piece(text, "{\n");
    move_pieces(text, write_range_init(lvalue, type, ranges, true, key, false));
    add_piece(text, "}\n");
    return;
  }
  switch (type->unqual()->op()) {
  case TYPE_INT:
  case TYPE_FLOAT:
  case TYPE_STRUCT:
  case TYPE_UNION:
  case TYPE_ENUM:
    move_pieces(text, gen_init_proc_call(lvalue, type));
    break;
  default:
    move_pieces(text, gen_random_value(lvalue, type, false));
    break;
  }
}

// The wrapper's definition, appended to function_texts.
static void add_wrapper(proc_sym *proc)
{
  func_type *type = proc->type();
  const char *name = proc->name();
  bool has_result = type->return_type()->unqual() != type_void;
  unsigned count = (unsigned)visible_param_count(type);
  string_list *text = function_texts;

  add_piece(text, "static void %s(void)\n", wrapper_name(proc));
  add_piece(text, "{\n");
  add_piece(text, "extern %s\n\n", prototype_text(proc));
  // A const result is kept in a plain variable: C refuses the assignment to a const one.
  if (has_result)
    add_piece(text, "%s __ret__;\n", type_text(type->return_type()->unqual()));
  for (unsigned i = 0; i < count; i++)
    add_piece(text, "%s __arg__%u;\n", type_text(type->arg_type(i)), i);
  add_piece(text, "\n");
  for (unsigned i = 0; i < count; i++)
    add_argument_value(text, proc, i, format_text("__arg__%u", i));
  if (type->has_varargs())
    add_piece(text, "/* Warning: function %s's varargs are not processed */\n", name);
  add_piece(text, "\n");
  add_piece(text, "/* call it */\n");

  std::string call = has_result ? "__ret__ = " : "";
  call += name;
  call += "(";
  for (unsigned i = 0; i < count; i++) {
    if (i > 0)
      call += ", ";
    call += "__arg__" + std::to_string(i);
  }
  call += ");\n";
  add_piece(text, "%s", call.c_str());
  add_piece(text, "}\n\n");
}

string_list *gen_function_call(proc_sym *proc)
{
  string_list *result = new string_list;
  func_type *type = proc->type();
  // The predefined void itself, by pointer: a qualified void result still gets a wrapper.
  if (type->return_type() == type_void && type->num_args() == 0) {
    add_piece(result, "{ /* call it */\n");
    add_piece(result, "extern %s\n\n", prototype_text(proc));
    add_piece(result, "%s();\n", proc->name());
    add_piece(result, "}\n");
    return result;
  }
  if (!proc->peek_annote(k_calling_proc)) {
    proc->append_annote(k_calling_proc);
    add_wrapper(proc);
  }
  add_piece(result, "{\n");
  add_piece(result, "%s();\n", wrapper_name(proc));
  add_piece(result, "}\n");
  return result;
}
