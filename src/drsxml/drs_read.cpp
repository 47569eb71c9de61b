// The reading side of the range file: a flat cursor over the checked tree.
//
// drs_read_init loads the whole file and flattens it at once into a list of
// records, each element with its full name composed from its ancestors: a
// field is "parent.field", a pointer's target "parent*", an array's element
// and the members of an anonymous struct stand at their parent's name, and a
// function's parameters and return are "f.#0" and "f.return". A scalar that
// holds both a range and an assert range gives two records, the assert second,
// since the cursor has one status an element.
#include "drsxml/drs_load.h"
#include "drsxml/drs_parser.h"
#include "drsxml/drs_words.h"

#include <libxml/xmlreader.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {
struct record {
  int kind;
  std::string name;
  size_t file;  // index into files
  bool is_static;
  int line;
  int status;
  std::string min, max;
  int sign, size, pointer_kind;
};

std::vector<std::string> files;
std::vector<record> records;
size_t next_record;
const record *current;
bool warnings_on = true;
int buffer_size = 1024;

std::string attribute(xmlNodePtr node, const char *name, const char *fallback = "") {
  xmlChar *value = xmlGetProp(node, (const xmlChar *)name);
  std::string text = value ? (const char *)value : fallback;
  xmlFree(value);
  return text;
}

bool is_yes(xmlNodePtr node, const char *name) { return attribute(node, name) == "yes"; }

int line_of(xmlNodePtr node) {
  long line = xmlGetLineNo(node);
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

void flatten(xmlNodePtr parent, int parent_kind, const std::string &parent_name, bool parent_static, size_t file) {
  for (xmlNodePtr node = parent->children; node; node = node->next) {
    if (node->type != XML_ELEMENT_NODE)
      continue;
    int kind = drs_element_kind((const char *)node->name);
    if (kind == 0)
      continue;  // an assert, read with its scalar
    record r{};
    r.kind = kind;
    r.name = full_name(parent_kind, parent_name, attribute(node, "name"));
    r.file = file;
    r.is_static = parent_static || is_yes(node, "static");
    r.line = line_of(node);
    r.status = 3;
    r.pointer_kind = 2;
    r.sign = -1;
    if (kind == DRS_ELEMENT_SCALAR || kind == DRS_ELEMENT_POINTER) {
      r.status = drs_mode_status(attribute(node, "mode").c_str());
      r.min = attribute(node, "min");
      r.max = attribute(node, "max");
      r.sign = drs_sign_value(attribute(node, "sign", "none").c_str());
      r.size = atoi(attribute(node, "size", "0").c_str());
      if (kind == DRS_ELEMENT_POINTER)
        r.pointer_kind = drs_targets_kind(attribute(node, "targets", "multi").c_str());
      else if (r.status == 4)
        r.status = 3;
    } else if (kind == DRS_ELEMENT_FUNCTION) {
      std::string called = attribute(node, "called");
      r.status = called == "yes" ? 1 : called == "no" ? 0 : 3;
    }
    records.push_back(r);
    if (kind == DRS_ELEMENT_SCALAR) {
      for (xmlNodePtr a = node->children; a; a = a->next)
        if (a->type == XML_ELEMENT_NODE && strcmp((const char *)a->name, "assert") == 0) {
          record assert_record = records.back();
          assert_record.status = 7;
          assert_record.min = attribute(a, "min");
          assert_record.max = attribute(a, "max");
          assert_record.line = line_of(a);
          records.push_back(assert_record);
        }
    } else {
      // The list grows below: the parent's name is copied first.
      std::string name = r.name;
      flatten(node, kind, name, r.is_static, file);
    }
  }
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
  xmlTextReaderPtr reader = xmlReaderForFile(path, nullptr, XML_PARSE_NONET);
  if (!reader)
    return version;
  xmlTextReaderSetStructuredErrorHandler(reader, silent, nullptr);
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
  files.clear();
  records.clear();
  next_record = 0;
  current = nullptr;
  xmlDocPtr doc = drs_load_file(path, warnings_on);
  if (!doc)
    return;
  xmlNodePtr root = xmlDocGetRootElement(doc);
  for (xmlNodePtr f = root->children; f; f = f->next) {
    if (f->type != XML_ELEMENT_NODE)
      continue;
    files.push_back(attribute(f, "name"));
    flatten(f, 0, "", false, files.size() - 1);
  }
  xmlFreeDoc(doc);
}

int drs_get_next_element(void) {
  if (next_record >= records.size()) {
    current = nullptr;
    return DRS_ELEMENT_NONE;
  }
  current = &records[next_record++];
  return current->kind;
}

void drs_get_element_coordinates(char *name, int name_size, char *file, int file_size, int *unused, int *is_static,
                                 int *line) {
  static const std::string none;
  copy_out(name, name_size, current ? current->name : none);
  copy_out(file, file_size, current ? files[current->file] : none);
  if (unused)
    *unused = 0;
  if (is_static)
    *is_static = current && current->is_static;
  if (line)
    *line = current ? current->line : 0;
}

int drs_get_scalar(int *sign, int *size, char *min, int min_size, char *max, int max_size) {
  static const record none{};
  const record &r = current ? *current : none;
  if (sign)
    *sign = r.sign;
  if (size)
    *size = r.size;
  copy_out(min, min_size, r.min);
  copy_out(max, max_size, r.max);
  return current ? r.status : 3;
}

int drs_get_pointer(char *min, int min_size, char *max, int max_size, int *pointer_kind) {
  static const record none{};
  const record &r = current ? *current : none;
  copy_out(min, min_size, r.min);
  copy_out(max, max_size, r.max);
  if (pointer_kind)
    *pointer_kind = current ? r.pointer_kind : 2;
  return current ? r.status : 3;
}

int drs_get_function(int *status, int) {
  if (status)
    *status = current ? current->status : 3;
  return 0;
}
