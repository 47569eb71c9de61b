#!/usr/bin/env python3
"""Writes a range file for a program from its qvt-irdump text (on stdin): lines in every mode
on the globals and undefined functions that qvt-bench-gen makes, up to LINES lines.

    qvt-irdump p.ir | bench/gen_ranges.py LINES > ranges.txt

Scalars get an init range and a globalassert range that contains it (a pair); volatile
scalars and arrays a permanent range; structs a field in each mode, one of them an array,
and init ranges on their pointer fields; unions and pointers to structs ranges through their
fields; undefined functions permanent
ranges on their return and on the target of a first pointer argument. Statics are named by
their file. When the symbols run out before LINES, the walk starts again with init ranges on
the fields of structs under new bounds, which the range code reports as repeated lines."""
import re
import sys

SCALARS = {"int", "signed char", "double", "float", "unsigned long", "unsigned int", "short"}
VAR = re.compile(r"^  var (.+) (g\d+) \[")
PROC = re.compile(r"^  proc (.+) \((.*)\) (u\d+) \[no body\]")


def lines_for_var(type_text, name):
    if type_text in SCALARS:
        return [f"{name} 0 10 init", f"{name} 0 20 globalassert"]
    if type_text.startswith("volatile "):
        return [f"{name} 0 1 permanent"]
    if re.fullmatch(r"struct s\d+", type_text):
        return [f"{name}.len 0 10 init", f"{name}.vals 0 5 permanent", f"{name}.flags 0 3 globalassert",
                f"{name}.name 1 8 init", f"{name}.next 0 2 init"]
    if re.fullmatch(r"union s\d+", type_text):
        return [f"{name}.i 0 1 permanent", f"{name}.d 0 1 init", f"{name}.p 0 4 init 1"]
    if re.fullmatch(r".+\[\d+\]", type_text):
        return [f"{name} 0 1 permanent"]
    if re.fullmatch(r"struct s\d+ \*", type_text):
        return [f"{name} 0 10 init", f"{name}*.len 0 5 init", f"{name}*.vals 0 9 init",
                f"{name}*.flags 0 1 init"]
    return []


def lines_for_proc(ret, args, name):
    out = []
    if ret in SCALARS:
        out.append(f"{name}.return 0 9 permanent")
    first = args.split(",")[0].strip()
    if first.endswith("*") and first[:-1].strip() in SCALARS:
        out.append(f"{name}.#0* 0 3 permanent")
    elif re.fullmatch(r"struct s\d+ \*", first):
        out.append(f"{name}.#0*.len 0 4 permanent")
    return out


def main():
    wanted = int(sys.argv[1])
    in_file_table = False
    symbols = []
    for line in sys.stdin:
        if line.startswith("file table:"):
            in_file_table = True
        m = VAR.match(line)
        if m:
            name = f"synthetic.c:{m.group(2)}" if in_file_table else m.group(2)
            symbols.append(lines_for_var(m.group(1), name))
            continue
        m = PROC.match(line)
        if m:
            symbols.append(lines_for_proc(m.group(1), m.group(2), m.group(3)))
    out = [l for group in symbols for l in group]
    if not out:
        sys.exit("gen_ranges: no symbol to give a range to")
    extra = [l.split(" ")[0] for l in out if ".len 0 10 init" in l]
    k = 0
    while len(out) < wanted and extra:
        out.append(f"{extra[k % len(extra)]} 1 {2 + k // len(extra)} init")
        k += 1
    sys.stdout.write("\n".join(out[:wanted]) + "\n")


main()
