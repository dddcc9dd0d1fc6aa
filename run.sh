#!/usr/bin/env bash
# Builds fctool and runs it on a model: what is in it, its tree, its properties, the model written back to out/, and a mesh
# and a picture of it there.
#   ./run.sh              on the small model that the repository carries
#   ./run.sh model.ifc    on yours
# Exits as fctool does: 0, 1 (the file has problems, all reported) or 2 (it can't be done).
set -euo pipefail

if (($# > 1)); then
  echo "usage: $0 [model.ifc]" >&2
  exit 2
fi
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
model=${1:-$root/Examples/sample.ifc}
if [[ ! -r $model ]]; then
  echo "run.sh: can't read '$model'" >&2
  exit 2
fi

# Standard output is for what fctool tells.
bash "$root/cmake/packages.sh" build
cmake -S "$root" -B "$root/build/release" -G Ninja -DCMAKE_BUILD_TYPE=Release >&2 # whether tests are built stays as it is
cmake --build "$root/build/release" --target fctool >&2

worst=0
fctool() {
  local code=0
  "$root/build/release/Host/Cli/fctool" "$@" || code=$?
  ((code < 2)) || exit "$code"
  ((code <= worst)) || worst=$code
}

mkdir -p "$root/out"
written=$root/out/$(basename "$model")
fctool info "$model"
fctool tree "$model"
fctool properties "$model"
fctool convert "$model" "$written"
fctool draw "$model" -o "${written%.*}.glb" -o "${written%.*}.png"
exit "$worst"
