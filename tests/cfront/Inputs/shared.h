struct node { int value; struct node *next; };
typedef struct { int w; } anon_shared;
