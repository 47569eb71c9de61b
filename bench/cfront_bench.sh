#!/usr/bin/env bash
# Front-end benchmark: wall time and peak memory of qvt-cfront beside
# `clang -fsyntax-only` over the same files, one after the other, as ratios.
# Inputs: a generated program (bench/gen_c.py, FILES files of FUNCS functions)
# and the example program.
# Usage: bench/cfront_bench.sh [BUILD_DIR] (default: build); FILES and FUNCS from the environment.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$(cd "${1:-$root/build}" && pwd)"
cfront="$build/bin/qvt-cfront"
clang="${CLANG:-clang-14}"
files="${FILES:-64}"
funcs="${FUNCS:-50}"
cores="$(nproc)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

if [ ! -x "$cfront" ]; then
  echo "cfront_bench: $cfront not built" >&2
  exit 1
fi

# measure LABEL CMD...: prints the wall time, the CPU time (user + system)
# and the peak memory of CMD, and sets $wall, $cpu and $peak. On a loaded
# machine the CPU time is the steadier figure.
measure() {
  local label=$1; shift
  /usr/bin/time -f "%e %U %S %M" -o "$work/time" "$@" >/dev/null 2>"$work/stderr" || {
    echo "cfront_bench: '$label' failed:" >&2; cat "$work/stderr" >&2; exit 1; }
  local user sys
  read -r wall user sys peak <"$work/time"
  cpu=$(awk -v u="$user" -v s="$sys" 'BEGIN { printf "%.2f", u + s }')
  printf '  %-24s wall %7.2f s   cpu %7.2f s   peak %8d KB\n' "$label" "$wall" "$cpu" "$peak"
}

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { if (b > 0) printf "%.2f", a / b; else print "n/a" }'; }

run_set() {
  local name=$1; shift
  echo "$name ($# files, $cores cores)"
  measure "clang -fsyntax-only" "$clang" -fsyntax-only "$@"
  local cw=$wall cc=$cpu cm=$peak w1 c1 m1 wn
  # Both runs write a file of the same name, so that the outputs compare equal.
  mkdir -p "$work/j1" "$work/jn"
  (cd "$work/j1" && measure "qvt-cfront -j1" "$cfront" -j1 "$@" -o program.ir && echo "$wall $cpu $peak" >"$work/m1")
  read -r w1 c1 m1 <"$work/m1"
  (cd "$work/jn" && measure "qvt-cfront -j$cores" "$cfront" -j"$cores" "$@" -o program.ir && echo "$wall" >"$work/mn")
  read -r wn <"$work/mn"
  cmp -s "$work/j1/program.ir" "$work/jn/program.ir" || {
    echo "cfront_bench: output differs with the thread count" >&2; exit 1; }
  echo "  ratios to clang: wall -j1 $(ratio "$w1" "$cw"), wall -j$cores $(ratio "$wn" "$cw"), cpu -j1 $(ratio "$c1" "$cc"), peak memory -j1 $(ratio "$m1" "$cm")"
}

python3 "$root/bench/gen_c.py" "$work/gen" "$files" "$funcs"
run_set "generated: $files files x $funcs functions" "$work"/gen/*.c
run_set "example" "$root"/examples/main.c "$root"/examples/sensor.c "$root"/examples/bus.c
