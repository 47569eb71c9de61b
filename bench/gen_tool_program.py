#!/usr/bin/env python3
"""Writes a command-line tool of a few thousand lines, the kind of program that an analyser
meets in practice, for the analyser benchmark (bench/eva_bench.sh).

gen_tool_program.py OUT_DIR [MODULES]

`main(int argc, char **argv)` checks its arguments, reads the locale and the environment, and
hands the remaining arguments to one of MODULES commands (default 16) through a table of function
pointers. Each command is a file of its own: a hash table of records in malloc'd nodes, a line
parser over a file opened with fopen, an expression evaluator, a report through printf with a
recursion of bounded depth, a terminal query through ioctl, and calls of a device driver that the
program declares and does not define. Errors end the program through exit. The output is the same for the same arguments.
"""
import os
import sys

HEADER = """\
/* The tool's commands and the device driver that ships without its code. */
#ifndef TOOL_H
#define TOOL_H

#include <stddef.h>

struct command {
    const char *name;
    int (*run)(int argc, char **argv);
    const char *help;
};

extern int verbose;
extern const char *decimal_point;

/* The device driver: declared here, defined nowhere in the program. */
int dev_open(const char *name, int flags);
int dev_read(int fd, unsigned char *buf, int len);
int dev_write(int fd, const unsigned char *buf, int len);
void dev_close(int fd);

void die(const char *what, const char *arg);
char *dup_text(const char *s);
int terminal_width(void);

%(decls)s
#endif
"""

MAIN = """\
/* The tool: checks its arguments and runs one command. */
#include <locale.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "tool.h"

int verbose;
const char *decimal_point = ".";

static const struct command commands[] = {
%(table)s
};

#define NCOMMANDS ((int)(sizeof commands / sizeof commands[0]))

void die(const char *what, const char *arg)
{
    fprintf(stderr, "tool: %%s: %%s\\n", what, arg ? arg : "");
    exit(2);
}

char *dup_text(const char *s)
{
    size_t n = strlen(s);
    char *copy = malloc(n + 1);
    if (!copy)
        die("out of memory", s);
    memcpy(copy, s, n + 1);
    return copy;
}

int terminal_width(void)
{
    struct winsize ws;
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &ws) == -1 || ws.ws_col == 0)
        return 80;
    return ws.ws_col;
}

static void usage(const char *self)
{
    int i;
    fprintf(stderr, "usage: %%s [-v] COMMAND ARGS...\\n", self);
    for (i = 0; i < NCOMMANDS; i++)
        fprintf(stderr, "  %%-12s %%s\\n", commands[i].name, commands[i].help);
}

int main(int argc, char **argv)
{
    struct lconv *lc;
    const char *level;
    int first = 1;
    int i;

    if (argc < 2) {
        usage(argv[0]);
        exit(2);
    }
    if (strcmp(argv[1], "-v") == 0) {
        verbose = 1;
        first = 2;
    }
    if (first >= argc)
        die("no command", argv[0]);
    setlocale(LC_ALL, "");
    lc = localeconv();
    if (lc && lc->decimal_point && lc->decimal_point[0])
        decimal_point = lc->decimal_point;
    level = getenv("TOOL_VERBOSE");
    if (level && atoi(level) > 0)
        verbose = atoi(level);
    for (i = 0; i < NCOMMANDS; i++)
        if (strcmp(argv[first], commands[i].name) == 0)
            return commands[i].run(argc - first - 1, argv + first + 1);
    die("unknown command", argv[first]);
    return 2;
}
"""

MODULE = """\
/* Command %(name)s: records keyed by name, read from files, evaluated and reported. */
#include <ctype.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "tool.h"

#define NBUCKETS_%(k)d %(buckets)d
#define KEYLEN_%(k)d %(keylen)d

struct rec_%(k)d {
    char key[KEYLEN_%(k)d];
    long value;
    unsigned int flags : 4;
    unsigned int seen : 1;
    struct rec_%(k)d *next;
};

static struct rec_%(k)d *buckets[NBUCKETS_%(k)d];
static int records;
static long total;
static int device = -1;

static unsigned int hash(const char *s)
{
    unsigned int h = %(seed)du;
    while (*s)
        h = h * 33u + (unsigned char)*s++;
    return h %% NBUCKETS_%(k)d;
}

static struct rec_%(k)d *find(const char *key)
{
    struct rec_%(k)d *r;
    for (r = buckets[hash(key)]; r; r = r->next)
        if (strncmp(r->key, key, KEYLEN_%(k)d) == 0)
            return r;
    return NULL;
}

static struct rec_%(k)d *insert(const char *key, long value)
{
    struct rec_%(k)d *r = find(key);
    unsigned int h;
    if (r) {
        r->value += value;
        r->seen = 1;
        return r;
    }
    r = malloc(sizeof *r);
    if (!r)
        die("out of memory", key);
    strncpy(r->key, key, KEYLEN_%(k)d - 1);
    r->key[KEYLEN_%(k)d - 1] = '\\0';
    r->value = value;
    r->flags = (unsigned int)(value & 15);
    r->seen = 0;
    h = hash(r->key);
    r->next = buckets[h];
    buckets[h] = r;
    records++;
    return r;
}

/* value := ['-'] item (('+' | '-') item)*, an item a number or the name of a record. */
static long eval(const char *s)
{
    long acc = 0;
    long v;
    int sign = 1;
    char name[KEYLEN_%(k)d];
    int n;
    struct rec_%(k)d *r;
    for (;;) {
        while (isspace((unsigned char)*s))
            s++;
        if (*s == '-') {
            sign = -sign;
            s++;
            continue;
        }
        if (isdigit((unsigned char)*s)) {
            v = strtol(s, (char **)&s, 10);
        } else {
            n = 0;
            while (isalnum((unsigned char)*s) && n < KEYLEN_%(k)d - 1)
                name[n++] = *s++;
            name[n] = '\\0';
            if (n == 0)
                die("bad expression", s);
            r = find(name);
            v = r ? r->value : 0;
        }
        acc += sign * v;
        while (isspace((unsigned char)*s))
            s++;
        if (*s == '\\0')
            return acc;
        if (*s != '+' && *s != '-')
            die("bad expression", s);
        sign = *s == '+' ? 1 : -1;
        s++;
    }
}

static int parse_line(char *line, int lineno)
{
    char *key = line;
    char *eq;
    while (isspace((unsigned char)*key))
        key++;
    if (*key == '#' || *key == '\\0')
        return 0;
    eq = strchr(key, '=');
    if (!eq) {
        if (verbose)
            fprintf(stderr, "%(name)s: line %%d: no '='\\n", lineno);
        return -1;
    }
    *eq = '\\0';
    insert(key, eval(eq + 1));
    return 1;
}

static int load(const char *path)
{
    char line[%(linelen)d];
    FILE *f = fopen(path, "r");
    int lineno = 0;
    int bad = 0;
    if (!f) {
        perror(path);
        return -1;
    }
    while (fgets(line, sizeof line, f)) {
        size_t n = strlen(line);
        lineno++;
        if (n > 0 && line[n - 1] == '\\n')
            line[n - 1] = '\\0';
        if (parse_line(line, lineno) < 0)
            bad++;
    }
    fclose(f);
    return bad;
}

static int sample_device(const char *name)
{
    unsigned char buf[%(devbuf)d];
    int got, i;
    if (device < 0)
        device = dev_open(name, %(k)d);
    if (device < 0)
        return -1;
    got = dev_read(device, buf, (int)sizeof buf);
    if (got < 0 || got > (int)sizeof buf)
        return -1;
    for (i = 0; i < got; i++)
        total += buf[i];
    buf[0] = (unsigned char)(total & 255);
    return dev_write(device, buf, 1);
}

/* The first records of a chain, the latest first, as deep as the report shows them. */
static void print_chain(const struct rec_%(k)d *r, int depth, int width)
{
    if (!r || depth >= %(chain)d)
        return;
    printf("%%-*s %%ld%%s%%d\\n", width / 2, r->key, r->value, decimal_point, (int)r->flags);
    print_chain(r->next, depth + 1, width);
}

static void report(void)
{
    int width = terminal_width();
    int i;
    struct rec_%(k)d *r;
    for (i = 0; i < NBUCKETS_%(k)d; i++) {
        for (r = buckets[i]; r; r = r->next)
            total += r->value;
        print_chain(buckets[i], 0, width);
    }
    printf("%(name)s: %%d records, total %%ld\\n", records, total);
}

static void release(void)
{
    int i;
    for (i = 0; i < NBUCKETS_%(k)d; i++) {
        struct rec_%(k)d *r = buckets[i];
        while (r) {
            struct rec_%(k)d *next = r->next;
            free(r);
            r = next;
        }
        buckets[i] = NULL;
    }
    if (device >= 0)
        dev_close(device);
    device = -1;
    records = 0;
}

int run_%(name)s(int argc, char **argv)
{
    int i;
    int errors = 0;
    char *label = dup_text(argc > 0 ? argv[0] : "%(name)s");
    const char *home = getenv("HOME");
    for (i = 0; i < argc; i++) {
        const char *a = argv[i];
        if (a[0] == '=') {
            printf("%%ld\\n", eval(a + 1));
        } else if (strcmp(a, "-d") == 0 && i + 1 < argc) {
            if (sample_device(argv[++i]) < 0)
                errors++;
        } else if (load(a) != 0) {
            errors++;
        }
    }
    if (home && verbose)
        fprintf(stderr, "%%s: home %%s, label %%s\\n", "%(name)s", home, label);
    report();
    release();
    free(label);
    return errors ? 1 : 0;
}
"""


def main():
    if len(sys.argv) < 2:
        sys.stderr.write(__doc__)
        return 2
    out = sys.argv[1]
    modules = int(sys.argv[2]) if len(sys.argv) > 2 else 16
    os.makedirs(out, exist_ok=True)
    names = ["cmd%02d" % k for k in range(modules)]
    decls = "".join("int run_%s(int argc, char **argv);\n" % n for n in names)
    with open(os.path.join(out, "tool.h"), "w") as f:
        f.write(HEADER % {"decls": decls})
    table = ",\n".join('    { "%s", run_%s, "records of %s" }' % (n, n, n) for n in names)
    with open(os.path.join(out, "main.c"), "w") as f:
        f.write(MAIN % {"table": table})
    for k, n in enumerate(names):
        params = {
            "k": k,
            "name": n,
            "buckets": 16 << (k % 3),
            "keylen": 16 + 8 * (k % 4),
            "seed": 5381 + 7 * k,
            "chain": 2 + k % 3,
            "linelen": 128 << (k % 2),
            "devbuf": 8 + 4 * (k % 4),
        }
        with open(os.path.join(out, n + ".c"), "w") as f:
            f.write(MODULE % params)
    return 0


if __name__ == "__main__":
    sys.exit(main())
