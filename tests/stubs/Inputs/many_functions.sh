#!/bin/sh
# many_functions.sh N: a C file declaring the undefined functions f1 .. fN, each writing through a pointer.
i=1
while [ "$i" -le "$1" ]; do
  echo "void f$i(int *p);"
  i=$((i + 1))
done
