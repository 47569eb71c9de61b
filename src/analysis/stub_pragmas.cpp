// Stub pragmas: each names one function and the kind of stub it gets.
//
// The mark is an annotation stub_mode with one integer. Its name is
// registered at its first use in a run, so that a run without pragmas never
// looks at annotations to answer stub_mode_of.
#include "analysis/stub_pragmas.h"
#include "driver/options.h"
#include "drs/drs_model.h"

#include <cstring>

static const char *k_stub_mode; // null until registered in this run

void forget_stub_mode_name() { k_stub_mode = nullptr; }

void set_stub_mode(sym_node *proc, unsigned kind) {
  if (!k_stub_mode)
    k_stub_mode = register_annote(new annote_def("stub_mode", false));
  immed_list *data = new immed_list;
  data->append(immed(kind));
  proc->append_annote(k_stub_mode, data);
}

int stub_mode_of(sym_node *proc) {
  if (!k_stub_mode)
    return 0;
  annote *mark = proc->peek_annote(k_stub_mode);
  if (!mark || !mark->immeds() || mark->immeds()->is_empty())
    return 0;
  return mark->immeds()->head()->contents.integer();
}

// Kinds by pragma word, tested in this order. The no-instrument word exists
// only in instrumenting mode; without it, it is an unknown word.
static int stub_kind_of_word(const char *word) {
  if (!strcmp(word, "QUORVANTA_PURE"))
    return STUB_PURE;
  if (!strcmp(word, "QUORVANTA_CLEAN"))
    return STUB_CLEAN;
  if (!strcmp(word, "QUORVANTA_WORST"))
    return STUB_WORST;
  if (flag_instrum && !strcmp(word, "QUORVANTA_NO_INSTRUMENT"))
    return STUB_NO_INSTRUMENT;
  if (!strcmp(word, "__QUORVANTA_NO_WRITE"))
    return STUB_PURE;
  return -1;
}

// The range pragma reads mode, name, min, max and an optional pointer
// attribute; a pragma cut short before max is dropped in silence.
static void read_drs_pragma(immed_list_e *arg) {
  const char *texts[4];
  for (int i = 0; i < 4; i++) {
    if (!arg)
      return;
    texts[i] = arg->contents.string();
    if (!texts[i])
      return;
    arg = arg->next();
  }
  const char *pointer_attribute = arg ? arg->contents.string() : nullptr;
  drs_add_pragma(texts[0], texts[1], texts[2], texts[3], pointer_attribute);
}

void read_pragmas() {
  for (annote_list_e *e = current_fse->annotes()->head(); e; e = e->next()) {
    annote *a = e->contents;
    if (a->name() != k_pragma)
      continue;
    immed_list *args = a->immeds();
    if (!args || args->is_empty())
      continue;
    immed_list_e *first = args->head();
    // Pragma words are strings; anything else in an input file is no pragma of ours.
    const char *word = first->contents.string();
    immed_list_e *next = first->next();
    if (!word || !next)
      continue;
    int kind = stub_kind_of_word(word);
    if (kind >= 0) {
      const char *name = next->contents.string();
      sym_node *proc = name ? global_st->lookup_sym(name, SYM_PROC, true) : nullptr;
      if (proc)
        set_stub_mode(proc, kind);
    } else if (flag_drs_pragmas && !strcmp(word, "QUORVANTA_DRS")) {
      read_drs_pragma(next);
    }
  }
}
