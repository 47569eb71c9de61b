// Parsing and validation of a range file with libxml2.
//
// The schema is embedded in the library, parsed once and kept. libxml2
// reports every error it meets; only the first is told, since a later one is
// often a consequence of it, and the file is then not used at all: a half-read
// range file would give ranges the user didn't mean. The network is never
// touched, and a document type declaration is refused, so that no entity
// expansion or outside file comes into play.
#include "drsxml/drs_load.h"
#include "drsxml/drs_words.h"

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {
struct first_error {
  bool seen = false;
  int line = 0;
  std::string text;
};

void keep_first(void *data, xmlErrorPtr error) {
  first_error *first = (first_error *)data;
  if (first->seen || !error || error->level == XML_ERR_WARNING)
    return;
  first->seen = true;
  first->line = error->line;
  first->text = error->message ? error->message : "unknown error";
  while (!first->text.empty() && (first->text.back() == '\n' || first->text.back() == ' '))
    first->text.pop_back();
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

void silent(void *, xmlErrorPtr) {}
} // namespace

xmlDocPtr drs_load_file(const char *path, bool warnings) {
  first_error first;
  xmlSetStructuredErrorFunc(&first, keep_first);
  xmlDocPtr doc = xmlReadFile(path, nullptr, XML_PARSE_NONET | XML_PARSE_BIG_LINES);
  if (doc && doc->intSubset && !first.seen) {
    first.seen = true;
    first.line = (int)xmlGetLineNo((xmlNodePtr)doc->intSubset);
    first.text = "a document type declaration is not allowed in a range file";
  }
  if (doc && !first.seen) {
    xmlSchemaValidCtxtPtr valid = xmlSchemaNewValidCtxt(schema());
    xmlSchemaSetValidStructuredErrors(valid, keep_first, &first);
    if (xmlSchemaValidateDoc(valid, doc) != 0 && !first.seen) {
      first.seen = true;
      first.text = "the file does not follow the range file schema";
    }
    xmlSchemaFreeValidCtxt(valid);
  }
  if (!doc && !first.seen) {
    first.seen = true;
    first.text = "the file can't be read as XML";
  }
  xmlSetStructuredErrorFunc(nullptr, silent);
  if (!first.seen)
    return doc;
  xmlFreeDoc(doc);
  if (warnings) {
    fprintf(stderr, "%s:%d: warning: data-range-specifications: bad XML range file: %s\n", path,
            first.line > 0 ? first.line : 1, first.text.c_str());
    fflush(stderr);
  }
  return nullptr;
}
