#!/usr/bin/env bash
# IR round-trip benchmark: for each size, generate a synthetic program
# (qvt-bench-gen), then read it and write it back body by body
# (qvt-ir-copy), and print wall time, time per symbol and peak memory. The
# copy must be byte-identical to its input.
# Usage: bench/ir_bench.sh [BUILD_DIR] (default: build); SIZES from the
# environment (default: "10000 100000 1000000").
set -euo pipefail
bench_name=ir_bench
source "$(dirname "$0")/lib.sh"
gen="$build/bin/qvt-bench-gen"
copy="$build/bin/qvt-ir-copy"
sizes="${SIZES:-10000 100000 1000000}"
require_tool "$gen" "$copy"

echo "IR round trip (read tables, read/write/flush each body, write the file)"
# Time per symbol is taken on CPU time (user + system), which other work on
# the machine disturbs less than wall time. Small sizes repeat the copy
# until about 300000 symbols went through, so that the clock's resolution
# doesn't decide their figure; wall and CPU columns are per copy.
printf '  %10s %8s %10s %8s %8s %12s %8s\n' symbols file_MB gen_wall_s wall_s cpu_s cpu_us/sym peak_MB
first_us=""
for n in $sizes; do
  in="$work/p$n.ir"
  out="$work/p$n.out.ir"
  reps=1
  measure "qvt-bench-gen $n" "$gen" -symbols "$n" -out "$in"
  gen_wall=$(awk -v w="$wall" 'BEGIN { printf "%.2f", w }')
  reps=$(( n >= 300000 ? 1 : (300000 + n - 1) / n ))
  measure "qvt-ir-copy $n" "$copy" "$in" "$out"
  cmp -s "$in" "$out" || { echo "ir_bench: the copy of $n symbols differs from its input" >&2; exit 1; }
  size_mb=$(awk -v b="$(stat -c %s "$in")" 'BEGIN { printf "%.1f", b / 1048576 }')
  us=$(per_unit "$cpu" "$n")
  [ -n "$first_us" ] || first_us=$us
  ratio=$(ratio "$us" "$first_us")
  printf '  %10d %8s %10s %8s %8s %12s %8d   (x%s of the smallest per symbol)\n' \
    "$n" "$size_mb" "$gen_wall" "$wall" "$cpu" "$us" $((peak / 1024)) "$ratio"
  rm -f "$in" "$out"
done
