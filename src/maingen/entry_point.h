// The analysis entry point of the closed program.
#pragma once

// Appends __QVT__MAIN__ENTRY__POINT__ to the current stub file, behind its stubs: it calls main
// (declared on the spot when the program has none) and, each under a random guard, every task
// of task_list that exists as a procedure.
void write_entry_point();
