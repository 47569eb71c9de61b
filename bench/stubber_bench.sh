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
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$(cd "${1:-$root/build}" && pwd)"
stubber="$build/bin/qvt-stubber"
sizes="${SIZES:-10000 100000 1000000}"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

if [ ! -x "$stubber" ]; then
  echo "stubber_bench: $stubber not built" >&2
  exit 1
fi

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

# measure LABEL CMD...: prints "LABEL wall_s cpu_s peak_MB" and sets $cpu.
# Ratios and per-symbol figures use CPU time (user + system), which other
# work on a shared machine disturbs less than wall time. Small programs run
# $reps times (figures per run) so that the clock's 10 ms resolution doesn't
# decide them; every run starts from an empty stubs directory, since the
# generated files are opened for appending.
measure() {
  local label=$1 wall user sys peak r; shift
  : >"$work/times"
  for ((r = 0; r < reps; r++)); do
    rm -rf "$work/stubs" && mkdir "$work/stubs"
    # Status 1 only says that the program had problems to diagnose (the
    # generated programs have functions without prototype); anything else fails.
    local status=0
    /usr/bin/time -f "%e %U %S %M" -o "$work/time" "$@" >/dev/null 2>"$work/stderr" || status=$?
    if [ "$status" -gt 1 ] || [ ! -s "$work/time" ]; then
      echo "stubber_bench: '$label' failed with status $status:" >&2; tail -5 "$work/stderr" >&2; exit 1
    fi
    tail -n 1 "$work/time" >>"$work/times"
  done
  read -r wall cpu peak < <(awk '{ w += $1; c += $2 + $3; if ($4 > p) p = $4 }
    END { printf "%.3f %.3f %d\n", w / NR, c / NR, p }' "$work/times")
  printf '  %-18s wall %7.2f s  cpu %7.2f s  peak %6d MB' "$label" "$wall" "$cpu" $((peak / 1024))
}

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { if (b > 0) printf "%.2f", a / b; else print "n/a" }'; }
per_symbol() { awk -v t="$1" -v n="$2" 'BEGIN { printf "%.2f", t * 1e6 / n }'; }

echo "stubber benchmark, $(nproc) cores, $(date -u '+%Y-%m-%d %H:%M UTC')"
for n in $sizes; do
  make_program "$n" "$work/p.ir"
  symbols=$n
  reps=$(( n >= 300000 ? 1 : (300000 + n - 1) / n ))
  echo "$n symbols ($(du -h "$work/p.ir" | cut -f1) of IR, $reps runs of each)"
  measure "IR round trip" "$stubber" -cpp-drs-gen "$work/p.ir" "$work/rt.ir"
  rt=$cpu
  printf '  %6s us/symbol\n' "$(per_symbol "$cpu" "$symbols")"
  measure "-stubber" "$stubber" -stubber -stubs-dir "$work/stubs" "$work/p.ir" "$work/out.ir"
  printf '  %6s us/symbol  %sx round trip\n' "$(per_symbol "$cpu" "$symbols")" "$(ratio "$cpu" "$rt")"
  measure "-unknown-symbols" "$stubber" -unknown-symbols "$work/p.ir" "$work/symbols.h"
  printf '  %6s us/symbol  %sx round trip\n' "$(per_symbol "$cpu" "$symbols")" "$(ratio "$cpu" "$rt")"
  rm -f "$work/p.ir" "$work/rt.ir" "$work/out.ir" "$work/symbols.h"
done
