// The IR file format: reading and writing whole files and single bodies.
// Most callers use file_set::add_file, proc_sym::read_proc/write_proc and
// exit_suif; these entry points serve tests, the dump and the fuzzer.
#pragma once

#include <string>

#include "ir/forward.h"

// The version line every IR file starts with.
extern const char *const ir_format_version;

// Reads the tables of `input` into fse (a fresh entry). False with
// *error = "FILE:LINE: what is wrong" on a bad file.
bool ir_read_tables(file_set_entry *fse, std::string *error);
// Reads the body of p from its entry's input. False with *error set.
bool ir_read_body(proc_sym *p, std::string *error);
// Reads the tables and every body of `path`, then frees them: a check of a
// whole file. False with *error set.
bool ir_check_file(const char *path, std::string *error);
// Writes the entry's output now (what exit_suif does for each entry).
bool ir_write_entry(file_set_entry *fse, std::string *error);
