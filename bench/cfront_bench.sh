#!/usr/bin/env bash
# Front-end benchmark: wall time and peak memory of qvt-cfront beside
# `clang -fsyntax-only` over the same files, one after the other, as ratios.
# Inputs: a generated program (bench/gen_c.py, FILES files of FUNCS functions)
# and the example program.
# Usage: bench/cfront_bench.sh [BUILD_DIR] (default: build); FILES and FUNCS from the environment;
# HEADERS=per-file gives each generated file a header of only what it uses (default: shared, one
# header declaring every function of the program, which every file includes).
set -euo pipefail
bench_name=cfront_bench
source "$(dirname "$0")/lib.sh"
cfront="$build/bin/qvt-cfront"
clang="${CLANG:-clang-14}"
files="${FILES:-64}"
funcs="${FUNCS:-50}"
headers="${HEADERS:-shared}"
case "$headers" in
  shared) gen_opts=() shape="one shared header" ;;
  per-file) gen_opts=(--per-file-headers) shape="a header per file" ;;
  *) echo "cfront_bench: HEADERS must be shared or per-file, not '$headers'" >&2; exit 2 ;;
esac
cores="$(nproc)"
require_tool "$cfront"

# show LABEL CMD...: measures CMD once (lib.sh) and prints the wall time, the
# CPU time (user + system) and the peak memory. On a loaded machine the CPU
# time is the steadier figure.
show() {
  measure "$@"
  printf '  %-24s wall %7.2f s   cpu %7.2f s   peak %8d KB\n' "$1" "$wall" "$cpu" "$peak"
}

run_set() {
  local name=$1; shift
  echo "$name ($# files, $cores cores)"
  show "clang -fsyntax-only" "$clang" -fsyntax-only "$@"
  local cw=$wall cc=$cpu cm=$peak w1 c1 m1 wn
  # Both runs write a file of the same name, so that the outputs compare equal.
  mkdir -p "$work/j1" "$work/jn"
  (cd "$work/j1" && show "qvt-cfront -j1" "$cfront" -j1 "$@" -o program.ir && echo "$wall $cpu $peak" >"$work/m1")
  read -r w1 c1 m1 <"$work/m1"
  (cd "$work/jn" && show "qvt-cfront -j$cores" "$cfront" -j"$cores" "$@" -o program.ir && echo "$wall" >"$work/mn")
  read -r wn <"$work/mn"
  cmp -s "$work/j1/program.ir" "$work/jn/program.ir" || {
    echo "cfront_bench: output differs with the thread count" >&2; exit 1; }
  echo "  ratios to clang: wall -j1 $(ratio "$w1" "$cw"), wall -j$cores $(ratio "$wn" "$cw"), cpu -j1 $(ratio "$c1" "$cc"), peak memory -j1 $(ratio "$m1" "$cm")"
}

python3 "$root/bench/gen_c.py" ${gen_opts[@]+"${gen_opts[@]}"} "$work/gen" "$files" "$funcs"
run_set "generated: $files files x $funcs functions, $shape" "$work"/gen/*.c
run_set "example" "$root"/examples/main.c "$root"/examples/sensor.c "$root"/examples/bus.c
