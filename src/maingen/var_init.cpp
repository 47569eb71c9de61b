// Variable initialisers. Each variable gets one small function, made on its first request and
// called as often as the variable stands in the main's lists; its body is a range write when
// the variable has ranges, else random content, else nothing.
#include "maingen/var_init.h"

#include "driver/output_files.h"
#include "maingen/const_writes.h"
#include "maingen/random_values.h"
#include "stubs/stub_text.h"
#include "types/type_emitter.h"

int main_gen_tmp_counter = 0;

const char *next_main_gen_tmp()
{
  return format_text("_main_gen_tmp_%d", main_gen_tmp_counter++);
}

static void add_init_function(var_sym *var, const char *function, bool random_init, bool has_range)
{
  const char *name = var->name();
  type_node *type = var->type();
  string_list *text = var_init_proc_texts;
  add_piece(text, "static void %s(void)\n", function);
  add_piece(text, "{\n");
  add_piece(text, "extern %s %s;\n", type_text(type), name);
  if (has_range) {
    add_piece(text, "\n");
    add_piece(text, "/* initialization with drs range */\n");
    add_piece(text, "{\n");
    move_pieces(text, write_range_init(name, type, drs_subranges_of(var, name, false), random_init, name, false));
    add_piece(text, "}\n");
  } else if (random_init) {
    add_piece(text, "\n");
    add_piece(text, "/* initialization with random value */\n");
    add_piece(text, "{\n");
    move_pieces(text, random_value_lines(name, type, var->is_standard_stubbed()));
    add_piece(text, "}\n");
  }
  add_piece(text, "}\n\n");
}

string_list *init_variable(var_sym *var, bool random_init, bool has_range)
{
  string_list *result = new string_list;
  if (var->peek_annote(k_never_read)) {
    add_piece(result, "/* init for variable %s : useless (never read) */\n\n", var->name());
    return result;
  }
  const char *function = format_text("_main_gen_init_sym_%s", var->name());
  if (!var->peek_annote(k_already_init_sym)) {
    var->append_annote(k_already_init_sym);
    // A read-only variable (an undefined extern const) gets an empty function: C refuses to
    // assign it, and the analyser, which takes it for read-only, gives it a value of its own.
    if (is_read_only_object(var->type()))
      random_init = has_range = false;
    add_init_function(var, function, random_init, has_range);
  }
  add_piece(result, "/* init for variable %s */\n", var->name());
  add_piece(result, "%s();\n", function);
  add_piece(result, "\n");
  return result;
}
