// The file set: every input/output file pair of the run, with the global
// symbol table shared by all of them.
//
// Reading: add_file(in, out) reads the tables of `in` (bodies stay on disk
// until proc_sym::read_proc). Writing: bodies go out through
// proc_sym::write_proc; exit_suif() writes the tables and the bodies into
// the output file, which appears only when everything succeeded.
#pragma once

#include <cstdio>
#include <string>
#include <unordered_set>
#include <vector>

#include "ir/annotes.h"
#include "ir/symtabs.h"

class file_set_entry : public suif_object {
public:
    file_set_entry(file_set *parent, const char *name, const char *in_name, const char *out_name);
    ~file_set_entry() override;
    object_kinds object_kind() const override { return FILE_OBJ; }

    const char *name() const { return nm; }
    void set_name(const char *name);  // interns
    const char *in_name() const { return in_nm; }    // null for an entry made in memory
    const char *out_name() const { return out_nm; }  // null when nothing is written
    file_set *parent() const { return fs; }
    file_symtab *symtab() const { return st; }

    // The procedures whose bodies this entry holds, in file order (those
    // read, then those given a body in memory). next_proc gives null at the end.
    void reset_proc_iter() { iter = 0; }
    proc_sym *next_proc();
    // Used by proc_sym::set_file (add_proc does not check for duplicates).
    void add_proc(proc_sym *p);
    void remove_proc(proc_sym *p);
    const std::vector<proc_sym *> &procs() const { return proc_order; }

    // Reader and writer state (see io/reader.cpp, io/writer.cpp).
    struct io_state;
    io_state *io = nullptr;

private:
    file_set *fs;
    const char *nm;
    const char *in_nm;
    const char *out_nm;
    file_symtab *st;
    std::vector<proc_sym *> proc_order;
    size_t iter = 0;
};

class file_set {
public:
    file_set();
    ~file_set();
    file_set(const file_set &) = delete;
    file_set &operator=(const file_set &) = delete;

    global_symtab *globals;
    file_set_entry_list *file_list() { return &entries; }

    // Reads the tables of the IR file `input` and returns its entry; when
    // `output` is not null, the entry is written there at exit_suif().
    // A null `input` makes an empty entry (named after `output`) to be
    // filled in memory. A file that can't be read or is malformed ends the
    // process: "FILE:LINE: what is wrong" on stderr, exit status 1.
    file_set_entry *add_file(const char *input, const char *output);
    // The same, returning null and setting *error instead of ending the process.
    file_set_entry *try_add_file(const char *input, const char *output, std::string *error);

    void reset_iter() { iter = 0; }
    file_set_entry *next_file();
    file_set_entry *find_by_name(const char *name);

private:
    file_set_entry_list entries;
    int iter = 0;
};

// The file set of the run; created by init_suif().
extern file_set *fileset;

// The global symbol table of the run.
#define global_st (fileset->globals)
