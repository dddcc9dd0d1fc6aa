#!/usr/bin/env bash
# Installs the validator that the tests show meshes to, npm's gltf-validator, into build/tools. Quick, and without the network,
# when it is there. Without it the test is skipped, so that what fails here is told and fails nothing else.
set -euo pipefail

version=2.0.0-dev.3.10
tools=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/tools

manifest=$tools/node_modules/gltf-validator/package.json
if [[ -r $manifest ]] && grep --quiet --fixed-strings "\"version\": \"$version\"" "$manifest"; then exit 0; fi

echo "Installing: gltf-validator $version" >&2
mkdir -p "$tools"
npm install --prefix "$tools" --no-save --no-audit --no-fund --loglevel=error "gltf-validator@$version" >&2 ||
  echo "gltf_validator.sh: it can't be installed; the test that needs it will be skipped" >&2
