// Interned texts. Every name of the IR (symbols, annotation names, string
// immeds) is entered into `lexicon`, so that equal names share one pointer
// and can be compared by pointer.
#pragma once

#include "ir/forward.h"

// One interned text; `sp` is the interned pointer, valid for the whole run.
struct string_e {
    const char *sp;
};

class string_table {
public:
    string_table();
    ~string_table();
    string_table(const string_table &) = delete;
    string_table &operator=(const string_table &) = delete;
    // Interns text (copied on first entry). REQUIRES: text not null.
    string_e *enter(const char *text);
    // The interned entry of text, or null if it was never entered.
    string_e *lookup(const char *text) const;
    int count() const;

    struct impl;

private:
    impl *p;
};

// The table of all names; created by init_suif() (or on first use).
extern string_table *lexicon;

// Shorthand: the interned pointer of text (null stays null).
const char *intern(const char *text);

// 0 when a and b are equal texts; null equals only null. Compares interned
// pointers first, then the texts.
int lexicon_strcmp_with_cheks(const char *a, const char *b);
