#!/usr/bin/env bash
# Sets up (packages, optimised build) and runs the main job on the bundled example.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh --no-asan
bin=build/bin
out=build/example
rm -rf "$out"; mkdir -p "$out"
"$bin/qvt-example-ir" "$out/example.ir"
"$bin/qvt-irdump" "$out/example.ir"
