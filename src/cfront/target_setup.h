// The IR's machine parameters and predefined types from clang's target.
#pragma once

namespace clang {
class ASTContext;
}

// Fills `target` from the context's target (sizes, alignments, plain char
// signedness, addressable unit, the C types of size_t, ptrdiff_t, wchar_t
// and wint_t) and remakes the predefined types of the global table.
// REQUIRES: nothing else has been put into the global table yet.
void setup_target(const clang::ASTContext &ctx);
