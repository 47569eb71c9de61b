#!/bin/sh
# cc_check.sh GCC CLANG "FLAGS" FILE...: compiles each generated file with both compilers; any error fails.
gcc=$1; clang=$2; flags=$3; shift 3
status=0
for f in "$@"; do
  # shellcheck disable=SC2086
  "$gcc" $flags "$f" || status=1
  # shellcheck disable=SC2086
  "$clang" $flags "$f" || status=1
done
exit $status
