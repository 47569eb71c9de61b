// The IR printed for people (qvt-irdump): the tables, then each body as
// indented pseudo-C.
#pragma once

#include <cstdio>
#include <string>

// Reads path into the file set (which must be fresh) and prints it on out.
// False with *error = "FILE:LINE: what is wrong" on a bad file; what was
// printed until then stays printed.
bool ir_dump_file(const char *path, FILE *out, std::string *error);
