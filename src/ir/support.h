// Life cycle of the library, messages, command-line parsing and small
// services: formatted texts, checked stream closing, text to double.
#pragma once

#include <cstdio>
#include <string>

#include "ir/forward.h"

// Life cycle. init_suif creates the lexicon, the file set with its global
// table and the predefined types, then runs the init function of every
// registered library. exit_suif writes every output file (tables and
// bodies; an entry whose output fails is reported and no file is left
// behind), runs the exit functions, and frees the file set. The pair may be
// used again in one process.
typedef void (*lib_init_f)(int &argc, char *argv[]);
typedef void (*lib_exit_f)();
void register_library(const char *name, const char *version, const char *who,
                      lib_init_f init = nullptr, lib_exit_f exit = nullptr);
void init_suif(int &argc, char *argv[]);
void exit_suif();
// The utility library's registration data.
extern const char *libuseful_ver_string;
extern const char *libuseful_who_string;
void init_useful(int &argc, char *argv[]);
void exit_useful();

// Messages on stderr. error_line prints "error: " and the message, a
// warning_line "warning: "; a newline is added unless the text ends with
// one; an object with coordinates gets "FILE:LINE: " ahead. error_line with
// code 0 returns; any other code ends the process with that status.
void error_line(int code, const suif_object *obj, const char *format, ...)
    __attribute__((format(printf, 3, 4)));
void warning_line(const suif_object *obj, const char *format, ...)
    __attribute__((format(printf, 2, 3)));
// Prints "FILE:LINE: " ("FILE:LINE:COLUMN: " when column >= 0) as the prefix
// of a message that follows; a null file prints "<unknown>". The flag is
// kept for callers' compatibility and changes nothing.
void fprint_localization(FILE *stream, const char *file, int line, int column, bool flag);

// A newly allocated formatted text (never freed by callers).
char *bufprintf(const char *format, ...) __attribute__((format(printf, 1, 2)));
// Close or flush; on failure print an error naming the failure and return EOF.
int checked_fclose(FILE *stream);
int checked_fflush(FILE *stream);

// Command-line parsing. A row: kind, option name with its dash, default
// text or null, address of the variable that takes the value.
enum cmd_line_kinds {
    CLO_NOARG = 0,  // flag: sets a bool to true
    CLO_INT = 2,    // one argument: a decimal int; default is its text
    CLO_STRING = 4, // one argument: a text (char *); default null
};
struct cmd_line_option {
    int kind;
    const char *name;
    const char *def;
    void *target;
};
// Takes the table's options out of argv (the rest keeps its order, argv[0]
// stays), stores the values, applies defaults, lowers *argc. An unknown
// option (a word starting with '-' other than "-"), a missing value or a
// bad number prints "error: ..." and ends the process with status 1. A
// later occurrence of an option overrides an earlier one.
void c_parse_cmd_line(int *argc, char **argv, cmd_line_option *table, int count, bool flag);
// The same, returning false with *error set instead of ending the process.
bool try_parse_cmd_line(int *argc, char **argv, cmd_line_option *table, int count,
                        std::string *error);

// Text to double, correctly rounded (strtod semantics).
double dtoa_strtod(const char *text, char **end);
