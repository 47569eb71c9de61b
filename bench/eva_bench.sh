#!/usr/bin/env bash
# Eva on closed programs, through scripts/eva.sh: the example of examples/, the library of
# examples/library (closed with its generated main) and a command-line tool of a few thousand
# lines written by gen_tool_program.py. Each program is closed twice, with the generic stubs of
# the C library and with -analyser-libc, and analysed from the generated entry point as the
# stubber writes it and from the entry that eva.sh picks. Prints one line per run: coverage of
# the reachable functions, alarms, wall and processor time. Frama-C runs one at a time, with nice.
# Usage: bench/eva_bench.sh [BUILD_DIR]
set -euo pipefail
bench_name=eva_bench
# shellcheck source=bench/lib.sh
source "$(dirname "$0")/lib.sh"
require_tool "$build/bin/qvt-cfront" "$build/bin/qvt-stubber"
if ! command -v "${FRAMAC:-frama-c}" >/dev/null; then
  echo "$bench_name: frama-c not installed, skipped"
  exit 0
fi

ex="$root/examples"
python3 "$root/bench/gen_tool_program.py" "$work/tool" >/dev/null

# run NAME STUBBER_OPTIONS CPP_OPTIONS SOURCES...: closes the program both ways and runs Eva.
run() {
  local name=$1 stubber_opts=$2 cpp=$3 lines libc entry dir
  shift 3
  lines=$(cat "$@" | wc -l)
  for libc in generic analyser; do
    dir="$work/$name.$libc"
    mkdir -p "$dir/stubs"
    local cfront_opts=()
    [ $libc = analyser ] && cfront_opts=(-analyser-libc)
    "$build/bin/qvt-cfront" "${cfront_opts[@]}" $cpp "$@" -o "$dir/p.ir" 2>/dev/null
    # shellcheck disable=SC2086
    "$build/bin/qvt-stubber" -stubber $stubber_opts -stubs-dir "$dir/stubs" "$dir/p.ir" "$dir/p.out.ir" \
      2>"$dir/stubber.txt" || true
    for entry in entry-point chosen; do
      local main_opt=()
      [ $entry = entry-point ] && main_opt=(-main __QVT__MAIN__ENTRY__POINT__)
      # shellcheck disable=SC2086
      nice "$root/scripts/eva.sh" -stubs "$dir/stubs" $cpp "${main_opt[@]}" -csv "$dir/$entry.csv" "$@" \
        >"$dir/$entry.txt" || { echo "$name $libc $entry: failed"; continue; }
      awk -v n="$name" -v l="$lines" -v c="$libc" -v e="$entry" '
        /^entry:/ { sub(/^entry: /, ""); en = $0 }
        /^coverage:/ { sub(/^coverage: /, ""); sub(/ reachable functions/, ""); cov = $0 }
        /^alarms:/ { sub(/^alarms: /, ""); al = $0 }
        /^time:/ { t = $2; cpu = $5 }
        END { printf "%-9s %5d lines  %-8s  %-52s  coverage %-18s  %6s s wall  %6s s cpu  alarms %s\n",
                     n, l, c, en, cov, t, cpu, al }' \
        "$dir/$entry.txt"
    done
  done
}

echo "date: $(date -u '+%Y-%m-%d %H:%M UTC'), $(nproc) cores, $("${FRAMAC:-frama-c}" -version)"
run example "" "-I$ex" "$ex/main.c" "$ex/sensor.c" "$ex/bus.c"
run library "-main-generator -main-generator-bounded-loop 10 -functions-called-after-loop queue_drain" \
  "-I$ex/library" "$ex/library/queue.c" "$ex/library/drain.c"
run tool "" "-I$work/tool" "$work"/tool/*.c
