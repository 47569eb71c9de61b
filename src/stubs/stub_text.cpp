// Text helpers of the stub generator. Pieces are allocated once and never freed: generated text
// lives to the end of the process, like every other text the generators make.
#include "stubs/stub_text.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "types/type_emitter.h"

static char *vformat_text(const char *format, va_list args)
{
  va_list copy;
  va_copy(copy, args);
  int length = vsnprintf(nullptr, 0, format, copy);
  va_end(copy);
  if (length < 0)
    length = 0;
  char *text = static_cast<char *>(malloc((size_t)length + 1));
  vsnprintf(text, (size_t)length + 1, format, args);
  return text;
}

char *format_text(const char *format, ...)
{
  va_list args;
  va_start(args, format);
  char *text = vformat_text(format, args);
  va_end(args);
  return text;
}

void add_piece(string_list *list, const char *format, ...)
{
  va_list args;
  va_start(args, format);
  list->append(vformat_text(format, args));
  va_end(args);
}

void move_pieces(string_list *to, string_list *from)
{
  if (!from)
    return;
  to->append(from);
  delete from;
}

const char *type_text(type_node *type)
{
  const char *name = type ? get_type_name(type) : nullptr;
  return name ? name : "";
}

int hidden_param_count(func_type *type)
{
  return type->has_varargs() && !flag_instrum ? 2 : 0;
}

int visible_param_count(func_type *type)
{
  int count = (int)type->num_args() - hidden_param_count(type);
  return count < 0 ? 0 : count;
}
