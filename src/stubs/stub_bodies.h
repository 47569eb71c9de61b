// Stub bodies: the C text of one stub for a function signature and a stub kind.
#pragma once

#include "ir/ir.h"

// The whole text of one stub of proc, as pieces for emit_line: a comment with the name, the
// pragmas, the signature ("static" first when is_static, for stubs of function pointers) and a
// body that makes an analyser assume the effects that kind allows. The caller takes the list.
string_list *make_stub(proc_sym *proc, int kind, bool is_static);
