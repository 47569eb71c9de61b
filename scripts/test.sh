#!/usr/bin/env bash
# Sets up (packages, three builds) and runs every test: the optimised clang build, ASan + UBSan,
# and the optimised gcc build (its units and lit suite; fuzz targets need clang).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh --gcc
status=0
for dir in build build-asan build-gcc; do
  echo "== tests in $dir" >&2
  ctest --test-dir "$dir" --output-on-failure -j "$(nproc)" || status=1
done
exit $status
