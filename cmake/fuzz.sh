#!/usr/bin/env bash
# Builds a fuzz target with address and undefined-behaviour sanitizers, and runs it for a bounded time.
#   cmake/fuzz.sh [SECONDS] [TARGET]    60 and step_reader_fuzzer by default; draw_fuzzer walks over models
# Exits other than 0 when an input makes it crash, hang, leak or take over 2 GB; that input lies in build/fuzz/found.
# Seeds are the files in Host/Fuzz/Seeds and, where they are there, the small models beside the repository. What earlier runs
# learned stays in build/fuzz/corpus.
set -euo pipefail

seconds=${1:-60}
target=${2:-step_reader_fuzzer}
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
if ! command -v clang++ > /dev/null; then
  echo "fuzz.sh: needs clang++ (cmake/packages.sh test installs it)" >&2
  exit 2
fi

cmake -S "$root" --preset fuzz -DFC_BUILD_EXAMPLES=OFF > /dev/null
cmake --build "$root/build/fuzz" --target "$target"

corpus=$root/build/fuzz/corpus/$target
found=$root/build/fuzz/found
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
  "$root/build/fuzz/Host/Fuzz/$target" "$corpus" "${seeds[@]}" \
  -dict="$root/Host/Fuzz/step.dict" -max_len=65536 -timeout="$timeout" -rss_limit_mb=2048 \
  -artifact_prefix="$found/" -max_total_time="$seconds" -print_final_stats=1
