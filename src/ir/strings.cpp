// The lexicon: a hash set of texts whose nodes never move, so interned
// pointers stay valid for the whole run.
#include "ir/strings.h"

#include <cstring>
#include <string_view>
#include <unordered_map>
#include <deque>
#include <memory>

struct string_table::impl {
    std::unordered_map<std::string_view, string_e *> map;
    std::deque<string_e> entries;
    // Texts are kept in large chunks to spare one allocation per name.
    std::deque<std::unique_ptr<char[]>> chunks;
    size_t chunk_left = 0;
    char *chunk_pos = nullptr;

    const char *store(std::string_view s) {
        size_t need = s.size() + 1;
        if (need > chunk_left) {
            size_t sz = need > 65536 ? need : 65536;
            chunks.emplace_back(new char[sz]);
            chunk_pos = chunks.back().get();
            chunk_left = sz;
        }
        char *p = chunk_pos;
        std::memcpy(p, s.data(), s.size());
        p[s.size()] = 0;
        chunk_pos += need;
        chunk_left -= need;
        return p;
    }
};

string_table::string_table() : p(new impl) { p->map.reserve(1024); }
string_table::~string_table() { delete p; }

string_e *string_table::enter(const char *text) {
    std::string_view s(text);
    auto it = p->map.find(s);
    if (it != p->map.end()) return it->second;
    const char *copy = p->store(s);
    p->entries.push_back(string_e{copy});
    string_e *e = &p->entries.back();
    p->map.emplace(std::string_view(copy, s.size()), e);
    return e;
}

string_e *string_table::lookup(const char *text) const {
    auto it = p->map.find(std::string_view(text));
    return it == p->map.end() ? nullptr : it->second;
}

int string_table::count() const { return (int)p->map.size(); }

// The lexicon lives for the whole process: interned pointers are kept in
// statics (annotation names) across init_suif/exit_suif pairs.
static string_table *the_lexicon() {
    static string_table *t = new string_table;
    return t;
}
string_table *lexicon = the_lexicon();

const char *intern(const char *text) {
    if (!text) return nullptr;
    if (!lexicon) lexicon = the_lexicon();
    return lexicon->enter(text)->sp;
}

int lexicon_strcmp_with_cheks(const char *a, const char *b) {
    if (a == b) return 0;
    if (!a || !b) return a ? 1 : -1;
    return std::strcmp(a, b);
}
