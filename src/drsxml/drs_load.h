// Checking a range file: parse it and validate it against the schema in one
// streaming pass, so that memory stays small whatever the file's size.
#pragma once

// True if path is a well-formed range file that follows the schema; otherwise
// false after one warning (unless warnings are off) that names the file, the
// line and what is wrong.
bool drs_check_file(const char *path, bool warnings);
