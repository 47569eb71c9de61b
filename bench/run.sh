#!/usr/bin/env bash
# Runs every benchmark script bench/*_bench.sh in turn with the build
# directory given (default: build), and prints the machine first.
# Usage: bench/run.sh [BUILD_DIR]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:-$root/build}"
echo "date: $(date -u '+%Y-%m-%d %H:%M UTC')"
echo "cores: $(nproc)"
lscpu | grep -E '^(Model name|CPU\(s\)|Thread)' || true
status=0
for script in "$root"/bench/*_bench.sh; do
  echo
  echo "== $(basename "$script")"
  "$script" "$build" || status=1
done
exit $status
