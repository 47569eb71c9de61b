// Loading a range file: parse it and check it against the schema.
#pragma once

#include <libxml/tree.h>

// The document, or null after one warning (unless warnings are off) that
// names the file, the line and what is wrong.
xmlDocPtr drs_load_file(const char *path, bool warnings);
