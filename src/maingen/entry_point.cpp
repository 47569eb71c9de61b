// The entry point. Headings and the statements of this function go by plain indented prints;
// the call blocks go through emit_line, which follows their braces.
#include "maingen/entry_point.h"

#include <cstdio>

#include "driver/global_lists.h"
#include "driver/output_files.h"
#include "stubs/stub_text.h"
#include "stubs/stub_writes.h"

// Writes text after the indentation of the current level, leaving the level alone.
static void print_indented(const char *text)
{
  emit_indent();
  fputs(text, out_file);
}

static void emit_pieces(string_list *pieces)
{
  for (string_list_iter it(pieces); !it.is_empty();)
    emit_line(it.step());
  delete pieces;
}

void write_entry_point()
{
  open_output_file(stubs_dir_path(format_text("%s_%d.c", "qvt_stubs", stub_file_index)));
  print_indented("\n\n/*\n * main entry point\n */\n\n");
  print_indented("void __QVT__MAIN__ENTRY__POINT__(void)\n");
  print_indented("{\n");
  indent_level++;

  proc_sym *main_proc = global_st->lookup_proc("main", false);
  if (main_proc) {
    emit_pieces(call_function_text(main_proc));
  } else {
    // No main in the program: call one of type void(void) that the analyser may know.
    func_type *type = new func_type(type_void, 0u, false, true);
    proc_sym *free_main = new proc_sym(type, src_unknown, "main");
    emit_pieces(call_function_text(free_main));
    delete free_main;
    delete type;
  }
  print_indented("\n");

  for (string_list_iter it(task_list); !it.is_empty();) {
    proc_sym *task = global_st->lookup_proc(it.step(), false);
    if (!task)
      continue;
    print_indented("if (qvt_random_int)\n");
    emit_pieces(call_function_text(task));
    print_indented("\n");
  }

  indent_level--;
  print_indented("}\n\n");
  close_output_file();
}
