/* Anchor of the shared library: its whole content comes from the core archive, linked whole. */
int qvt_stubber_shared_anchor;
