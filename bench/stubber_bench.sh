#!/usr/bin/env bash
# Stubber benchmark: wall time and peak memory of the stub mode (-stubber) and
# the symbol-header mode (-unknown-symbols) at 10k, 100k and 1M symbols, beside
# the IR round trip of the same file (-cpp-drs-gen over no ranges: every body
# read once and written back), with the ratio of each mode to the round trip
# and the time per symbol, so that growth beyond linear shows.
# Programs come from qvt-bench-gen when it is built, otherwise from
# bench/gen_c.py through qvt-cfront.
# Usage: bench/stubber_bench.sh [BUILD_DIR] (default: build); SIZES from the
# environment (default "10000 100000 1000000").
set -euo pipefail
bench_name=stubber_bench
source "$(dirname "$0")/lib.sh"
stubber="$build/bin/qvt-stubber"
sizes="${SIZES:-10000 100000 1000000}"
require_tool "$stubber"

# make_program N FILE: an IR program of about N symbols.
make_program() {
  local n=$1 out=$2
  if [ -x "$build/bin/qvt-bench-gen" ]; then
    "$build/bin/qvt-bench-gen" -symbols "$n" -out "$out"
  else
    # gen_c.py gives about 800 symbols a file of 100 functions.
    local files=$(( (n + 799) / 800 ))
    rm -rf "$work/src"
    python3 "$root/bench/gen_c.py" "$work/src" "$files" 100
    "$build/bin/qvt-cfront" "$work/src"/*.c -o "$out"
  fi
}

# show LABEL CMD...: measures CMD $reps times (lib.sh) and prints
# "LABEL wall_s cpu_s peak_MB" (figures per run). Ratios and per-symbol
# figures use CPU time (user + system), which other work on a shared machine
# disturbs less than wall time. Every run starts from an empty stubs
# directory, since the generated files are opened for appending. Status 1
# only says that the program had problems to diagnose (the generated
# programs have functions without prototype); anything else fails.
before_run='rm -rf "$work/stubs" && mkdir "$work/stubs"'
max_status=1
show() {
  measure "$@"
  printf '  %-18s wall %7.2f s  cpu %7.2f s  peak %6d MB' "$1" "$wall" "$cpu" $((peak / 1024))
}

echo "stubber benchmark, $(nproc) cores, $(date -u '+%Y-%m-%d %H:%M UTC')"
for n in $sizes; do
  make_program "$n" "$work/p.ir"
  symbols=$n
  reps=$(( n >= 300000 ? 1 : (300000 + n - 1) / n ))
  echo "$n symbols ($(du -h "$work/p.ir" | cut -f1) of IR, $reps runs of each)"
  show "IR round trip" "$stubber" -cpp-drs-gen "$work/p.ir" "$work/rt.ir"
  rt=$cpu
  printf '  %6s us/symbol\n' "$(per_unit "$cpu" "$symbols")"
  show "-stubber" "$stubber" -stubber -stubs-dir "$work/stubs" "$work/p.ir" "$work/out.ir"
  printf '  %6s us/symbol  %sx round trip\n' "$(per_unit "$cpu" "$symbols")" "$(ratio "$cpu" "$rt")"
  show "-unknown-symbols" "$stubber" -unknown-symbols "$work/p.ir" "$work/symbols.h"
  printf '  %6s us/symbol  %sx round trip\n' "$(per_unit "$cpu" "$symbols")" "$(ratio "$cpu" "$rt")"
  rm -f "$work/p.ir" "$work/rt.ir" "$work/out.ir" "$work/symbols.h"
done
