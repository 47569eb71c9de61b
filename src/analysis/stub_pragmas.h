// The pragmas that steer stubs, and the stub kinds they select.
//
// The front end keeps each pragma as a k_pragma annotation on the file set
// entry; read_pragmas turns the stub pragmas into a stub_mode mark on the named
// procedure and hands the range pragma to the range reader.
#pragma once

#include "ir/ir.h"

// Stub kinds, kept in the stub_mode mark and passed through the stub generator.
enum stub_kind {
  STUB_DEFAULT = 0,       // no pragma
  STUB_PURE = 1,
  STUB_CLEAN = 2,
  STUB_WORST = 3,
  STUB_NO_INSTRUMENT = 4, // no stub at all (only with -instrument)
};

// Walks the annotations of current_fse once, in list order.
void read_pragmas();

// Appends a stub_mode mark with kind to proc, registering the name if needed.
void set_stub_mode(sym_node *proc, unsigned kind);

// The kind of the first stub_mode mark of proc; 0 without one.
int stub_mode_of(sym_node *proc);

// Forgets the registered stub_mode name, so that the next run registers it anew.
void forget_stub_mode_name();
