#!/usr/bin/env bash
# Stub-mode benchmark: wall time and peak memory of `qvt-stubber -stubber` on programs with many
# undefined functions of mixed signatures, beside the IR round trip (read and write back, the
# silent range mode without a range file) of the same program, with the time per stub.
# Usage: bench/stubs_bench.sh [BUILD_DIR] (default: build); SIZES from the environment
# (default: "10000 100000 1000000").
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$(cd "${1:-$root/build}" && pwd)"
cfront="$build/bin/qvt-cfront"
stubber="$build/bin/qvt-stubber"
sizes="${SIZES:-10000 100000 1000000}"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

for tool in "$cfront" "$stubber"; do
  if [ ! -x "$tool" ]; then
    echo "stubs_bench: $tool not built" >&2
    exit 1
  fi
done

# measure LABEL CMD...: runs CMD $reps times, sets $wall and $cpu (s, user + system, averaged) and
# $peak (KB, the largest), prints them. On a shared machine the CPU time is the steadier figure;
# the ratios use it. Small programs are run several times so that the clock's 10 ms resolution
# doesn't decide their figures; each run starts from an empty stubs directory, since the
# generated files are opened for appending.
measure() {
  local label=$1 r user sys; shift
  : >"$work/times"
  for ((r = 0; r < reps; r++)); do
    rm -rf "$dir/stubs" && mkdir "$dir/stubs"
    /usr/bin/time -f "%e %U %S %M" -o "$work/time" "$@" >/dev/null 2>"$work/stderr" || {
      echo "stubs_bench: '$label' failed:" >&2; tail -5 "$work/stderr" >&2; exit 1; }
    tail -n 1 "$work/time" >>"$work/times"
  done
  read -r wall cpu peak < <(awk '{ w += $1; c += $2 + $3; if ($4 > p) p = $4 }
    END { printf "%.3f %.3f %d\n", w / NR, c / NR, p }' "$work/times")
  printf '  %-24s wall %7.3f s  cpu %7.3f s  peak %9d KB\n' "$label" "$wall" "$cpu" "$peak"
}

per() { awk -v a="$1" -v n="$2" 'BEGIN { printf "%.2f", a * 1e6 / n }'; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { if (b > 0) printf "%.2f", a / b; else print "n/a" }'; }

echo "stub-mode benchmark, $(nproc) cores, $(date -u '+%Y-%m-%d %H:%M UTC')"
for n in $sizes; do
  dir="$work/$n"
  mkdir -p "$dir/stubs"
  python3 "$root/bench/gen_stub_program.py" "$dir/p.c" "$n"
  reps=$(( n >= 300000 ? 1 : (300000 + n - 1) / n ))
  echo "$n undefined functions ($reps runs of each)"
  measure "qvt-cfront" "$cfront" "$dir/p.c" -o "$dir/p.ir"
  measure "IR round trip" "$stubber" -cpp-drs-gen "$dir/p.ir" "$dir/rt.ir"
  rc=$cpu rm_=$peak
  measure "qvt-stubber -stubber" "$stubber" -stubber -stubs-dir "$dir/stubs" "$dir/p.ir" "$dir/out.ir"
  files=$(find "$dir/stubs" -name 'qvt_stubs_*.c' | wc -l)
  bytes=$(cat "$dir"/stubs/*.c "$dir"/stubs/*.h | wc -c)
  echo "  per stub: $(per "$cpu" "$n") us cpu, $(ratio "$((peak * 1024))" "$n") bytes of peak memory;" \
       "stub mode / round trip: cpu $(ratio "$cpu" "$rc"), peak memory $(ratio "$peak" "$rm_");" \
       "$files stub files, $((bytes / 1024)) KB of C"
  rm -rf "$dir"
done
