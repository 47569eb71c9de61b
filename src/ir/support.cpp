// Messages, formatted texts, checked streams, the library life cycle and
// command-line parsing.
#include "ir/support.h"

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "ir/coords.h"
#include "ir/fileset.h"
#include "ir/internal.h"
#include "ir/io.h"
#include "ir/strings.h"

const char *libuseful_ver_string = "useful 1.0";
const char *libuseful_who_string = "IR utilities";
void init_useful(int &, char *[]) {}
void exit_useful() {}

namespace {
struct library {
    const char *name;
    lib_init_f init;
    lib_exit_f exit;
};
std::vector<library> &libraries() {
    static auto *v = new std::vector<library>;
    return *v;
}
}  // namespace

void register_library(const char *name, const char *, const char *, lib_init_f init, lib_exit_f exit) {
    for (const library &l : libraries())
        if (std::strcmp(l.name, name) == 0) return;
    libraries().push_back({intern(name), init, exit});
}

void init_suif(int &argc, char *argv[]) {
    if (fileset) return;
    intern("");  // makes sure the lexicon exists
    fileset = new file_set;
    make_predefined_types();
    for (const library &l : libraries())
        if (l.init) l.init(argc, argv);
}

void exit_suif() {
    if (!fileset) return;
    bool failed = false;
    for (file_set_entry_list_e *e = fileset->file_list()->head(); e; e = e->next()) {
        if (!e->contents->out_name()) continue;
        std::string error;
        if (!ir_write_entry(e->contents, &error)) {
            fprintf(stderr, "%s\n", error.c_str());
            failed = true;
        }
    }
    for (const library &l : libraries())
        if (l.exit) l.exit();
    delete fileset;
    fileset = nullptr;
    ir_internal::reset_ids();
    if (failed) exit(1);
}

static void print_message(const char *kind, const suif_object *obj, const char *format, va_list ap) {
    coord c;
    if (obj && find_coordinate(obj, &c)) fprint_localization(stderr, c.file, c.line, -1, true);
    fputs(kind, stderr);
    char *text = nullptr;
    if (vasprintf(&text, format, ap) < 0) text = nullptr;
    if (text) {
        fputs(text, stderr);
        size_t n = strlen(text);
        if (n == 0 || text[n - 1] != '\n') fputc('\n', stderr);
        free(text);
    } else {
        fputc('\n', stderr);
    }
    fflush(stderr);
}

void error_line(int code, const suif_object *obj, const char *format, ...) {
    va_list ap;
    va_start(ap, format);
    print_message("error: ", obj, format, ap);
    va_end(ap);
    if (code != 0) exit(code);
}

void warning_line(const suif_object *obj, const char *format, ...) {
    va_list ap;
    va_start(ap, format);
    print_message("warning: ", obj, format, ap);
    va_end(ap);
}

void fprint_localization(FILE *stream, const char *file, int line, int column, bool) {
    if (column >= 0) fprintf(stream, "%s:%d:%d: ", file ? file : "<unknown>", line, column);
    else fprintf(stream, "%s:%d: ", file ? file : "<unknown>", line);
}

char *bufprintf(const char *format, ...) {
    va_list ap;
    va_start(ap, format);
    char *text = nullptr;
    if (vasprintf(&text, format, ap) < 0) text = strdup("");
    va_end(ap);
    return text;
}

int checked_fclose(FILE *stream) {
    if (!stream) return EOF;
    if (fclose(stream) != 0) {
        fprintf(stderr, "error: closing a file failed: %s\n", strerror(errno));
        return EOF;
    }
    return 0;
}

int checked_fflush(FILE *stream) {
    if (fflush(stream) != 0) {
        fprintf(stderr, "error: writing a file failed: %s\n", strerror(errno));
        return EOF;
    }
    return 0;
}

static bool parse_int(const char *text, int *out) {
    if (!text || !*text) return false;
    errno = 0;
    char *end = nullptr;
    long v = strtol(text, &end, 10);
    if (*end || errno == ERANGE || v < INT_MIN || v > INT_MAX) return false;
    *out = (int)v;
    return true;
}

bool try_parse_cmd_line(int *argc, char **argv, cmd_line_option *table, int count, std::string *error) {
    // Defaults first, so that an option given overrides them.
    for (int i = 0; i < count; ++i) {
        cmd_line_option &o = table[i];
        if (o.kind == CLO_NOARG) *(bool *)o.target = false;
        else if (o.kind == CLO_INT) {
            int v = 0;
            if (o.def && !parse_int(o.def, &v)) {
                *error = std::string("bad default value \"") + o.def + "\" of option " + o.name;
                return false;
            }
            *(int *)o.target = v;
        } else if (o.kind == CLO_STRING) *(const char **)o.target = o.def;
    }
    int out = 1;
    for (int a = 1; a < *argc; ++a) {
        const char *arg = argv[a];
        if (arg[0] != '-' || arg[1] == 0) {
            argv[out++] = argv[a];
            continue;
        }
        cmd_line_option *o = nullptr;
        for (int i = 0; i < count; ++i)
            if (std::strcmp(table[i].name, arg) == 0) o = &table[i];
        if (!o) {
            *error = std::string("unknown option ") + arg;
            return false;
        }
        if (o->kind == CLO_NOARG) {
            *(bool *)o->target = true;
            continue;
        }
        if (a + 1 >= *argc) {
            *error = std::string("option ") + arg + " needs a value";
            return false;
        }
        const char *val = argv[++a];
        if (o->kind == CLO_INT) {
            if (!parse_int(val, (int *)o->target)) {
                *error = std::string("option ") + arg + " needs an integer, not \"" + val + "\"";
                return false;
            }
        } else {
            *(const char **)o->target = val;
        }
    }
    *argc = out;
    argv[out] = nullptr;
    return true;
}

void c_parse_cmd_line(int *argc, char **argv, cmd_line_option *table, int count, bool) {
    std::string error;
    if (!try_parse_cmd_line(argc, argv, table, count, &error)) {
        fprintf(stderr, "error: %s\n", error.c_str());
        exit(1);
    }
}

double dtoa_strtod(const char *text, char **end) { return strtod(text, end); }
