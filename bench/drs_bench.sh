#!/usr/bin/env bash
# Range benchmark: wall time and peak memory of reading, binding and applying a range file of
# as many lines as the program has symbols (-cpp-drs-gen with the file: every line read and
# bound, the globalassert and permanent ranges made into procedures, the IR written back),
# beside the IR round trip of the same program (-cpp-drs-gen without a file), with the ratio
# of the two and the time per line, so that growth beyond linear shows. Programs come from
# qvt-bench-gen, range files from bench/gen_ranges.py over the program's dump.
# Usage: bench/drs_bench.sh [BUILD_DIR] (default: build); SIZES from the environment
# (default "10000 100000 300000").
set -euo pipefail
bench_name=drs_bench
source "$(dirname "$0")/lib.sh"
stubber="$build/bin/qvt-stubber"
sizes="${SIZES:-10000 100000 300000}"
require_tool "$stubber" "$build/bin/qvt-bench-gen" "$build/bin/qvt-irdump"

show() {
  measure "$@"
  printf '  %-28s wall %7.2f s  cpu %7.2f s  peak %6d MB' "$1" "$wall" "$cpu" $((peak / 1024))
}

echo "range benchmark, $(nproc) cores, $(date -u '+%Y-%m-%d %H:%M UTC')"
for n in $sizes; do
  "$build/bin/qvt-bench-gen" -symbols "$n" -out "$work/p.ir"
  "$build/bin/qvt-irdump" "$work/p.ir" | python3 "$root/bench/gen_ranges.py" "$n" >"$work/ranges.txt"
  reps=$(( n >= 300000 ? 1 : (300000 + n - 1) / n ))
  echo "$n symbols, $(wc -l <"$work/ranges.txt") range lines ($reps runs of each)"
  show "IR round trip" "$stubber" -cpp-drs-gen "$work/p.ir" "$work/rt.ir"
  rt=$cpu
  printf '\n'
  show "ranges read, bound, applied" "$stubber" -cpp-drs-gen -drs-file "$work/ranges.txt" "$work/p.ir" "$work/out.ir"
  printf '  %6s us/line  %sx round trip\n' "$(per_unit "$cpu" "$n")" "$(ratio "$cpu" "$rt")"
  rm -f "$work/p.ir" "$work/rt.ir" "$work/out.ir" "$work/ranges.txt"
done
