struct ref { struct ref *next; int count; };
void ref_a(struct ref *r);
