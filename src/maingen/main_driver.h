// The generated main of the closed program, and the two small init functions written beside it.
#pragma once

// Appends to "__quorvanta_main.c" a main that initialises the chosen globals, calls the chosen
// functions in a loop (endless, bounded by -main-generator-bounded-loop, or none) and then the
// finalisation functions. Writes nothing when the program has a C main of its own.
void generate_main();

// "_extern_init", which initialises the undefined variables of extern_var_list, in a stub file
// of its own (the stub file index moves on by one).
void write_extern_init_file();

// "_data_range_init", which initialises the variables with an "init" range, in the main file;
// nothing when a generated main already does that work.
void write_drs_init_file();
