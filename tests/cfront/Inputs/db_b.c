/* Built with -DSIGNED_FLAG in the compilation database. */
#ifdef SIGNED_FLAG
int helper(int x) { return -x; }
#endif
