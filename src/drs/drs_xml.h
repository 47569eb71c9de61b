// The XML range file: its reader, and the recognition of entries that only
// restate what the stubber does anyway.
#pragma once

#include "drs/drs_model.h"

// Reads drs_file_path into drs_read_entries; the file's switches also take
// variables out of drs_main_vars and put functions into drs_main_procs.
void drs_read_xml_file();
// Binds drs_read_entries silently, ahead of the real binding, and marks
// fully_handled on those of external or volatile symbols that restate the
// default.
void drs_prebind_defaults();
// Whether entry only restates the default; leaves the entry as it is.
bool drs_is_default_entry(drs_entry *entry);
