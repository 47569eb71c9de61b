#!/usr/bin/env bash
# Sets up (packages, optimised build) and runs the main job on the bundled example:
# the C sources of examples/ through the front end, then the dump of the program.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh --no-asan
bin=build/bin
out=build/example
rm -rf "$out"; mkdir -p "$out"
# The front end links the example program of examples/ into one IR file.
(cd examples && "../$bin/qvt-cfront" main.c sensor.c bus.c -o "../$out/example.ir")
"$bin/qvt-irdump" "$out/example.ir"
