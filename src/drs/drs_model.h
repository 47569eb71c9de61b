// Data range specifications: the record, its tables and the state of a range run.
//
// A range entry says that a global, a field, a function argument or a return
// lies between two bounds. Readers make entries from text; binding finds their
// symbols and sorts them into result lists; application turns those into
// annotations and generated procedures. All tables are process singletons made
// by drs_init_state and destroyed by drs_free_state; entries themselves and
// their strings live to the end of the process.
#pragma once

#include "ir/ir.h"

#include <cstdint>
#include <list>
#include <unordered_map>

// Modes of an entry; drs_mode_names holds their words at these indexes.
enum drs_mode : uint32_t {
  DRS_MODE_UNKNOWN = 0,
  DRS_MODE_INIT = 1,
  DRS_MODE_PERMANENT = 2,
  DRS_MODE_GLOBALASSERT = 3,
};
extern const char *const drs_mode_names[4];

// What a range on a pointer says of the pointed-to memory. 3 and 4 are unused.
enum drs_pointer_kind : uint32_t {
  DRS_PTR_NONE = 0,
  DRS_PTR_SINGLE = 1,
  DRS_PTR_MULTI = 2, // the default
  DRS_PTR_SINGLE_CERTAIN_WRITE = 5,
  DRS_PTR_MULTI_CERTAIN_WRITE = 6,
};

// One range entry, made with text only by a reader and completed by binding.
struct drs_entry {
  uint32_t mode;                // a drs_mode
  char *name;                   // target as written: [file:]symbol, then .field, *, .return, .#N
  char *min;                    // lower bound as written
  char *max;                    // upper bound as written
  int32_t line;                 // line in the range file; 0 for a pragma
  type_node *type;              // leaf type reached by the path; null until checked
  sym_node *symbol;             // bound variable or procedure; null until bound
  uint32_t pointer_kind;        // a drs_pointer_kind
  bool template_pointer_done;   // used by the template export only
  bool fully_handled;           // restates the default: application skips it
};

// Lists of entries, in order; maps from an interned full name to an entry.
using drs_entry_list = std::list<drs_entry *>;
using drs_name_map = std::unordered_map<const char *, drs_entry *>;

// The tables.
extern drs_entry_list *drs_read_entries;      // every entry read, file order, pragma entries last
extern drs_entry_list *drs_template_entries;  // second copy of each text-file entry, for the template
extern drs_entry_list *drs_pragma_entries;    // pragma entries until a range run moves them
extern drs_entry_list *drs_init_entries;      // bound init entries, and permanent ones on stubbed functions
extern drs_entry_list *drs_permanent_entries; // bound permanent entries on variables
extern drs_entry_list *drs_assert_entries;    // bound globalassert entries
extern drs_entry_list *drs_default_entries;   // entries proved to restate the default
extern drs_name_map *drs_entry_map;          // full name -> accepted entry
extern drs_name_map *drs_pair_map;            // full name -> second entry of an init+globalassert pair

// State of a range run.
extern const char *drs_file_path;             // file being read; null: warnings carry no location
extern int32_t drs_file_version;              // 0 nothing read, -1 text file, else the XML version
extern file_set_entry *drs_fse;               // where symbols are looked up and added
extern sym_node_list *drs_main_procs;         // the caller's procs_in_loop, or null
extern sym_node_list *drs_main_vars;          // the caller's vars_before_loop, or null
extern bool drs_unit_by_unit;                 // copy of flag_unit_by_unit for the run
extern bool drs_no_log;                       // silences the range log

// Life cycle: clears the run state and makes the tables empty; destroys them.
void drs_init_state();
void drs_free_state();

// The two range passes: -drs-gen (alone or in the stub mode) and -cpp-drs-gen.
// path, procs and vars may be null.
void run_drs_pass(const char *path, file_set_entry *fse, sym_node_list *procs, sym_node_list *vars);
void run_cpp_drs_pass(const char *path, file_set_entry *fse);

// Reports a complaint of the range code at line of drs_file_path; a warning,
// silent under -no-warnings-for-drs, never touching the exit status.
void drs_warn(int line, const char *format, ...) __attribute__((format(printf, 2, 3)));

// Entries from text: a new record with copies of the strings; the pointer
// attribute word or digit to a drs_pointer_kind (null gives DRS_PTR_MULTI);
// a mode word to a drs_mode (DRS_MODE_UNKNOWN if it is none).
drs_entry *drs_new_entry(unsigned mode, const char *name, const char *min, const char *max, int line,
                         unsigned pointer_kind);
unsigned drs_pointer_kind_of(const char *attribute);
unsigned drs_mode_of_word(const char *word);

// The plain range file at drs_file_path into drs_read_entries and
// drs_template_entries; a bad line is reported and dropped.
void drs_read_text_file();

// The range pragma: an entry of drs_pragma_entries; an unknown mode leaves none.
void drs_add_pragma(const char *mode, const char *name, const char *min, const char *max,
                    const char *pointer_attribute);
