// Private to the file-format code: the state of an entry's input and
// output, tokens of a line, and the text forms of strings and immeds.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ir/fileset.h"

struct file_set_entry::io_state {
    FILE *in = nullptr;  // the input, open while bodies may be read
    // Bodies written by write_proc, spooled until exit_suif.
    FILE *spool = nullptr;
    long spool_size = 0;
    bool spool_read = false;
    struct spooled {
        proc_sym *proc;
        long offset;
        long length;
    };
    std::vector<spooled> bodies;
    ~io_state();
};

namespace ir_format {
// Appends text in double quotes with C escapes.
void put_quoted(std::string &out, const char *text);
// Appends the text form of an immed.
void put_immed(std::string &out, const immed &im);

// Splits a line into tokens at single blanks; a double quote starts a part
// that runs to its closing quote, blanks included. False on an unclosed quote.
bool split_tokens(std::string_view line, std::vector<std::string_view> &tokens);
// Decodes a quoted token ("..."); false on a bad escape.
bool unquote(std::string_view tok, std::string &out);
bool parse_uint(std::string_view tok, unsigned *out);
bool parse_int(std::string_view tok, long long *out);

// Serialises the body of p (must be in memory) into out.
void write_body(std::string &out, proc_sym *p);
}  // namespace ir_format
