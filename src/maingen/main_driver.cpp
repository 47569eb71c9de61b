// The main driver. All text of the main is built before its file is opened, because the builders
// leave helper functions and random variables in the text lists that the file's prologue prints.
// The main then goes out section by section, each under its own condition; the loop is one of
// three forms (endless, none, bounded), each with an instrumented variant that runs exactly one
// function per pass, chosen by "__qvt_alternative__".
#include "maingen/main_driver.h"

#include <cstdarg>
#include <cstdio>
#include <string>
#include <unordered_set>

#include "driver/global_lists.h"
#include "driver/options.h"
#include "driver/output_files.h"
#include "maingen/call_generator.h"
#include "maingen/var_init.h"
#include "stubs/stub_text.h"

namespace {

// Console lines, one per global and per call, are gathered and written in large pieces: the
// standard error stream is unbuffered, and a program may have a million globals.
std::string console;

void console_add(const char *format, ...) __attribute__((format(printf, 1, 2)));
void console_add(const char *format, ...)
{
  char line[512];
  va_list args;
  va_start(args, format);
  int length = vsnprintf(line, sizeof line, format, args);
  va_end(args);
  if (length < 0)
    return;
  if ((size_t)length >= sizeof line) {
    std::string long_line((size_t)length + 1, '\0');
    va_start(args, format);
    vsnprintf(long_line.data(), long_line.size(), format, args);
    va_end(args);
    console.append(long_line.data(), (size_t)length);
  } else {
    console.append(line, (size_t)length);
  }
  if (console.size() > 1 << 16) {
    fputs(console.c_str(), stderr);
    console.clear();
  }
}

void console_flush()
{
  fputs(console.c_str(), stderr);
  console.clear();
}

std::unordered_set<sym_node *> symbol_set(sym_node_list *list)
{
  std::unordered_set<sym_node *> set;
  if (list)
    for (sym_node_list_e *e = list->head(); e; e = e->next())
      set.insert(e->contents);
  return set;
}

// Appends the initialisation of every variable of vars to lines, with its console line.
void add_variable_inits(string_list *lines, sym_node_list *vars, const std::unordered_set<sym_node *> &ranged)
{
  if (!vars)
    return;
  for (sym_node_list_e *e = vars->head(); e; e = e->next()) {
    console_add("Generating init for variable: %s\n", e->contents->name());
    move_pieces(lines, init_variable(static_cast<var_sym *>(e->contents), true, ranged.count(e->contents) != 0));
  }
}

// The calls of the initialisation or finalisation functions; what names them: "initialization"
// or "finalization".
void add_edge_calls(string_list *lines, proc_sym_list *procs, const char *what)
{
  for (proc_sym_list_e *e = procs->head(); e; e = e->next()) {
    console_add("Generating call to %s function: %s\n", what, e->contents->name());
    add_piece(lines, "/* call of %s function %s */\n", what, e->contents->name());
    move_pieces(lines, gen_function_call(e->contents));
    add_piece(lines, "\n");
  }
}

void emit_all(string_list *lines)
{
  for (string_list_e *e = lines->head(); e; e = e->next())
    emit_line(e->contents);
}

void emit_section(const char *heading, string_list *lines)
{
  emit_line(heading);
  emit_all(lines);
}

// Prints the prologue of the file that out_file has just opened. Its pieces, like those of the
// sections, are left to the end of the process with the rest of the generated text: a main file
// has millions of them, and freeing them one by one costs a sixth of its generation.
void emit_prologue()
{
  emit_all(build_prologue("qvt_stub_types.h"));
}

bool has_own_c_main()
{
  proc_sym *main_proc = global_st->lookup_proc("main", false);
  return main_proc && main_proc->src_lang() == src_c;
}

// The five sections of the main, each a list of pieces; never deleted, as the prologue's pieces.
struct main_sections {
  string_list *init = new string_list;   // vars_before_loop and the ranged variables
  string_list *reinit = new string_list; // vars_in_loop
  string_list *calls = new string_list;  // procs_in_loop
  string_list *before = new string_list; // procs_before_loop
  string_list *after = new string_list;  // procs_after_loop
};

void build_sections(main_sections &text)
{
  std::unordered_set<sym_node *> ranged = symbol_set(drs_init_vars);
  if (!flag_no_drs_init)
    add_variable_inits(text.init, vars_before_loop, ranged);
  // Ranged variables that no list names still get their range, with no console line.
  if (drs_init_vars && !drs_init_vars->is_empty()) {
    std::unordered_set<sym_node *> written = symbol_set(vars_before_loop);
    written.merge(symbol_set(vars_in_loop));
    for (sym_node_list_e *e = drs_init_vars->head(); e; e = e->next())
      if (!written.count(e->contents))
        move_pieces(text.init, init_variable(static_cast<var_sym *>(e->contents), false, true));
  }
  add_variable_inits(text.reinit, vars_in_loop, ranged);

  int count = procs_in_loop ? procs_in_loop->count() : 0;
  int index = 0;
  if (procs_in_loop)
    for (sym_node_list_e *e = procs_in_loop->head(); e; e = e->next(), index++) {
      proc_sym *proc = static_cast<proc_sym *>(e->contents);
      console_add("Generating call to function: %s\n", proc->name());
      add_piece(text.calls, "/* call of function %s */\n", proc->name());
      if (flag_instrum)
        add_piece(text.calls, "if (__qvt_alternative__ %% %d == %d)\n", count, index);
      else
        add_piece(text.calls, "if (QVT_TRUE())\n");
      move_pieces(text.calls, gen_function_call(proc));
      add_piece(text.calls, "\n");
    }
  if (procs_before_loop)
    add_edge_calls(text.before, procs_before_loop, "initialization");
  if (procs_after_loop)
    add_edge_calls(text.after, procs_after_loop, "finalization");
}

// The main itself, in the open main file. bound: below 1 an endless loop, 1 no loop (a plain
// block), above 1 a loop on a counter.
void write_main(const main_sections &text, int bound)
{
  bool bounded = bound > 1;
  emit_line("\n/* Main */\n\n");
  emit_line("void main(void)\n");
  emit_line("{\n");
  bool init_before = !flag_init_in_loop || procs_before_loop;
  if (init_before)
    emit_section("/* Initialization of global variables */\n\n", text.init);
  if (init_before && procs_before_loop)
    emit_section("/* Call of initialization functions */\n\n", text.before);
  if (bounded)
    emit_line("unsigned int __qvt__loop__variable = 0;\n");

  if (bound < 1)
    emit_line(flag_instrum ? "do\n" : "while (QVT_TRUE())\n");
  else if (bounded)
    emit_line(flag_instrum ? "do\n" : format_text("while (__qvt__loop__variable < %u)\n", (unsigned)bound));
  emit_line("{\n");
  emit_line(flag_instrum ? "unsigned int __qvt_alternative__ = qvt_random_int;\n" : "\n");
  if (bounded)
    emit_line("__qvt__loop__variable++;\n");
  if (flag_init_in_loop)
    emit_section("/* Initialization of global variables */\n\n", text.init);
  if (!text.reinit->is_empty())
    emit_section("/* Re-initialization of global variables */\n\n", text.reinit);
  emit_section("/* Call of functions */\n\n", text.calls);
  if (!flag_instrum || bound == 1)
    emit_line("}\n");
  else if (bound < 1)
    emit_line("} while (QVT_TRUE());\n");
  else
    emit_line(format_text("} while (__qvt__loop__variable < %u);\n", (unsigned)bound));

  if (procs_after_loop)
    emit_section("/* Call of finalization functions */\n\n", text.after);
  emit_line("}\n");
}

} // namespace

void generate_main()
{
  fputs("\nGenerating the Main ...\n\n", stderr);
  if (has_own_c_main()) {
    if (!flag_instrum) {
      if (procs_before_loop || procs_after_loop)
        warning_line(nullptr, "a main procedure already exists.\n|                 No main will be generated: the "
                              "existing main will be used and the initialization/finalization function(s) will "
                              "not be called...");
      else
        warning_line(nullptr, "a main procedure already exists.\n|                 No main will be generated: the "
                              "existing one will be used...");
    }
    return;
  }
  main_file_written = true;

  main_sections text;
  build_sections(text);
  int bound = main_generator_bounded_loop;
  if (bound == 1)
    console_add("\nMain without loop\n\n");
  else if (bound > 1)
    console_add("\nMain loop bounded to %d iterations\n\n", bound);
  console_flush();

  open_output_file(stubs_dir_path("__quorvanta_main.c"));
  emit_prologue();
  write_main(text, bound);
  close_output_file();
}

void write_extern_init_file()
{
  string_list *lines = new string_list;
  std::unordered_set<sym_node *> ranged = symbol_set(drs_init_vars);
  // A variable with a range is left to _data_range_init.
  for (sym_node_list_e *e = extern_var_list->head(); e; e = e->next())
    if (!ranged.count(e->contents))
      move_pieces(lines, init_variable(static_cast<var_sym *>(e->contents), true, false));

  stub_file_index++;
  open_output_file(stubs_dir_path(format_text("%s_%d.c", "qvt_stubs", stub_file_index)));
  emit_prologue();
  emit_line("\n/* Extern init */\n\n");
  emit_line("void _extern_init(void)\n");
  emit_line("{\n");
  if (!lines->is_empty())
    emit_section("/* Initialization of extern variables */\n\n", lines);
  emit_line("}\n");
  close_output_file();
}

void write_drs_init_file()
{
  // A generated main holds this work already.
  if (main_file_written)
    return;
  string_list *lines = new string_list;
  for (sym_node_list_e *e = drs_init_vars->head(); e; e = e->next())
    move_pieces(lines, init_variable(static_cast<var_sym *>(e->contents), false, true));

  open_output_file(stubs_dir_path("__quorvanta_main.c"));
  emit_prologue();
  emit_line("\n/* DRS initializations */\n\n");
  emit_line("void _data_range_init(void)\n");
  emit_line("{\n");
  emit_all(lines);
  emit_line("}\n\n");
  close_output_file();
}
