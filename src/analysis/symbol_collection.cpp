// collect_symbols: one pass over the symbol tables that fills the global
// lists, in a fixed order of steps, reporting every problem and going on.
//
// The lists that are searched by symbol while they are built (the variables
// and functions of the generated main, and extern_var_list, which loses every
// variable the main writes) go through a sym_list_index, so that the pass
// stays linear in the number of symbols.
#include "analysis/symbol_collection.h"
#include "analysis/sym_list_index.h"
#include "analysis/stub_pragmas.h"
#include "analysis/used_symbols.h"
#include "driver/global_lists.h"
#include "driver/options.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

// The error of this pass: the message, then the status; the pass goes on.
__attribute__((format(printf, 1, 2))) void report_error(const char *format, ...) {
  va_list args;
  va_start(args, format);
  char *text = nullptr;
  if (vasprintf(&text, format, args) < 0)
    text = nullptr;
  va_end(args);
  error_line(0, nullptr, "%s", text ? text : format);
  free(text);
  exit_status = 1;
}

// Option texts are cut in place by split_names; cut a copy, so that the
// caller's text stays whole for a later run. The copy lives as the list does.
string_list *split_option(const char *text, const char *separators) {
  return split_names(text ? strdup(text) : nullptr, separators);
}

// Names of the main generator's options are looked up through one index,
// made at the first such name of a run.
std::unique_ptr<original_name_index> name_index;

sym_node *find_user_symbol(const char *name, unsigned kind) {
  if (!name_index)
    name_index = std::make_unique<original_name_index>(current_fse);
  return name_index->find(name, kind);
}

proc_sym *lookup_proc_in_file(const char *name) {
  return static_cast<proc_sym *>(current_fse->symtab()->lookup_sym(name, SYM_PROC, true));
}

bool has_body(proc_sym *proc) { return proc->src_lang() != src_unknown; }

bool is_void_without_params(proc_sym *proc) {
  return proc->type()->return_type() == type_void && proc->type()->num_args() == 0;
}

void check_tasks(const char *tasks) {
  task_list = split_option(tasks, ",");
  for (string_list_e *e = task_list->head(); e; e = e->next()) {
    proc_sym *proc = lookup_proc_in_file(e->contents);
    if (!proc || !has_body(proc))
      report_error("Verifier found an error in parameter -entry-points: task \"%s\" must be a userdef function "
                   "without parameters",
                   e->contents);
    else if (!is_void_without_params(proc))
      report_error("Verifier found an error in parameter -entry-points: task '%s' has non-void prototype",
                   e->contents);
  }
}

// Keeps the function part of each "function:label" entry; an entry without
// ":" is dropped. A function passes with a body, or undefined of the form void f(void).
string_list *check_critical_sections(const char *entries) {
  string_list *names = new string_list;
  string_list *parts = split_option(entries, ",");
  for (string_list_e *e = parts->head(); e; e = e->next()) {
    const char *colon = strchr(e->contents, ':');
    if (colon)
      names->append(bufprintf("%.*s", static_cast<int>(colon - e->contents), e->contents));
  }
  delete parts;
  for (string_list_e *e = names->head(); e; e = e->next()) {
    proc_sym *proc = lookup_proc_in_file(e->contents);
    if (!proc || !(has_body(proc) || is_void_without_params(proc)))
      report_error("Verifier found an error in parameter -critical-section: function \"%s\" must be a userdef "
                   "function",
                   e->contents);
  }
  return names;
}

void check_temporal_exclusions(const char *path) {
  temporal_task_list = read_name_file(path);
  for (string_list_e *e = temporal_task_list->head(); e; e = e->next()) {
    proc_sym *proc = lookup_proc_in_file(e->contents);
    if (!proc || !has_body(proc))
      report_error("Verifier found an error in parameter -temporal-exclusions: module \"%s\" must be userdef",
                   e->contents);
    else if (!proc->peek_annote(k_is_a_task))
      report_error("Verifier found an error in parameter -temporal-exclusions: module \"%s\" must be a task",
                   e->contents);
  }
}

// Undefined functions of the global table, in order: stub, skip or refuse.
void collect_undefined_functions() {
  stub_proc_list = new sym_node_list;
  for (sym_node_list_e *e = global_st->symbols()->head(); e; e = e->next()) {
    if (!e->contents->is_proc())
      continue;
    proc_sym *proc = static_cast<proc_sym *>(e->contents);
    if (has_body(proc))
      continue;
    if (!lexicon_strcmp_with_cheks(proc->name(), stringassert) || !strcmp(proc->name(), "unchecked_assert"))
      continue;
    if (proc->peek_annote(k_builtin))
      continue;
    if (stub_kind_of(proc) == STUB_NO_INSTRUMENT)
      continue;
    if (flag_no_automatic_stubbing && !is_alloc_function(proc->name())) {
      if (!automatic_stubber_reported) {
        error_line(0, nullptr, "The automatic stubber is not activated.");
        exit_status = 1;
        automatic_stubber_reported = true;
      }
      fprintf(stderr, "|\tfunction \"%s\" must be stubbed manually.\n", display_name(proc));
      continue;
    }
    if (proc->type()->args_known()) {
      if (check_stubbable(proc))
        stub_proc_list->append(proc);
      continue;
    }
    print_symbol_location(proc);
    if (flag_permissive_stubber)
      report_error("function '%s' has unknown prototype\n"
                   "|        Please provide the complete prototype for this function.",
                   display_name(proc));
    else
      report_error("function '%s' has unknown prototype\n"
                   "|        Please provide the complete prototype for this function,\n"
                   "|        or you can try using the -permissive-stubber option.\n",
                   display_name(proc));
  }
}

void collect_undefined_variables() {
  extern_var_list = new sym_node_list;
  std_extern_var_list = new sym_node_list;
  if (flag_no_undef_variables_stubs)
    return;
  for (sym_node_list_e *e = global_st->symbols()->head(); e; e = e->next()) {
    sym_node *sym = e->contents;
    if (!sym->is_var() || is_ignored_symbol(sym) || sym->peek_annote(k_static_sym) || !sym->is_extern())
      continue;
    if (static_cast<var_sym *>(sym)->is_standard_stubbed())
      std_extern_var_list->append(sym);
    else
      extern_var_list->append(sym);
  }
}

// The variables the generated main writes, by the option's word. A variable
// the main writes is initialised there alone, so it leaves extern_var_list.
void collect_main_variables(sym_node_list *list, const char *word, bool null_is_public, const char *warning,
                            sym_list_index &externs) {
  sym_list_index taken(list);
  auto take = [&](sym_node *sym) {
    taken.append(sym);
    externs.remove_first(sym);
  };
  auto take_vars_of = [&](base_symtab *table, bool publics_only) {
    for (sym_node_list_e *e = table->symbols()->head(); e; e = e->next())
      if (e->contents->is_var() && !is_ignored_symbol(e->contents) &&
          !(publics_only && e->contents->peek_annote(k_static_sym)))
        take(e->contents);
  };
  if ((!word && null_is_public) || (word && !strcmp(word, "public"))) {
    take_vars_of(global_st, true);
  } else if (word && !strcmp(word, "all")) {
    take_vars_of(global_st, false);
    take_vars_of(current_fse->symtab(), false);
  } else if (word && !strncmp(word, "custom=", 7)) {
    string_list *names = split_option(word + 7, ",");
    for (string_list_e *e = names->head(); e; e = e->next()) {
      sym_node *sym = find_user_symbol(e->contents, SYM_VAR);
      if (!sym || !sym->is_var()) {
        if (!flag_instrum)
          warning_line(nullptr, warning, e->contents);
      } else if (!taken.contains(sym) && !is_ignored_symbol(sym)) {
        take(sym);
      }
    }
    delete names;
  }
}

void collect_loop_functions(const char *word, sym_list_index &in_loop) {
  bool all = word && !strcmp(word, "all");
  if (!word || all || !strcmp(word, "unused")) {
    for (proc_sym *proc : current_fse->procs())
      if ((all || is_dead_proc(proc)) && !is_ignored_symbol(proc) && !in_ignored_file(proc))
        in_loop.append(proc);
  } else if (!strncmp(word, "custom=", 7)) {
    string_list *names = split_option(word + 7, ",");
    for (string_list_e *e = names->head(); e; e = e->next()) {
      sym_node *sym = find_user_symbol(e->contents, SYM_PROC);
      if (!sym || !sym->is_proc()) {
        if (!flag_instrum)
          warning_line(nullptr,
                       "function \"%s\" does not exist. Fix option -functions-called-in-loop "
                       "(-main-generator-calls).\n",
                       e->contents);
      } else {
        in_loop.append_if_absent(sym);
      }
    }
    delete names;
  }
}

// Initialisation or finalisation functions; with remove, each also leaves
// the functions called in the loop.
void collect_edge_functions(const char *names_text, proc_sym_list *&list, bool remove, const char *warning,
                            sym_list_index &in_loop) {
  if (!names_text)
    return;
  string_list *names = split_option(names_text, ",");
  for (string_list_e *e = names->head(); e; e = e->next()) {
    sym_node *sym = find_user_symbol(e->contents, SYM_PROC);
    if (!sym || !sym->is_proc()) {
      if (!flag_instrum)
        warning_line(nullptr, warning, e->contents);
      continue;
    }
    if (remove)
      in_loop.remove_first(sym);
    if (!list)
      list = new proc_sym_list;
    list->append(static_cast<proc_sym *>(sym));
  }
  delete names;
}

} // namespace

void collect_symbols(const char *tasks, const char *cs_begin, const char *cs_end, const char *temporal_file,
                     const char *vars_before, const char *vars_in, const char *funcs_in, const char *funcs_before,
                     const char *funcs_after, const char *files_to_ignore) {
  ignored_files = parse_file_list(files_to_ignore, ",");
  check_tasks(tasks);
  cs_begin_list = check_critical_sections(cs_begin);
  cs_end_list = check_critical_sections(cs_end);
  check_temporal_exclusions(temporal_file);
  collect_undefined_functions();
  collect_undefined_variables();
  if (!flag_main_generator)
    return;

  sym_list_index externs(extern_var_list);
  vars_before_loop = new sym_node_list;
  collect_main_variables(vars_before_loop, vars_before, true,
                         "variable \"%s\" does not exist. Fix option -variables-written-before-loop "
                         "(-main-generator-writes-variables).\n",
                         externs);
  vars_in_loop = new sym_node_list;
  collect_main_variables(vars_in_loop, vars_in, false,
                         "variable \"%s\" does not exist. Fix option -variables-written-in-loop.\n", externs);

  procs_in_loop = new sym_node_list;
  sym_list_index in_loop(procs_in_loop);
  collect_loop_functions(funcs_in, in_loop);
  bool remove = funcs_in && strncmp(funcs_in, "custom=", 7) != 0;
  collect_edge_functions(funcs_before, procs_before_loop, remove, "Initialization function does not exist : %s.",
                         in_loop);
  collect_edge_functions(funcs_after, procs_after_loop, remove, "Finalization function does not exist : %s.",
                         in_loop);
  name_index.reset();
}

bool has_drs_init(sym_node *sym) {
  annote_list *annotes = sym->annotes_if_any();
  if (!annotes)
    return false;
  for (annote_list_e *e = annotes->head(); e; e = e->next()) {
    annote *a = e->contents;
    if (a->name() != k_drs || !a->immeds() || a->immeds()->is_empty())
      continue;
    const char *mode = a->immeds()->head()->contents.string();
    if (mode && !strcmp(mode, "init"))
      return true;
  }
  return false;
}

void collect_drs_init_vars() {
  drs_init_vars = new sym_node_list;
  for (base_symtab *table : {static_cast<base_symtab *>(global_st), static_cast<base_symtab *>(current_fse->symtab())})
    for (sym_node_list_e *e = table->symbols()->head(); e; e = e->next())
      if (e->contents->is_var() && has_drs_init(e->contents))
        drs_init_vars->append(e->contents);
}
