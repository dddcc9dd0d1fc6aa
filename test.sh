#!/usr/bin/env bash
# Builds everything and runs all tests; ends with ctest's own summary.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
bash cmake/packages.sh build test
bash cmake/gltf_validator.sh
cmake --preset release
cmake --build --preset release
ctest --test-dir build/release --output-on-failure --parallel "$(nproc)"
