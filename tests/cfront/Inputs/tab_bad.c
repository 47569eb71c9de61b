/* The table with another element type: a real conflict. */
extern const unsigned short table[4];
int wide(void) { return table[1]; }
