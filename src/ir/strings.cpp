// The lexicon: a hash set of texts whose nodes never move, so interned
// pointers stay valid for the whole run.
#include "ir/strings.h"

#include <cstring>
#include <string_view>
#include <functional>
#include <vector>
#include <deque>
#include <memory>

// An open-addressing table of (hash, text, entry): a lookup touches one
// slot and, on a hash match, the text; large tables stay cache-friendly.
struct string_table::impl {
    struct slot {
        size_t hash = 0;
        const char *text = nullptr;
        string_e *entry = nullptr;
    };
    std::vector<slot> slots = std::vector<slot>(1024);
    size_t used = 0;
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

    // The slot of s: its entry, or the empty slot where it would go.
    slot &find(std::string_view s, size_t h) {
        size_t mask = slots.size() - 1;
        for (size_t i = h & mask;; i = (i + 1) & mask) {
            slot &sl = slots[i];
            if (!sl.entry) return sl;
            if (sl.hash == h && std::strncmp(sl.text, s.data(), s.size()) == 0 && sl.text[s.size()] == 0) return sl;
        }
    }

    void grow() {
        std::vector<slot> old(slots.size() * 2);
        old.swap(slots);
        size_t mask = slots.size() - 1;
        for (const slot &sl : old) {
            if (!sl.entry) continue;
            size_t i = sl.hash & mask;
            while (slots[i].entry) i = (i + 1) & mask;
            slots[i] = sl;
        }
    }
};

string_table::string_table() : p(new impl) {}
string_table::~string_table() { delete p; }

string_e *string_table::enter(const char *text) {
    std::string_view s(text);
    size_t h = std::hash<std::string_view>()(s);
    impl::slot *sl = &p->find(s, h);
    if (sl->entry) return sl->entry;
    if ((p->used + 1) * 2 > p->slots.size()) {
        p->grow();
        sl = &p->find(s, h);
    }
    const char *copy = p->store(s);
    p->entries.push_back(string_e{copy});
    *sl = impl::slot{h, copy, &p->entries.back()};
    ++p->used;
    return sl->entry;
}

string_e *string_table::lookup(const char *text) const {
    std::string_view s(text);
    return p->find(s, std::hash<std::string_view>()(s)).entry;
}

int string_table::count() const { return (int)p->used; }

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
