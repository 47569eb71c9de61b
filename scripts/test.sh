#!/usr/bin/env bash
# Sets up (packages, both builds) and runs every test: the optimised build, then ASan + UBSan.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
status=0
for dir in build build-asan; do
  echo "== tests in $dir" >&2
  ctest --test-dir "$dir" --output-on-failure -j "$(nproc)" || status=1
done
exit $status
