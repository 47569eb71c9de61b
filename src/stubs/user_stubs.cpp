// The user stub skeleton. It offers a starting point for every undefined function, used or not,
// so it walks the global table itself rather than the list of stubbed functions.
#include "stubs/user_stubs.h"

#include <cstdio>
#include <cstring>
#include <string>

#include "analysis/stub_pragmas.h"
#include "driver/output_files.h"
#include "stubs/stub_text.h"
#include "types/type_emitter.h"
#include "types/type_predicates.h"

char *stub_signature(proc_sym *proc, bool with_names)
{
  func_type *type = proc->type();
  std::string text = type_text(type->return_type());
  text += ' ';
  text += proc->name();
  text += '(';
  int visible = visible_param_count(type);
  for (int i = 0; i < visible; i++) {
    text += type_text(type->arg_type((unsigned)i));
    if (with_names)
      text += " P_" + std::to_string(i);
    if (i + 1 < visible)
      text += ", ";
  }
  if (type->has_varargs())
    text += visible != 0 ? ", ... " : " ... ";
  else if (visible == 0)
    text += type_text(type_void);
  text += ')';
  if (!with_names)
    text += ';';
  char *result = new char[text.size() + 1];
  memcpy(result, text.c_str(), text.size() + 1);
  return result;
}

static bool wants_skeleton(sym_node *sym)
{
  if (sym->kind() != SYM_PROC)
    return false;
  proc_sym *proc = static_cast<proc_sym *>(sym);
  if (proc->src_lang() != 0)
    return false;
  if (lexicon_strcmp_with_cheks(proc->name(), stringassert) == 0 || strcmp(proc->name(), "unchecked_assert") == 0)
    return false;
  return stub_mode_of(proc) == 0;
}

void write_user_stubs_file()
{
  open_output_file(stubs_dir_path("qvt_user_stubs.c"));
  emit_line(format_text("#include \"%s.h\"\n\n", "qvt_user_stubs"));
  for (sym_node_list_iter it(global_st->symbols()); !it.is_empty();) {
    sym_node *sym = it.step();
    if (!wants_skeleton(sym))
      continue;
    proc_sym *proc = static_cast<proc_sym *>(sym);
    const char *name = proc->name();
    char *signature = stub_signature(proc, true);
    emit_indent();
    fprintf(out_file,
            "\n// Pragmas for function %s\n//\n// #pragma QUORVANTA_PURE \"%s\"\n// #pragma QUORVANTA_CLEAN "
            "\"%s\"\n// #pragma QUORVANTA_WORST \"%s\"\n//\n// %s\n// {\n//    ...\n// }\n\n",
            name, name, name, name, signature);
    delete[] signature;
  }
  close_output_file();
}
