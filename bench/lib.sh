# Shared by the bench/*_bench.sh scripts; sourced, not run. Before sourcing,
# a script sets bench_name (used in its messages). Sourcing sets:
#   root   the source tree
#   build  the build directory: the script's first argument, or <root>/build
#   work   a scratch directory, removed when the script exits
# and offers require_tool, measure, ratio and per_unit.

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="$(cd "${1:-$root/build}" && pwd)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# require_tool PATH...: stops the script if a tool is not built.
require_tool() {
  local tool
  for tool in "$@"; do
    if [ ! -x "$tool" ]; then
      echo "$bench_name: $tool not built" >&2
      exit 1
    fi
  done
}

# measure LABEL CMD...: runs CMD ${reps:-1} times and sets $wall and $cpu
# (seconds per run, averaged; cpu is user + system) and $peak (KB, the
# largest of the runs); prints nothing, each script prints its own columns.
# Small programs are run several times so that the clock's 10 ms resolution
# doesn't decide their figures; on a shared machine CPU time is the steadier
# figure. Before each run the command in $before_run, if set, is evaluated
# (e.g. to empty an output directory the tool appends to). A status above
# ${max_status:-0} fails the script with the command's last messages.
measure() {
  local label=$1 r status; shift
  : >"$work/times"
  for ((r = 0; r < ${reps:-1}; r++)); do
    [ -z "${before_run:-}" ] || eval "$before_run"
    status=0
    /usr/bin/time -f "%e %U %S %M" -o "$work/time" "$@" >/dev/null 2>"$work/stderr" || status=$?
    if [ "$status" -gt "${max_status:-0}" ] || [ ! -s "$work/time" ]; then
      echo "$bench_name: '$label' failed with status $status:" >&2
      tail -n 20 "$work/stderr" >&2
      exit 1
    fi
    # With a non-zero status, time writes a "Command exited" line first.
    tail -n 1 "$work/time" >>"$work/times"
  done
  read -r wall cpu peak < <(awk '{ w += $1; c += $2 + $3; if ($4 > p) p = $4 }
    END { printf "%.3f %.3f %d\n", w / NR, c / NR, p }' "$work/times")
}

# ratio A B: A / B with two decimals, "n/a" when B is 0.
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { if (b > 0) printf "%.2f", a / b; else print "n/a" }'; }

# per_unit SECONDS N: microseconds per unit, two decimals.
per_unit() { awk -v t="$1" -v n="$2" 'BEGIN { printf "%.2f", t * 1e6 / n }'; }
