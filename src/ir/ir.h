// The IR library: everything in one include.
#pragma once

#include "ir/forward.h"
#include "ir/i_integer.h"
#include "ir/strings.h"
#include "ir/lists.h"
#include "ir/annotes.h"
#include "ir/knames.h"
#include "ir/machine.h"
#include "ir/types.h"
#include "ir/symbols.h"
#include "ir/symtabs.h"
#include "ir/fileset.h"
#include "ir/trees.h"
#include "ir/coords.h"
#include "ir/helpers.h"
#include "ir/support.h"
#include "ir/io.h"
