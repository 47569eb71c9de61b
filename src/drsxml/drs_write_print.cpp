// Printing the writer's tree as XML, two blanks an indentation level.
//
// Every text goes through one escaping routine that keeps the output well
// formed whatever the stubber hands over: markup characters become entity
// references, tabs and line ends character references (so that they survive
// attribute normalisation), other control characters and bytes that are not
// UTF-8 become U+FFFD, since XML has no way to carry them.
#include "drsxml/drs_parser.h"
#include "drsxml/drs_words.h"
#include "drsxml/drs_write_tree.h"

namespace {
// Length of the valid UTF-8 sequence at s (1 to 4) for a character that XML
// allows, or 0.
int utf8_length(const unsigned char *s) {
  unsigned c = s[0];
  if (c < 0x80)
    return 1;
  int n = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : c >= 0xC2 ? 2 : 0;
  if (n == 0 || c > 0xF4)
    return 0;
  unsigned cp = c & (0x3F >> (n - 1));
  for (int i = 1; i < n; i++) {
    if ((s[i] & 0xC0) != 0x80)
      return 0;
    cp = cp << 6 | (s[i] & 0x3F);
  }
  bool overlong = (n == 3 && cp < 0x800) || (n == 4 && cp < 0x10000);
  if (overlong || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF) || cp == 0xFFFE || cp == 0xFFFF)
    return 0;
  return n;
}

// Runs of plain ASCII go out in one write; only what needs care is looked at
// character by character.
bool plain(unsigned char c) { return c >= 0x20 && c < 0x80 && c != '&' && c != '<' && c != '>' && c != '"'; }

void put_text(FILE *out, const char *text) {
  const unsigned char *s = (const unsigned char *)text;
  while (*s) {
    const unsigned char *run = s;
    while (plain(*s))
      s++;
    if (s != run)
      fwrite_unlocked(run, 1, s - run, out);
    if (!*s)
      break;
    switch (*s) {
    case '&': fputs_unlocked("&amp;", out); s++; continue;
    case '<': fputs_unlocked("&lt;", out); s++; continue;
    case '>': fputs_unlocked("&gt;", out); s++; continue;
    case '"': fputs_unlocked("&quot;", out); s++; continue;
    case '\t': fputs_unlocked("&#9;", out); s++; continue;
    case '\n': fputs_unlocked("&#10;", out); s++; continue;
    case '\r': fputs_unlocked("&#13;", out); s++; continue;
    }
    int n = *s < 0x20 ? 0 : utf8_length(s);
    if (n == 0) {
      fputs_unlocked("\xEF\xBF\xBD", out);
      s++;
    } else {
      fwrite_unlocked(s, 1, n, out);
      s += n;
    }
  }
}

void put_attribute(FILE *out, const char *name, const char *value) {
  if (!value)
    return;
  putc_unlocked(' ', out);
  fputs_unlocked(name, out);
  fputs_unlocked("=\"", out);
  put_text(out, value);
  putc_unlocked('"', out);
}

void put_flag(FILE *out, const char *name, bool on) {
  if (on)
    put_attribute(out, name, "yes");
}

void put_number(FILE *out, const char *name, long value) {
  char text[24];
  snprintf(text, sizeof text, "%ld", value);
  put_attribute(out, name, text);
}

void indent(FILE *out, int depth) {
  for (int i = 0; i < depth; i++)
    fputs_unlocked("  ", out);
}

void put_element(FILE *out, const drs_node *n, int depth) {
  const char *word = drs_element_word(n->kind);
  indent(out, depth);
  putc_unlocked('<', out);
  fputs_unlocked(word, out);
  put_attribute(out, "name", n->name);
  if (n->line > 0)
    put_number(out, "line", n->line);
  put_attribute(out, "type", n->type);
  if (n->kind == DRS_ELEMENT_SCALAR) {
    put_attribute(out, "sign", drs_sign_word(n->sign));
    if (n->size != 0)
      put_number(out, "size", n->size);
  }
  put_flag(out, "static", n->is_static);
  if (n->kind == DRS_ELEMENT_FUNCTION) {
    if (n->is_extern)
      fputs_unlocked(" defined=\"no\"", out);
  } else {
    put_flag(out, "extern", n->is_extern);
  }
  put_flag(out, "volatile", n->is_volatile);
  put_flag(out, "const", n->is_const);
  put_flag(out, "dead", n->is_dead);
  put_flag(out, "unmatched", n->unmatched);
  bool has_range = n->kind == DRS_ELEMENT_SCALAR || n->kind == DRS_ELEMENT_POINTER;
  if (has_range) {
    // A scalar has no "written" mode: it reads as default, and so it is written.
    int status = n->kind == DRS_ELEMENT_SCALAR && n->status == 4 ? 3 : n->status;
    put_attribute(out, "mode", n->user_values ? drs_mode_word(status)
                               : n->default_status == 2 ? "default-permanent" : "default");
    put_attribute(out, "min", n->min ? n->min : "min");
    put_attribute(out, "max", n->max ? n->max : "max");
  }
  if (n->kind == DRS_ELEMENT_POINTER) {
    const char *targets = drs_targets_word(n->pointer_kind);
    if (targets)
      put_attribute(out, "targets", targets);
    else
      put_number(out, "targets", (unsigned)n->pointer_kind);
    put_flag(out, "allocated-write", n->allocated_write);
  }
  if (n->kind == DRS_ELEMENT_FUNCTION && (n->called == 0 || n->called == 1))
    put_attribute(out, "called", n->called ? "yes" : "no");

  bool has_assert = n->kind == DRS_ELEMENT_SCALAR && n->has_assert;
  // A pointer holds one target at most; further children would not validate.
  if (!n->first_child && !has_assert) {
    fputs_unlocked("/>\n", out);
    return;
  }
  fputs_unlocked(">\n", out);
  if (has_assert) {
    indent(out, depth + 1);
    fputs_unlocked("<assert", out);
    put_attribute(out, "min", n->assert_min);
    put_attribute(out, "max", n->assert_max);
    fputs_unlocked("/>\n", out);
  }
  if (n->kind != DRS_ELEMENT_SCALAR)
    for (const drs_node *c = n->first_child; c; c = c->next) {
      put_element(out, c, depth + 1);
      if (n->kind == DRS_ELEMENT_POINTER)
        break;
    }
  indent(out, depth);
  fputs_unlocked("</", out);
  fputs_unlocked(word, out);
  fputs_unlocked(">\n", out);
}
} // namespace

void drs_print_tree(FILE *out, const drs_node *root) {
  fputs_unlocked("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n", out);
  fprintf(out, "<ranges version=\"%d\">\n", DRS_XML_VERSION);
  for (const drs_node *f = root->first_child; f; f = f->next) {
    fputs_unlocked("  <file", out);
    put_attribute(out, "name", f->name);
    if (!f->first_child) {
      fputs_unlocked("/>\n", out);
      continue;
    }
    fputs_unlocked(">\n", out);
    for (const drs_node *c = f->first_child; c; c = c->next)
      put_element(out, c, 2);
    fputs_unlocked("  </file>\n", out);
  }
  fputs_unlocked("</ranges>\n", out);
}
