struct ref { struct ref *next; int count; };
void ref_b(struct ref *r);
