#!/usr/bin/env bash
# Runs Frama-C's Eva on a program closed by `qvt-stubber -stubber`, as docs/analysers.md explains,
# and prints a short summary: the entry taken, the coverage of the functions that the entry can
# reach, the alarms by kind and the time. Every property goes to a CSV report, Frama-C's whole
# output to a log beside it.
#
# The entry is read off the generated files: the generated `main` of a library
# (__quorvanta_main.c present) and the tasks are called by the generated entry point, so the
# analysis starts there. A program whose own `main` takes arguments starts at __qvt_eva_main of
# target/qvt_eva_main.c, which calls main with an argv as the system builds it: the generated
# entry point passes main volatile locals, which Eva reads as uninitialised, so that every path
# through argv would be dead. With tasks as well, the task calls of the entry point are copied
# after a call of __qvt_eva_main.
set -euo pipefail

usage() {
  cat <<'EOF'
usage: scripts/eva.sh [options] -stubs DIR SOURCE.c...

  -stubs DIR        the stubs directory written by qvt-stubber -stubber (required)
  -I DIR, -D NAME[=VALUE], -U NAME, -include FILE
                    preprocessor options of the sources, as given to qvt-cfront
  -main NAME        start the analysis at NAME instead of the entry read off the stubs
  -csv FILE         the report of every property (default: eva-report.csv)
  -log FILE         Frama-C's output (default: the report's name with .log)
  -unroll N         recursive calls unrolled before the function's contract stands for
                    the deeper ones (default: 8)
  -- ARGS...        the remaining arguments go to frama-c as they are

The command run is `frama-c`, or what the FRAMAC environment variable names.
EOF
}

die() {
  echo "eva.sh: error: $*" >&2
  exit 2
}

here=$(cd "$(dirname "$0")" && pwd)
target=$(cd "$here/../target" && pwd)
framac=${FRAMAC:-frama-c}
stubs=""
entry=""
csv="eva-report.csv"
log=""
unroll=8
cpp_args=()
sources=()
extra=()

while [ $# -gt 0 ]; do
  case "$1" in
    -h|-help|--help) usage; exit 0 ;;
    -stubs|-main|-csv|-log|-unroll|-I|-D|-U|-include)
      [ $# -ge 2 ] || die "option '$1' needs a value"
      case "$1" in
        -stubs) stubs=$2 ;;
        -main) entry=$2 ;;
        -csv) csv=$2 ;;
        -log) log=$2 ;;
        -unroll) unroll=$2 ;;
        -include) cpp_args+=("-include $2") ;;
        *) cpp_args+=("$1$2") ;;
      esac
      shift 2 ;;
    -I?*|-D?*|-U?*) cpp_args+=("$1"); shift ;;
    --) shift; extra=("$@"); break ;;
    -*) die "unknown option '$1' (see --help)" ;;
    *) sources+=("$1"); shift ;;
  esac
done

[ -n "$stubs" ] || die "no stubs directory: give -stubs DIR"
[ -d "$stubs" ] || die "stubs directory '$stubs' does not exist"
[[ "$unroll" =~ ^[0-9]+$ ]] || die "bad count '$unroll' for -unroll"
[ ${#sources[@]} -gt 0 ] || die "no source file"
for f in "${sources[@]}"; do [ -r "$f" ] || die "cannot read '$f'"; done
# The file of _extern_init is left out: Eva gives every undefined global an unknown value of
# its own accord (a pointer null or the address of an array of its own), as _extern_init would,
# and the arrays that _extern_init sizes by the C library's incomplete structs (sizeof 0 under
# gcc) are not constant for Frama-C.
stub_files=()
shopt -s nullglob
for f in "$stubs"/qvt_stubs_*.c; do
  grep -qx 'void _extern_init(void)' "$f" || stub_files+=("$f")
done
shopt -u nullglob
[ ${#stub_files[@]} -gt 0 ] || die "no qvt_stubs_N.c in '$stubs': run qvt-stubber -stubber first"
command -v "$framac" >/dev/null || die "'$framac' not found (Debian: apt-get install frama-c-base)"
[ -n "$log" ] || log="${csv%.csv}.log"

# A hand-written body in qvt_user_stubs.c comes before the generated stubs: of two definitions
# Frama-C keeps the first.
files=("${sources[@]}")
[ -f "$stubs/qvt_user_stubs.c" ] && files+=("$stubs/qvt_user_stubs.c")
files+=("${stub_files[@]}")
[ -f "$stubs/__quorvanta_main.c" ] && files+=("$stubs/__quorvanta_main.c")

# The entry, and why.
main_takes_args() {
  awk '/\/\* call of function main \*\//{getline; if ($0 !~ /main\((__QVT__VOID)?\);/) found=1} END{exit !found}' \
    "${stub_files[@]}"
}
entry_args=()
work=""
if [ -z "$entry" ]; then
  if [ -f "$stubs/__quorvanta_main.c" ]; then
    entry=__QVT__MAIN__ENTRY__POINT__
    why="the generated main"
  elif grep -q '/\* call of task ' "${stub_files[@]}"; then
    if main_takes_args; then
      entry=__qvt_eva_tasks
      why="the program has tasks, main takes arguments"
    else
      entry=__QVT__MAIN__ENTRY__POINT__
      why="the program has tasks"
    fi
  elif main_takes_args; then
    entry=main
    why="main takes arguments"
  else
    entry=__QVT__MAIN__ENTRY__POINT__
    why="main takes no arguments"
  fi
else
  why="given"
fi
if [ "$entry" = __qvt_eva_tasks ]; then
  # The entry point as generated, but main called with its argv: its task calls are copied as
  # they stand, after a call of __qvt_eva_main.
  work=$(mktemp -d)
  trap 'rm -rf "$work"' EXIT
  {
    printf '#include "qvt_stub_types.h"\n\nextern void assert(int);\nvoid __qvt_eva_main(void);\n'
    printf 'static volatile int qvt_random_int;\n\nvoid __qvt_eva_tasks(void)\n{\n    __qvt_eva_main();\n'
    awk '/^void __QVT__MAIN__ENTRY__POINT__\(void\)$/ { inside = 1; next }
         inside && /^}$/ { inside = 0; copying = 0 }
         inside && /^    if \(qvt_random_int\)$/ { copying = 1 }
         copying { print }' "${stub_files[@]}"
    printf '}\n'
  } >"$work/qvt_eva_tasks.c"
  files+=("$target/qvt_eva_main.c" "$work/qvt_eva_tasks.c")
  entry_args=(-main __qvt_eva_tasks -eva-slevel-function main:20)
elif [ "$entry" = main ]; then
  # main is called with each argument count apart; the states stay apart through main's first
  # checks of argc.
  files+=("$target/qvt_eva_main.c")
  entry_args=(-main __qvt_eva_main -eva-slevel-function main:20)
else
  entry_args=(-main "$entry")
fi

# Wall and processor time of the run, by the shell's own clock.
timing=$(mktemp)
trap 'rm -f "$timing"; [ -z "$work" ] || rm -rf "$work"' EXIT
status=0
TIMEFORMAT='%R %U %S'
{ time "$framac" -machdep gcc_x86_64 \
  -cpp-extra-args="-include $target/qvt_target.h -I$target -I$stubs ${cpp_args[*]}" \
  -kernel-warn-key CERT:MSC:38=inactive \
  "${files[@]}" \
  -eva "${entry_args[@]}" \
  -eva-no-remove-redundant-alarms -eva-unroll-recursive-calls "$unroll" \
  "${extra[@]}" \
  -then -metrics -metrics-eva-cover \
  -then -report-csv "$csv" >"$log" 2>&1 || status=$?; } 2>"$timing"

if [ $status -ne 0 ] || [ ! -f "$csv" ]; then
  tail -n 20 "$log" >&2
  echo "eva.sh: frama-c failed (status $status); its output is in $log" >&2
  exit 1
fi

echo "entry: $entry ($why)"
awk '/Syntactically reachable functions =/ {reach=$5}
     /Semantically reached functions =/ {reached=$5}
     /Coverage estimation =/ {cov=$4}
     END {if (reach != "") printf "coverage: %s of %s reachable functions (%s)\n", reached, reach, cov}' "$log"
# An alarm is what Eva could not prove where the program runs: an assertion it emitted (a kind
# of one word, such as mem_access or signed_overflow) or a precondition at a call, with the status
# Unknown or Invalid. The contracts' own clauses (precondition, assigns clause, ...) are not
# alarms. Kinds are sorted, for a stable line.
awk -F'\t' 'NR > 1 && ($6 == "Unknown" || $6 ~ /^Invalid/) {
               kind = $5
               if (kind ~ /^precondition of /) kind = "precondition"
               else if (kind ~ / / || kind ~ /^(precondition|postcondition|assert|check|admit|exits|breaks|continues|returns|terminates|decreases|invariant)$/) next
               print kind }' "$csv" |
  sort | uniq -c |
  awk '{ total += $1; line = line sep $2 " " $1; sep = ", " }
       END { printf "alarms: %d%s%s\n", total, (total ? ": " : ""), line }'
awk '{ printf "time: %.1f s wall, %.1f s processor\n", $1, $2 + $3 }' "$timing"
echo "report: $csv (log: $log)"
