#!/usr/bin/env bash
# Sets up (packages, optimised build) and runs the main job on the bundled example:
# the C sources of examples/ through the front end, the dump of the program, then the stub mode
# that closes it, with every generated file compiled by gcc and clang; then the same for the
# library of examples/library, which gets a generated main.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh --no-asan
bin=build/bin
out=build/example
rm -rf "$out"; mkdir -p "$out"
# The front end links the example program of examples/ into one IR file.
(cd examples && "../$bin/qvt-cfront" main.c sensor.c bus.c -o "../$out/example.ir")
"$bin/qvt-irdump" "$out/example.ir"
# The stub mode closes the program: a stub for every undefined function, the type header, the
# entry point and the user skeleton; its report goes to the standard error stream. The ranges of
# examples/ranges.txt and of the pragma in sensor.c bound what the stubs give back; the range
# template drs-template.xml lands in $out.
mkdir -p "$out/stubs"
status=0
top=$PWD
(cd "$out" && "$top/$bin/qvt-stubber" -stubber -drs-gen -drs-file "$top/examples/ranges.txt" \
  -stubs-dir stubs example.ir example.out.ir) 2>"$out/stubber.txt" || status=$?
cat "$out/stubber.txt" >&2
# Every generated file compiles with gcc and clang, the support header forced in.
for f in "$out"/stubs/*.c; do
  gcc -fsyntax-only -std=gnu11 -ffreestanding -Itarget -include target/qvt_target.h -w "$f"
  clang-14 -fsyntax-only -std=gnu11 -ffreestanding -Itarget -include target/qvt_target.h -w "$f"
done
echo "Generated in $out/stubs (stub mode exit status $status), all compiled with gcc and clang:"
ls -l "$out/stubs"
echo "Stubs by kind:"
grep -h '^\* Function' "$out/stubber.txt" | sed 's/^\* Function [^ ]* //' | sort | uniq -c

# A library has no main of its own: the main generator writes one that initialises its globals
# and calls every function that nothing else calls, in a loop (examples/library).
lib=build/example/library
mkdir -p "$lib/stubs"
(cd examples/library && "../../$bin/qvt-cfront" queue.c drain.c -o "../../$lib/library.ir")
lib_status=0
"$bin/qvt-stubber" -stubber -main-generator -stubs-dir "$lib/stubs" "$lib/library.ir" "$lib/library.out.ir" \
  2>"$lib/stubber.txt" || lib_status=$?
cat "$lib/stubber.txt" >&2
# The generated main compiles beside the stubs, freestanding (its main is void main(void)).
for f in "$lib"/stubs/*.c; do
  gcc -fsyntax-only -std=gnu11 -ffreestanding -Itarget -include target/qvt_target.h -w "$f"
  clang-14 -fsyntax-only -std=gnu11 -ffreestanding -Itarget -include target/qvt_target.h -w "$f"
done
echo "Library closed in $lib/stubs (stub mode exit status $lib_status), all compiled with gcc and clang:"
ls -l "$lib/stubs"
