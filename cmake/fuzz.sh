#!/usr/bin/env bash
# Builds a fuzz target with clang's address and undefined-behaviour sanitizers, and runs it for a bounded time.
#   cmake/fuzz.sh [SECONDS] [TARGET] [PRESET]
# 60 seconds of step_reader_fuzzer if not told otherwise, in the preset `fuzz`: there the host alone is instrumented and stands on
# the library of build/release. draw_fuzzer walks over models; it takes `fuzz-whole`, where all is instrumented, which takes several
# times as long to build.
# Exits other than 0 when an input makes it crash, hang, leak or take over 2 GB; that input lies in found/ of the build folder.
# Seeds are the files in Host/Fuzz/Seeds and, where they are there, the small models beside the repository. What earlier runs
# learned stays in corpus/ of the build folder.
set -euo pipefail

seconds=${1:-60}
target=${2:-step_reader_fuzzer}
default=fuzz
[[ $target == step_reader_fuzzer ]] || default=fuzz-whole
preset=${3:-$default}
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build/$preset

bash "$root/cmake/packages.sh" build fuzz
cd "$root"
if [[ $preset == fuzz ]]; then
  cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=Release > /dev/null
  cmake --build build/release --target Fc
fi
cmake --preset "$preset" > /dev/null
cmake --build "$build" --target "$target"

corpus=$build/corpus/$target
found=$build/found
mkdir -p "$corpus" "$found"
seeds=("$root/Host/Fuzz/Seeds")
for folder in features samples; do
  [[ -d $root/../shared/models/$folder ]] && seeds+=("$root/../shared/models/$folder")
done

# The reader takes any input at once; a cut may take the solid modeller long.
timeout=10
[[ $target == step_reader_fuzzer ]] || timeout=120

# The target ends a model with circles of references itself, so that every leak is one.
UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 LSAN_OPTIONS=suppressions="$root/Host/Fuzz/leaks.txt" \
  "$build/Host/Fuzz/$target" "$corpus" "${seeds[@]}" \
  -dict="$root/Host/Fuzz/step.dict" -max_len=65536 -timeout="$timeout" -rss_limit_mb=2048 \
  -artifact_prefix="$found/" -max_total_time="$seconds" -print_final_stats=1
