// Translation units from a compilation database (DIR/compile_commands.json).
#pragma once

#include "cfront/cfront_options.h"

#include <string>
#include <vector>

// Appends one job per C file of DIR/compile_commands.json that `select`
// takes, in the order of the database, each with extra_args and its own
// flags. False with *err set if the database can't be read.
bool load_compile_db(const std::string &dir, const std::vector<std::string> &extra_args,
                     const db_selection &select, std::vector<tu_job> *units, std::string *err);
