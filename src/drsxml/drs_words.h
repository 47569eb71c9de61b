// The words of the range file that the reader and the writer share, so that
// what one writes the other reads; drs.xsd lists the same words.
#pragma once

// Element names by kind (1 to 5), and the word of each status of a scalar or
// pointer (the writer's init status; reading gives the status back).
const char *drs_element_word(int kind);
int drs_element_kind(const char *word);           // 0 if no element has that name
const char *drs_mode_word(int status);             // 0 off, 1 init, 2 permanent, 4 written, else default
int drs_mode_status(const char *word);             // the reverse; 3 for default and anything else
const char *drs_sign_word(int sign);               // -1 none, 0 signed, 1 unsigned, 2 float; else null
int drs_sign_value(const char *word);              // -1 for none and anything else
// Pointer kinds: a word for 0, 1, 2, 5, 6; other kinds are written as numbers.
const char *drs_targets_word(int kind);            // null if the kind has no word
int drs_targets_kind(const char *text);

// The schema, embedded at build time from drs.xsd.
extern const char drs_schema_text[];
extern const unsigned drs_schema_size;
