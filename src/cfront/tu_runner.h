// Parsing of the translation units by clang, in parallel, with each parsed
// unit handed on in command-line order.
#pragma once

#include "cfront/cfront_options.h"
#include "cfront/pragma_collector.h"

#include <functional>
#include <vector>

namespace clang {
class ASTContext;
}

// Called once per unit that parsed without error, in the order of `units`,
// while its AST is alive; never twice at the same time.
typedef std::function<void(clang::ASTContext &ctx, const std::vector<pragma_words> &pragmas)> unit_consumer;

// Parses every unit with `threads` threads (0: all cores). Each unit's
// diagnostics are printed on stderr as clang prints them, unit by unit in
// command-line order. After the first unit with an error, the others are
// still parsed (to report their diagnostics) but no longer consumed.
// True if no unit had an error.
bool run_units(const std::vector<tu_job> &units, int threads, const unit_consumer &consume);
