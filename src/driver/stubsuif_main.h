// The one entry point of the stubber library and its exported texts.
//
// The tool chain calls stubsuif_main with a command line; the command
// qvt-stubber does the same. The texts identify the build.
#pragma once

extern "C" {
// Runs the stubber once; returns 0, or 1 if an error was diagnosed. Bad
// arguments and unwritable files end the process with status 1.
int stubsuif_main(int argc, char **argv);

// Identification of the library, set by the build.
extern const char *libc_stubber_ver_string;
extern const char *libc_stubber_who_string;
extern const char *libc_stubber_suif_string;
extern const char *qv_c_stubber_so_version;
extern const char *qv_c_stubber_so_build_date;
}
