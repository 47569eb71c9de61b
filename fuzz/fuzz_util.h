// What the fuzz targets share: a private folder for the input and every
// file the consumers write, and the input written there as a file, since the
// readers take paths.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <string>
#include <unistd.h>

#include "ir/ir.h"

// init_suif with a command line of the program's name alone.
inline void fuzz_init_suif() {
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    int argc = 1;
    char **av = argv;
    init_suif(argc, av);
}

// A folder of this process, made on first use; the current directory moves
// there, so that files written "here" stay inside it too.
inline const std::string &fuzz_dir() {
    static std::string dir = [] {
        char tmpl[] = "/tmp/qvt_fuzz_XXXXXX";
        if (!mkdtemp(tmpl)) abort();
        if (chdir(tmpl) != 0) abort();
        return std::string(tmpl);
    }();
    return dir;
}

// Removes every file of the folder: the writers append, and each input starts afresh.
inline void fuzz_clear_dir() {
    DIR *d = opendir(fuzz_dir().c_str());
    if (!d) return;
    while (dirent *e = readdir(d))
        if (e->d_name[0] != '.') unlink((fuzz_dir() + "/" + e->d_name).c_str());
    closedir(d);
}

// Writes data to NAME in the folder; returns its path.
inline std::string fuzz_write_input(const char *name, const uint8_t *data, size_t size) {
    std::string path = fuzz_dir() + "/" + name;
    FILE *f = fopen(path.c_str(), "wb");
    if (!f) abort();
    if (size && fwrite(data, 1, size, f) != size) abort();
    fclose(f);
    return path;
}
