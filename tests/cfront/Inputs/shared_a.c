#include "shared.h"
struct opaque;
int *ia;
struct node *head_a;
anon_shared sa;
struct opaque *op_a;
