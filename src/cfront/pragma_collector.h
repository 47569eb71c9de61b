// Pragmas of active code, as lists of words, collected while clang
// preprocesses a translation unit.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace clang {
class Preprocessor;
}

// The words of one pragma: the pragma's name, then its arguments.
typedef std::vector<std::string> pragma_words;

// Splits the text after "#pragma" into words: identifiers and numbers (with
// a sign written against them), string literals without their quotes, any
// other character alone; blanks, comments, "(", ")" and "," separate words.
pragma_words split_pragma_text(const std::string &text);

// Installs a collector on pp that appends to *out every pragma met in active
// code outside system headers (#pragma lines and _Pragma("...")), in source order.
void collect_pragmas(clang::Preprocessor &pp, std::vector<pragma_words> *out);
