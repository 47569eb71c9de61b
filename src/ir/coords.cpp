// Coordinates as annotations: file (string), line, column (integers).
#include "ir/coords.h"

#include <initializer_list>

#include "ir/annotes.h"
#include "ir/knames.h"
#include "ir/strings.h"

bool annote_to_coordinate(const annote *an, coord *c) {
    *c = coord();
    if (!an || !an->immeds()) return false;
    immed_list_e *e = an->immeds()->head();
    if (!e || !e->contents.is_string()) return false;
    coord r;
    r.file = e->contents.string();
    e = e->next();
    if (!e || !e->contents.is_integer()) return false;
    r.line = (int)e->contents.integer();
    e = e->next();
    if (e && e->contents.is_integer()) r.column = (int)e->contents.integer();
    *c = r;
    return true;
}

annote *coordinate_to_annote(const char *name, const coord &c) {
    immed_list *l = new immed_list;
    l->append(immed(c.file ? c.file : ""));
    l->append(immed(c.line));
    l->append(immed(c.column));
    return new annote(name, l);
}

bool find_coordinate(const suif_object *obj, coord *c) {
    for (const char *k : {k_source_coordinates, k_sequence_point, k_extdcl_sc})
        if (annote_to_coordinate(obj->peek_annote(k), c)) return true;
    *c = coord();
    return false;
}
