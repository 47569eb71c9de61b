// The stub driver. A stub file holds at most 200 stubs, so the text of one file is all that is
// kept in memory; the roll-over test stands ahead of the function's own text.
#include "stubs/stub_driver.h"

#include <cstdarg>
#include <cstdio>
#include <string>

#include "analysis/stub_pragmas.h"
#include "analysis/symbol_collection.h"
#include "driver/global_lists.h"
#include "driver/options.h"
#include "driver/output_files.h"
#include "stubs/stub_bodies.h"
#include "stubs/stub_text.h"
#include "types/type_predicates.h"

static constexpr int stubs_per_file = 200;

void generate_stubs()
{
  string_list *lines = new string_list;
  if (!stub_proc_list || stub_proc_list->is_empty()) {
    write_stub_file(lines);
    delete lines;
    return;
  }
  int count = 1;
  for (sym_node_list_iter it(stub_proc_list); !it.is_empty(); count++) {
    proc_sym *proc = static_cast<proc_sym *>(it.step());
    int kind = stub_kind_of(proc);
    if (count % stubs_per_file == 0) {
      write_stub_file(lines);
      release_generated_text();
      stub_file_index++;
    }
    report_stub(proc, kind);
    string_list *stub = make_stub(proc, kind, false);
    lines->append(stub);
    delete stub;
  }
  write_stub_file(lines);
  release_generated_text();
  delete lines;
}

// The report of one stub is gathered first and written at once: the standard error stream is
// unbuffered, and one write per stub instead of one per line matters for large programs.
static void report_add(std::string *report, const char *format, ...) __attribute__((format(printf, 2, 3)));
static void report_add(std::string *report, const char *format, ...)
{
  char line[512];
  va_list args;
  va_start(args, format);
  int length = vsnprintf(line, sizeof line, format, args);
  va_end(args);
  if (length < 0)
    return;
  if ((size_t)length < sizeof line) {
    report->append(line, (size_t)length);
    return;
  }
  std::string long_line((size_t)length + 1, '\0');
  va_start(args, format);
  vsnprintf(long_line.data(), long_line.size(), format, args);
  va_end(args);
  report->append(long_line.data(), (size_t)length);
}

void report_stub(proc_sym *proc, int kind)
{
  const char *name = display_name(proc);
  std::string report;
  switch (kind) {
  case STUB_DEFAULT:
    report_add(&report, "* Function %s may write to its arguments and may return random.\n", name);
    report_add(&report, "           Does not model pointer effects.\n");
    break;
  case STUB_PURE:
    report_add(&report, "* Function %s is pure.\n", name);
    break;
  case STUB_CLEAN:
    report_add(&report, "* Function %s is stubbed cleanly.\n", name);
    break;
  case STUB_WORST:
    report_add(&report, "* Function %s may write to its arguments and may return parts of them.\n", name);
    report_add(&report, "           Modelizes pointer effects.\n");
    break;
  default:
    return;
  }
  func_type *type = proc->type();
  bool variadic = type->has_varargs();
  if (kind != STUB_PURE && variadic)
    report_add(&report, "           It may write in the variable arguments.\n");
  if (type->return_type() != type_void && flag_return_initialized)
    report_add(&report, "           Returns an initialized value.\n");

  // The hidden parameters of a variadic function are never listed, but the total counts them.
  int total = (int)type->num_args();
  int named = variadic ? total - 2 : total;
  int_list constants;
  for (int i = 0; i < named; i++)
    if (is_const_param(type->arg_type((unsigned)i)))
      constants.append(i);
  if (!constants.is_empty()) {
    bool several = constants.count() > 1;
    report_add(&report, "           Const parameters (nb params=%d): ", total);
    if (several)
      report_add(&report, "(");
    bool first = true;
    for (int_list_iter it(&constants); !it.is_empty(); first = false)
      report_add(&report, "%s#%d", first ? "" : ", ", it.step() + 1);
    if (several)
      report_add(&report, ")");
    report_add(&report, ".\n");
  }
  report_add(&report, "\n");
  fputs(report.c_str(), stderr);
}
