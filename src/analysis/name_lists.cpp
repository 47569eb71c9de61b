// Names as users give them: lists cut from option texts and name files, and
// the lookup of a symbol by the name it has in the source.
#include "analysis/symbol_collection.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>
#include <strings.h>
#include <vector>

string_list *split_names(char *text, const char *separators) {
  string_list *list = new string_list;
  if (!text)
    return list;
  char *state = nullptr;
  for (char *token = strtok_r(text, separators, &state); token; token = strtok_r(nullptr, separators, &state))
    list->append(token);
  return list;
}

// Names separated by blanks and line ends; a tab belongs to the name.
string_list *read_name_file(const char *path) {
  string_list *list = new string_list;
  if (!path)
    return list;
  FILE *file = fopen(path, "rb");
  if (!file)
    return list;
  long size = -1;
  if (fseek(file, 0, SEEK_END) == 0)
    size = ftell(file);
  // An empty file has no names; so has a device that tells no size (/dev/null, /dev/zero),
  // which fgets with a buffer of one byte would read for ever.
  if (size <= 0 || fseek(file, 0, SEEK_SET) != 0) {
    fclose(file);
    return list;
  }
  // A buffer of the file's size holds any line whole (fgets counts in ints).
  int buffer_size = size < INT_MAX ? static_cast<int>(size) + 1 : INT_MAX;
  char *buffer = static_cast<char *>(malloc(buffer_size));
  while (fgets(buffer, buffer_size, file)) {
    string_list *tokens = split_names(strdup(buffer), " \n\r");
    list->append(tokens);
    delete tokens;
  }
  free(buffer);
  checked_fclose(file);
  return list;
}

namespace {

bool kind_fits(sym_node *sym, unsigned kind) { return kind == any_sym_kind || sym->kind() == kind; }

// The symbol part of "prefix:rest": a field path or a dereference after the
// symbol belongs to the range entry, not to the symbol, and is cut off.
std::string symbol_part(const char *rest) {
  const char *from = strchr(rest, ':');
  if (!from)
    from = rest;
  for (const char *p = from; *p; p++)
    if ((*p == '.' || *p == '*') && p != rest)
      return std::string(rest, p - rest);
  return rest;
}

} // namespace

original_name_index::original_name_index(file_set_entry *fse) {
  for (base_symtab *table : {static_cast<base_symtab *>(fse->symtab()), static_cast<base_symtab *>(fse->parent()->globals)})
    for (sym_node_list_e *e = table->symbols()->head(); e; e = e->next()) {
      const char *origin = nullptr;
      const char *source_name = drs_original_sym_name(e->contents, &origin);
      if (source_name)
        by_name_[intern(source_name)].push_back({e->contents, origin});
    }
}

// The rules of find_original_symbol, over the symbols of one name only.
sym_node *original_name_index::find(const char *name, unsigned kind) const {
  const char *colon = strchr(name, ':');
  std::string wanted = colon ? symbol_part(colon + 1) : name;
  string_e *interned = lexicon->lookup(wanted.c_str());
  auto found = interned ? by_name_.find(interned->sp) : by_name_.end();
  if (found == by_name_.end())
    return nullptr;
  if (!colon) {
    sym_node *candidate = nullptr;
    for (const named_sym &n : found->second) {
      if (!kind_fits(n.sym, kind))
        continue;
      if (!n.origin)
        return n.sym;
      if (!candidate && !strchr(n.origin, ':'))
        candidate = n.sym;
    }
    return candidate;
  }
  std::string prefix(name, colon - name);
  for (const named_sym &n : found->second)
    if (n.origin && !strcasecmp(n.origin, prefix.c_str()) && kind_fits(n.sym, kind))
      return n.sym;
  return nullptr;
}

// Symbols are compared by their source names, from before any renaming when
// the files were linked; the file table is searched before the global one.
sym_node *find_original_symbol(file_set_entry *fse, const char *name, unsigned kind) {
  base_symtab *tables[2] = {fse->symtab(), fse->parent()->globals};
  const char *colon = strchr(name, ':');
  if (!colon) {
    sym_node *candidate = nullptr;
    for (base_symtab *table : tables)
      for (sym_node_list_e *e = table->symbols()->head(); e; e = e->next()) {
        const char *origin = nullptr;
        const char *source_name = drs_original_sym_name(e->contents, &origin);
        if (!source_name || strcmp(source_name, name) || !kind_fits(e->contents, kind))
          continue;
        if (!origin)
          return e->contents;
        if (!candidate && !strchr(origin, ':'))
          candidate = e->contents;
      }
    return candidate;
  }

  std::string prefix(name, colon - name);
  std::string rest = symbol_part(colon + 1);
  for (base_symtab *table : tables)
    for (sym_node_list_e *e = table->symbols()->head(); e; e = e->next()) {
      const char *origin = nullptr;
      const char *source_name = drs_original_sym_name(e->contents, &origin);
      if (source_name && origin && rest == source_name && !strcasecmp(origin, prefix.c_str()) &&
          kind_fits(e->contents, kind))
        return e->contents;
    }
  return nullptr;
}
