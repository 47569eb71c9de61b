# Prints valid C that nests deep: deep_c.py ELSE_IF_ARMS SUM_TERMS FIELD_PATH_LENGTH
import sys

arms, terms, path = (int(a) for a in sys.argv[1:4])
print("struct node { struct node *next; int v; };")
print("int pick(int a) {\n  if (a == 0) return 0;")
for i in range(1, arms):
    print("  else if (a == %d) return %d;" % (i, i))
print("  return -1;\n}")
print("int sum(int a) { return " + " + ".join(["a"] * terms) + "; }")
print("int field(struct node *p) { return p" + "->next" * path + "->v; }")
print("int main(void) { return pick(3) + sum(1) + field(0); }")
