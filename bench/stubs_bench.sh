#!/usr/bin/env bash
# Stub-mode benchmark: wall time and peak memory of `qvt-stubber -stubber` on programs with many
# undefined functions of mixed signatures, beside the IR round trip (read and write back, the
# silent range mode without a range file) of the same program, with the time per stub.
# Usage: bench/stubs_bench.sh [BUILD_DIR] (default: build); SIZES from the environment
# (default: "10000 100000 1000000").
set -euo pipefail
bench_name=stubs_bench
source "$(dirname "$0")/lib.sh"
cfront="$build/bin/qvt-cfront"
stubber="$build/bin/qvt-stubber"
sizes="${SIZES:-10000 100000 1000000}"
require_tool "$cfront" "$stubber"

# show LABEL CMD...: measures CMD (lib.sh) and prints its figures. The ratios
# use CPU time. Each run starts from an empty stubs directory, since the
# generated files are opened for appending.
before_run='rm -rf "$dir/stubs" && mkdir "$dir/stubs"'
show() {
  measure "$@"
  printf '  %-24s wall %7.3f s  cpu %7.3f s  peak %9d KB\n' "$1" "$wall" "$cpu" "$peak"
}

echo "stub-mode benchmark, $(nproc) cores, $(date -u '+%Y-%m-%d %H:%M UTC')"
for n in $sizes; do
  dir="$work/$n"
  mkdir -p "$dir/stubs"
  python3 "$root/bench/gen_stub_program.py" "$dir/p.c" "$n"
  reps=$(( n >= 300000 ? 1 : (300000 + n - 1) / n ))
  echo "$n undefined functions ($reps runs of each)"
  show "qvt-cfront" "$cfront" "$dir/p.c" -o "$dir/p.ir"
  show "IR round trip" "$stubber" -cpp-drs-gen "$dir/p.ir" "$dir/rt.ir"
  rc=$cpu rm_=$peak
  show "qvt-stubber -stubber" "$stubber" -stubber -stubs-dir "$dir/stubs" "$dir/p.ir" "$dir/out.ir"
  files=$(find "$dir/stubs" -name 'qvt_stubs_*.c' | wc -l)
  bytes=$(cat "$dir"/stubs/*.c "$dir"/stubs/*.h | wc -c)
  echo "  per stub: $(per_unit "$cpu" "$n") us cpu, $(ratio "$((peak * 1024))" "$n") bytes of peak memory;" \
       "stub mode / round trip: cpu $(ratio "$cpu" "$rc"), peak memory $(ratio "$peak" "$rm_");" \
       "$files stub files, $((bytes / 1024)) KB of C"
  rm -rf "$dir"
done
