// The preprocessor tells us where each pragma of active code stands (lines
// skipped by #if never reach the callback); we then read the words
// ourselves, so that every pragma is kept, including those that clang itself
// handles (pack, GCC, ...), and none is reported as unknown. A #pragma line
// is read from the source text; a _Pragma, which may come out of a macro,
// from the buffer where the preprocessor put its operand.
#include "cfront/pragma_collector.h"

#include <clang/Basic/SourceManager.h>
#include <clang/Lex/Lexer.h>
#include <clang/Lex/PPCallbacks.h>
#include <clang/Lex/Pragma.h>
#include <clang/Lex/Preprocessor.h>

#include <cctype>

namespace {

bool is_word_char(char c) {
    return isalnum((unsigned char)c) || c == '_' || c == '.' || c == '$';
}

// Reads a string literal starting at text[i] == '"'; returns its contents
// with the simple escapes resolved and leaves i after the closing quote.
std::string read_string(const std::string &text, size_t &i) {
    std::string s;
    i++;
    while (i < text.size() && text[i] != '"') {
        char c = text[i++];
        if (c == '\\' && i < text.size()) {
            char e = text[i++];
            switch (e) {
            case 'n': s += '\n'; break;
            case 't': s += '\t'; break;
            case '\\': s += '\\'; break;
            case '"': s += '"'; break;
            case '\'': s += '\''; break;
            default: s += '\\'; s += e; break;
            }
        } else {
            s += c;
        }
    }
    if (i < text.size()) i++;
    return s;
}

// The text of a pragma line from just after its introducer to the end of the
// line, with backslash-newline continuations joined.
std::string pragma_line_text(const char *p, const char *end) {
    std::string s;
    while (p < end && *p != '\n') {
        if (*p == '\\' && p + 1 < end && (p[1] == '\n' || (p[1] == '\r' && p + 2 < end && p[2] == '\n'))) {
            p += p[1] == '\n' ? 2 : 3;
            continue;
        }
        s += *p++;
    }
    return s;
}

class pragma_callbacks : public clang::PPCallbacks {
public:
    pragma_callbacks(clang::Preprocessor &pp, std::vector<pragma_words> *out)
        : pp(pp), sm(pp.getSourceManager()), out(out) {}

    void PragmaDirective(clang::SourceLocation loc, clang::PragmaIntroducerKind kind) override {
        if (loc.isInvalid()) return;
        // A _Pragma written in a macro counts where the macro is used.
        if (sm.isInSystemHeader(sm.getExpansionLoc(loc))) return;
        std::string text;
        if (kind == clang::PIK_HashPragma) {
            if (!loc.isFileID()) return;
            bool invalid = false;
            const char *p = sm.getCharacterData(loc, &invalid);
            if (invalid || !p) return;
            llvm::StringRef buf = sm.getBufferData(sm.getFileID(loc), &invalid);
            if (invalid) return;
            // "#", blanks, "pragma", then the words.
            std::string line = pragma_line_text(p, buf.data() + buf.size());
            size_t at = line.find("pragma");
            if (at == std::string::npos) return;
            text = line.substr(at + 6);
        } else if (kind == clang::PIK__Pragma) {
            // The preprocessor has put the operand, unquoted and with its
            // escapes resolved, in a buffer of its own and is about to lex
            // it: the text is there whether the string was written out,
            // made by a macro with # or pasted. It ends with a line end.
            auto *lexer = static_cast<clang::Lexer *>(pp.getCurrentLexer());
            if (!lexer) return;
            const char *p = lexer->getBufferLocation();
            while (*p && *p != '\n') text += *p++;
        } else {
            return;
        }
        pragma_words words = split_pragma_text(text);
        if (!words.empty()) out->push_back(std::move(words));
    }

private:
    clang::Preprocessor &pp;
    clang::SourceManager &sm;
    std::vector<pragma_words> *out;
};

}  // namespace

pragma_words split_pragma_text(const std::string &text) {
    pragma_words words;
    size_t i = 0;
    while (i < text.size()) {
        char c = text[i];
        if (isspace((unsigned char)c) || c == '(' || c == ')' || c == ',') {
            i++;
        } else if (c == '/' && i + 1 < text.size() && text[i + 1] == '/') {
            break;
        } else if (c == '/' && i + 1 < text.size() && text[i + 1] == '*') {
            size_t close = text.find("*/", i + 2);
            i = close == std::string::npos ? text.size() : close + 2;
        } else if (c == '"') {
            words.push_back(read_string(text, i));
        } else if (is_word_char(c) ||
                   ((c == '-' || c == '+') && i + 1 < text.size() && isdigit((unsigned char)text[i + 1]))) {
            size_t start = i++;
            while (i < text.size()) {
                char d = text[i];
                // An exponent sign belongs to the number: 1e-5, 0x1p+3.
                bool exp_sign = (d == '-' || d == '+') && isdigit((unsigned char)text[start + (text[start] == '-' || text[start] == '+')]) &&
                                (text[i - 1] == 'e' || text[i - 1] == 'E' || text[i - 1] == 'p' || text[i - 1] == 'P');
                if (!is_word_char(d) && !exp_sign) break;
                i++;
            }
            words.push_back(text.substr(start, i - start));
        } else {
            words.push_back(std::string(1, c));
            i++;
        }
    }
    return words;
}

void collect_pragmas(clang::Preprocessor &pp, std::vector<pragma_words> *out) {
    pp.addPPCallbacks(std::make_unique<pragma_callbacks>(pp, out));
    // The analysis pragmas are ours: known to the preprocessor, they draw no
    // "unknown pragma" warning, which -Werror would make an error.
    for (const char *word : {"QUORVANTA_PURE", "QUORVANTA_CLEAN", "QUORVANTA_WORST", "QUORVANTA_NO_INSTRUMENT",
                             "__QUORVANTA_NO_WRITE", "QUORVANTA_DRS", "QUORVANTA_POLYMORPHIC", "QUORVANTA_AUTO_STUB"})
        pp.AddPragmaHandler(new clang::EmptyPragmaHandler(word));
}
