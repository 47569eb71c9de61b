# Prints an IR program whose one body nests instructions EXPR deep and
# statements (blocks) STMT deep: deep_ir.py EXPR STMT
import sys

expr_depth, stmt_depth = int(sys.argv[1]), int(sys.argv[2])
e = "v:3"
for _ in range(expr_depth - 1):
    e = "( neg 2 - 1 %s )" % e
print("""qvt-ir 1
target 0 8 1 8 16 32 64 64 64 32 64 128 8 16 32 64 64 64 32 64 128 8 8 3 3 3 2 2 0 1 1 0
ids 10 10
entry "deep.c"
table global ""
type 1 void
type 2 int 32 s
type 4 func 2 1 0 1 2
sym 2 proc 4 "f" 1 - 1 1
table file "deep.c"
body 2
proc
ptable "f"
sym 3 var 2 "p0" 5 -
param 3""")
print("block\nbtable \"b\"\n" * (stmt_depth - 1), end="")
print("instr ( ret 2 - 1 %s )" % e)
print("end\n" * (stmt_depth - 1), end="")
print("endbody\nend-of-ir")
