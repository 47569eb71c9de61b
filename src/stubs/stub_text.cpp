// Text helpers of the stub generator.
#include "stubs/stub_text.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "types/type_emitter.h"

// Generated text is allocated in large blocks. The stub driver releases them once a stub file is
// written, so that memory holds the text of one file, not of the whole program.
static std::vector<char *> text_blocks;
static size_t block_used = 0;
static size_t block_size = 0;
static constexpr size_t default_block_size = 256 * 1024;

static char *allocate_text(size_t length)
{
  if (text_blocks.empty() || block_used + length > block_size) {
    size_t size = length > default_block_size ? length : default_block_size;
    text_blocks.push_back(static_cast<char *>(malloc(size)));
    block_size = size;
    block_used = 0;
  }
  char *text = text_blocks.back() + block_used;
  block_used += length;
  return text;
}

void release_generated_text()
{
  for (char *block : text_blocks)
    free(block);
  text_blocks.clear();
  block_used = block_size = 0;
}

static char *vformat_text(const char *format, va_list args)
{
  // Most pieces are short: one formatting pass into a local buffer, then one copy.
  char local[512];
  va_list copy;
  va_copy(copy, args);
  int length = vsnprintf(local, sizeof local, format, copy);
  va_end(copy);
  if (length < 0)
    length = 0;
  char *text = allocate_text((size_t)length + 1);
  if ((size_t)length < sizeof local)
    memcpy(text, local, (size_t)length + 1);
  else
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
