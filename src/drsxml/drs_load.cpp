// Validation of a range file with libxml2's streaming reader and the schema.
//
// The schema is embedded in the library, parsed once and kept. libxml2
// reports every error it meets; only the first is told, since a later one is
// often a consequence of it, and the file is then not used at all: a half-read
// range file would give ranges the user didn't mean. The network is never
// touched, and a document type declaration is refused, so that no entity
// expansion or outside file comes into play.
#include "drsxml/drs_load.h"
#include "drsxml/drs_words.h"

#include <libxml/xmlreader.h>
#include <libxml/xmlschemas.h>

#include <cstdio>
#include <string>

namespace {
struct first_error {
  bool seen = false;
  int line = 0;
  std::string text;

  void set(int at, const char *message) {
    if (seen)
      return;
    seen = true;
    line = at;
    text = message ? message : "unknown error";
    while (!text.empty() && (text.back() == '\n' || text.back() == ' '))
      text.pop_back();
  }
};

void keep_first(void *data, xmlErrorPtr error) {
  if (error && error->level != XML_ERR_WARNING)
    ((first_error *)data)->set(error->line, error->message);
}

xmlSchemaPtr schema() {
  static xmlSchemaPtr parsed;
  if (!parsed) {
    xmlSchemaParserCtxtPtr ctxt = xmlSchemaNewMemParserCtxt(drs_schema_text, (int)drs_schema_size);
    parsed = xmlSchemaParse(ctxt);
    xmlSchemaFreeParserCtxt(ctxt);
  }
  return parsed;
}
} // namespace

bool drs_check_file(const char *path, bool warnings) {
  first_error first;
  xmlSetStructuredErrorFunc(&first, keep_first);
  xmlTextReaderPtr reader = xmlReaderForFile(path, nullptr, XML_PARSE_NONET | XML_PARSE_BIG_LINES);
  if (!reader) {
    first.set(0, "the file can't be read as XML");
  } else {
    xmlTextReaderSetSchema(reader, schema());
    int status;
    while ((status = xmlTextReaderRead(reader)) == 1 && !first.seen)
      if (xmlTextReaderNodeType(reader) == XML_READER_TYPE_DOCUMENT_TYPE)
        first.set(xmlTextReaderGetParserLineNumber(reader),
                  "a document type declaration is not allowed in a range file");
    if (status < 0)
      first.set(xmlTextReaderGetParserLineNumber(reader), "the file can't be read as XML");
    if (!first.seen && xmlTextReaderIsValid(reader) != 1)
      first.set(xmlTextReaderGetParserLineNumber(reader), "the file does not follow the range file schema");
    xmlFreeTextReader(reader);
  }
  xmlSetStructuredErrorFunc(nullptr, [](void *, xmlErrorPtr) {});
  if (!first.seen)
    return true;
  if (warnings) {
    fprintf(stderr, "%s:%d: warning: data-range-specifications: bad XML range file: %s\n", path,
            first.line > 0 ? first.line : 1, first.text.c_str());
    fflush(stderr);
  }
  return false;
}
