// Source coordinates and their annotations. A coordinate annotation holds
// three immeds: the file name (string), the line and the column (integers).
#pragma once

#include "ir/forward.h"

struct coord {
    const char *file = nullptr;  // interned
    int column = 0;
    int line = 0;
};

// Reads an annotation made by coordinate_to_annote (or with at least a
// string and a line). False, and *c cleared, if it has no such form.
bool annote_to_coordinate(const annote *an, coord *c);
// A new annotation named `name` holding c.
annote *coordinate_to_annote(const char *name, const coord &c);
// The coordinate of an object from its first k_source_coordinates,
// k_sequence_point or k_extdcl_sc annotation; false if none.
bool find_coordinate(const suif_object *obj, coord *c);
