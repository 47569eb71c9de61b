#!/usr/bin/env bash
# IR round-trip benchmark: for each size, generate a synthetic program
# (qvt-bench-gen), then read it and write it back body by body
# (qvt-ir-copy), and print wall time, time per symbol and peak memory. The
# copy must be byte-identical to its input.
# Usage: bench/ir_bench.sh [BUILD_DIR] (default: build); SIZES from the
# environment (default: "10000 100000 1000000").
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$(cd "${1:-$root/build}" && pwd)"
gen="$build/bin/qvt-bench-gen"
copy="$build/bin/qvt-ir-copy"
sizes="${SIZES:-10000 100000 1000000}"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

for tool in "$gen" "$copy"; do
  if [ ! -x "$tool" ]; then
    echo "ir_bench: $tool not built" >&2
    exit 1
  fi
done

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
  /usr/bin/time -f "%e" -o "$work/gen.time" "$gen" -symbols "$n" -out "$in"
  reps=$(( n >= 300000 ? 1 : (300000 + n - 1) / n ))
  : >"$work/copy.times"
  for ((r = 0; r < reps; r++)); do
    /usr/bin/time -f "%e %U %S %M" -o "$work/copy.time" "$copy" "$in" "$out"
    cat "$work/copy.time" >>"$work/copy.times"
  done
  cmp -s "$in" "$out" || { echo "ir_bench: the copy of $n symbols differs from its input" >&2; exit 1; }
  read -r gen_wall <"$work/gen.time"
  read -r wall cpu peak < <(awk '{ w += $1; c += $2 + $3; if ($4 > p) p = $4 }
    END { printf "%.3f %.3f %d\n", w / NR, c / NR, p }' "$work/copy.times")
  size_mb=$(awk -v b="$(stat -c %s "$in")" 'BEGIN { printf "%.1f", b / 1048576 }')
  us=$(awk -v c="$cpu" -v n="$n" 'BEGIN { printf "%.2f", c * 1e6 / n }')
  [ -n "$first_us" ] || first_us=$us
  ratio=$(awk -v a="$us" -v b="$first_us" 'BEGIN { printf "%.2f", (b > 0 ? a / b : 0) }')
  printf '  %10d %8s %10s %8s %8s %12s %8d   (x%s of the smallest per symbol)\n' \
    "$n" "$size_mb" "$gen_wall" "$wall" "$cpu" "$us" $((peak / 1024)) "$ratio"
  rm -f "$in" "$out"
done
