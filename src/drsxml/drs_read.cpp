// The reading side of the range file: a flat cursor over a checked file.
//
// drs_read_init validates the whole file first, in one streaming pass, and
// the cursor then reads it again, element by element, each with its full
// name composed from its ancestors: a field is "parent.field", a pointer's
// target "parent*", an array's element and the members of an anonymous
// struct stand at their parent's name, and a function's parameters and return
// are "f.#0" and "f.return". A scalar that holds both a range and an assert
// range comes twice, the assert second, since the cursor has one status an
// element. Memory stays at the depth of the tree, whatever the file's size.
#include "drsxml/drs_load.h"
#include "drsxml/drs_parser.h"
#include "drsxml/drs_words.h"

#include <libxml/xmlreader.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {
struct record {
  int kind;
  std::string name;
  bool is_static;
  int line;
  int status;
  std::string min, max;
  int sign, size, pointer_kind;
};

// An open element: its kind (0 a file), full name and static flag.
struct frame {
  int kind;
  std::string name;
  bool is_static;
};

xmlTextReaderPtr reader;
std::vector<frame> open_elements;
std::string file_name;
record current;
bool has_current;
bool warnings_on = true;
int buffer_size = 1024;

std::string attribute(const char *name, const char *fallback = "") {
  xmlChar *value = xmlTextReaderGetAttribute(reader, (const xmlChar *)name);
  std::string text = value ? (const char *)value : fallback;
  xmlFree(value);
  return text;
}

int current_line() {
  xmlNodePtr node = xmlTextReaderCurrentNode(reader);
  long line = node ? xmlGetLineNo(node) : 0;
  return line > 0 ? (int)line : 0;
}

// The name of a child element below a parent of this kind and full name.
std::string full_name(int parent_kind, const std::string &parent, const std::string &own) {
  switch (parent_kind) {
  case 0: return own;
  case DRS_ELEMENT_POINTER: return parent + "*";
  case DRS_ELEMENT_ARRAY: return parent;
  case DRS_ELEMENT_STRUCT:
    if (own.empty())
      return parent;
    return parent + "." + own;
  default: return parent + "." + own;
  }
}

// Fills current from the element under the reader.
void read_element(int kind) {
  const frame &parent = open_elements.back();
  current = record{};
  current.kind = kind;
  current.name = full_name(parent.kind, parent.name, attribute("name"));
  current.is_static = parent.is_static || attribute("static") == "yes";
  current.line = current_line();
  current.status = 3;
  current.pointer_kind = 2;
  current.sign = -1;
  if (kind == DRS_ELEMENT_SCALAR || kind == DRS_ELEMENT_POINTER) {
    current.status = drs_mode_status(attribute("mode").c_str());
    current.min = attribute("min");
    current.max = attribute("max");
    current.sign = drs_sign_value(attribute("sign", "none").c_str());
    current.size = atoi(attribute("size", "0").c_str());
    if (kind == DRS_ELEMENT_POINTER)
      current.pointer_kind = drs_targets_kind(attribute("targets", "multi").c_str());
    else if (current.status == 4)
      current.status = 3;
  } else if (kind == DRS_ELEMENT_FUNCTION) {
    std::string called = attribute("called");
    current.status = called == "yes" ? 1 : called == "no" ? 0 : 3;
  }
}

void stop_reading() {
  if (reader)
    xmlFreeTextReader(reader);
  reader = nullptr;
  open_elements.clear();
}

void copy_out(char *buffer, int size, const std::string &text) {
  if (!buffer)
    return;
  int n = size > 0 ? size : buffer_size;
  if (n <= 0)
    return;
  size_t length = text.size() < (size_t)n - 1 ? text.size() : (size_t)n - 1;
  memcpy(buffer, text.data(), length);
  buffer[length] = '\0';
}

void silent(void *, xmlErrorPtr) {}
} // namespace

int drs_get_file_version(const char *path) {
  FILE *in = fopen(path, "rb");
  if (!in)
    return 0;
  int c = fgetc(in);
  if (c == 0xEF && fgetc(in) == 0xBB && fgetc(in) == 0xBF)
    c = fgetc(in);
  while (c == ' ' || c == '\t' || c == '\n' || c == '\r')
    c = fgetc(in);
  fclose(in);
  if (c != '<')
    return 0;
  // XML: the root's version if it is a range file's, else the current
  // version, so that the reader gets to say what is wrong with it.
  int version = DRS_XML_VERSION;
  xmlSetStructuredErrorFunc(nullptr, silent);
  xmlTextReaderPtr reader = xmlReaderForFile(path, nullptr, XML_PARSE_NONET);
  if (!reader)
    return version;
  while (xmlTextReaderRead(reader) == 1) {
    if (xmlTextReaderNodeType(reader) != XML_READER_TYPE_ELEMENT)
      continue;
    if (xmlStrEqual(xmlTextReaderConstName(reader), (const xmlChar *)"ranges")) {
      xmlChar *text = xmlTextReaderGetAttribute(reader, (const xmlChar *)"version");
      if (text && (xmlStrEqual(text, (const xmlChar *)"1") || xmlStrEqual(text, (const xmlChar *)"2")))
        version = text[0] - '0';
      xmlFree(text);
    }
    break;
  }
  xmlFreeTextReader(reader);
  return version;
}

void drs_set_warnings(int on) { warnings_on = on != 0; }

void drs_set_output_buffer_size(int size) { buffer_size = size; }

void drs_read_init(const char *path) {
  stop_reading();
  has_current = false;
  if (!drs_check_file(path, warnings_on))
    return;
  xmlSetStructuredErrorFunc(nullptr, silent);
  reader = xmlReaderForFile(path, nullptr, XML_PARSE_NONET | XML_PARSE_BIG_LINES);
}

int drs_get_next_element(void) {
  has_current = false;
  while (reader && xmlTextReaderRead(reader) == 1) {
    int type = xmlTextReaderNodeType(reader);
    const char *tag = (const char *)xmlTextReaderConstLocalName(reader);
    if (type == XML_READER_TYPE_END_ELEMENT) {
      if (!open_elements.empty() && strcmp(tag, "assert") != 0 && strcmp(tag, "ranges") != 0)
        open_elements.pop_back();
      continue;
    }
    if (type != XML_READER_TYPE_ELEMENT)
      continue;
    bool empty = xmlTextReaderIsEmptyElement(reader);
    if (strcmp(tag, "file") == 0) {
      file_name = attribute("name");
      if (!empty)
        open_elements.push_back(frame{0, "", false});
      continue;
    }
    if (strcmp(tag, "assert") == 0) {
      // The scalar read last is the parent: its record comes again as the assert.
      if (current.kind != DRS_ELEMENT_SCALAR)
        continue;
      current.status = 7;
      current.min = attribute("min");
      current.max = attribute("max");
      current.line = current_line();
      has_current = true;
      return current.kind;
    }
    int kind = drs_element_kind(tag);
    if (kind == 0 || open_elements.empty())
      continue;
    read_element(kind);
    if (!empty)
      open_elements.push_back(frame{kind, current.name, current.is_static});
    has_current = true;
    return kind;
  }
  stop_reading();
  return DRS_ELEMENT_NONE;
}

void drs_get_element_coordinates(char *name, int name_size, char *file, int file_size, int *unused, int *is_static,
                                 int *line) {
  static const std::string none;
  copy_out(name, name_size, has_current ? current.name : none);
  copy_out(file, file_size, has_current ? file_name : none);
  if (unused)
    *unused = 0;
  if (is_static)
    *is_static = has_current && current.is_static;
  if (line)
    *line = has_current ? current.line : 0;
}

int drs_get_scalar(int *sign, int *size, char *min, int min_size, char *max, int max_size) {
  static const record none{};
  const record &r = has_current ? current : none;
  if (sign)
    *sign = r.sign;
  if (size)
    *size = r.size;
  copy_out(min, min_size, r.min);
  copy_out(max, max_size, r.max);
  return has_current ? r.status : 3;
}

int drs_get_pointer(char *min, int min_size, char *max, int max_size, int *pointer_kind) {
  static const record none{};
  const record &r = has_current ? current : none;
  copy_out(min, min_size, r.min);
  copy_out(max, max_size, r.max);
  if (pointer_kind)
    *pointer_kind = has_current ? r.pointer_kind : 2;
  return has_current ? r.status : 3;
}

int drs_get_function(int *status, int) {
  if (status)
    *status = has_current ? current.status : 3;
  return 0;
}
