int sized[8];
