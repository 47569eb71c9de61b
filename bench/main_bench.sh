#!/usr/bin/env bash
# Main generator benchmark: wall time and peak memory of `qvt-stubber -stubber -main-generator` on
# programs of N symbols, half globals and half procedures that nothing calls, of mixed types
# (bench/gen_main_program.py), beside the IR round trip (read and write back, the silent range
# mode without a range file) of the same program, with the time per symbol and the size of the
# generated main file, whose text is held in memory until it is written.
# Usage: bench/main_bench.sh [BUILD_DIR] (default: build); SIZES from the environment
# (default: "10000 100000 1000000").
set -euo pipefail
bench_name=main_bench
source "$(dirname "$0")/lib.sh"
cfront="$build/bin/qvt-cfront"
stubber="$build/bin/qvt-stubber"
sizes="${SIZES:-10000 100000 1000000}"
require_tool "$cfront" "$stubber"

# show LABEL CMD...: measures CMD (lib.sh) and prints its figures. The ratios use CPU time. Each
# run starts from an empty stubs directory, since the generated files are opened for appending.
before_run='rm -rf "$dir/stubs" && mkdir "$dir/stubs"'
show() {
  measure "$@"
  printf '  %-36s wall %7.3f s  cpu %7.3f s  peak %9d KB\n' "$1" "$wall" "$cpu" "$peak"
}

echo "main generator benchmark, $(nproc) cores, $(date -u '+%Y-%m-%d %H:%M UTC')"
for n in $sizes; do
  dir="$work/$n"
  mkdir -p "$dir/stubs"
  python3 "$root/bench/gen_main_program.py" "$dir/p.c" "$n"
  reps=$(( n >= 300000 ? 1 : (300000 + n - 1) / n ))
  echo "$n symbols: $((n / 2)) globals, $((n - n / 2)) uncalled procedures ($reps runs of each)"
  "$cfront" "$dir/p.c" -o "$dir/p.ir"
  show "IR round trip" "$stubber" -cpp-drs-gen "$dir/p.ir" "$dir/rt.ir"
  rc=$cpu rm_=$peak
  show "qvt-stubber -stubber -main-generator" "$stubber" -stubber -main-generator -stubs-dir "$dir/stubs" \
    "$dir/p.ir" "$dir/out.ir"
  main_kb=$(( $(wc -c <"$dir/stubs/__quorvanta_main.c") / 1024 ))
  echo "  per symbol: $(per_unit "$cpu" "$n") us cpu; main generator / round trip: cpu $(ratio "$cpu" "$rc")," \
       "peak memory $(ratio "$peak" "$rm_"), peak over round trip $(( (peak - rm_) / 1024 )) MB;" \
       "main file $((main_kb / 1024)) MB"
  rm -rf "$dir"
done
