// Private to the file-format code: the state of an entry's input and
// output, tokens of a line, and the text forms of strings and immeds.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ir/fileset.h"
#include "ir/trees.h"

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
    // The first body that could not be spooled, and why: the output can't be written.
    std::string write_error;
    ~io_state();
};

namespace ir_format {
// Limits of the format, kept alike by the writer and the reader. Ids stay
// far below INT_MAX, so that the objects a run adds keep ids that print as
// C ints. A line may not exceed max_line bytes (its end excluded). Bodies
// nest statements and expressions at most max_nesting deep, each counted on
// its own: the walkers of the tools recurse on both.
constexpr unsigned max_id = 1073741823;
constexpr size_t max_line = (size_t)16 << 20;
constexpr int max_nesting = 10000;

// Whether op takes n operands; *need says how many it takes.
bool operand_count_fits(if_ops op, unsigned n, const char **need);
// A type of st or of its child tables that reaches itself other than
// through a struct or union, or null.
type_node *find_type_cycle(base_symtab *st);
// A struct, union or array in the table that holds itself by value (without a pointer), or null.
type_node *find_value_cycle(base_symtab *st);
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

// Serialises the body of p (must be in memory) into out. False, with *why
// set, when the body breaks the format's limits: the reader would refuse it.
bool write_body(std::string &out, proc_sym *p, std::string *why);
// Whether every line of text from `from` on is within max_line; *why is set if not.
bool lines_fit(const std::string &text, size_t from, std::string *why);
}  // namespace ir_format
