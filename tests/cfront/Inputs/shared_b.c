#include "shared.h"
struct opaque { long secret; };
int *ib;
struct node *head_b;
anon_shared sb;
struct opaque *op_b;
