#!/usr/bin/env bash
# Range template benchmark: for each size, a synthetic program (qvt-bench-gen), then
#   copy     the IR round trip (qvt-ir-copy), the floor of any pass over the program;
#   export   qvt-stubber -drs-gen: read the program, write drs-template.xml;
#   readback qvt-stubber -drs-gen -drs-file drs-template.xml: read and check the whole
#            template against the schema, turn it into entries, write the template again.
# Prints CPU time per symbol and peak memory of each, the template's size, and the
# export's and the read-back's times over the copy's.
# Usage: bench/template_bench.sh [BUILD_DIR] (default: build); SIZES from the
# environment (default: "10000 100000").
set -euo pipefail
bench_name=template_bench
source "$(dirname "$0")/lib.sh"
gen="$build/bin/qvt-bench-gen"
copy="$build/bin/qvt-ir-copy"
stubber="$build/bin/qvt-stubber"
sizes="${SIZES:-10000 100000}"
require_tool "$gen" "$copy" "$stubber"

echo "Range template (CPU seconds a run; us/sym on CPU time)"
printf '  %8s %9s %8s %8s %8s %10s %10s %8s %8s %8s\n' \
  symbols xml_MB copy_s export_s read_s export_us read_us peak_MB x_copy x_read
cd "$work"
for n in $sizes; do
  "$gen" -symbols "$n" -out p.ir >/dev/null
  reps=$(( n >= 100000 ? 1 : (100000 + n - 1) / n ))
  measure "copy $n" "$copy" p.ir p.copy.ir
  copy_cpu=$cpu
  measure "export $n" "$stubber" -drs-gen p.ir p.out.ir
  export_cpu=$cpu
  export_peak=$peak
  cp drs-template.xml first.xml
  measure "readback $n" "$stubber" -drs-gen -drs-file first.xml p.ir p.out.ir
  read_cpu=$cpu
  cmp -s first.xml drs-template.xml || { echo "template_bench: the template read back differs" >&2; exit 1; }
  xml_mb=$(awk -v b="$(stat -c %s first.xml)" 'BEGIN { printf "%.1f", b / 1048576 }')
  peak_mb=$(( (peak > export_peak ? peak : export_peak) / 1024 ))
  printf '  %8d %9s %8s %8s %8s %10s %10s %8d %8s %8s\n' "$n" "$xml_mb" "$copy_cpu" "$export_cpu" "$read_cpu" \
    "$(per_unit "$export_cpu" "$n")" "$(per_unit "$read_cpu" "$n")" "$peak_mb" \
    "$(ratio "$export_cpu" "$copy_cpu")" "$(ratio "$read_cpu" "$copy_cpu")"
  rm -f p.ir p.copy.ir p.out.ir first.xml drs-template.xml
done
