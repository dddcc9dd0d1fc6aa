#!/usr/bin/env bash
# Installs the Debian packages that the project stands on. Quick, and without the network, when all are there.
#   cmake/packages.sh build         what building takes
#   cmake/packages.sh build test    what building and testing take
#   ... bench, ... fuzz             what benchmarks and fuzzing take beyond that
set -euo pipefail

build=(g++ cmake pkg-config ninja-build ccache mold
  libocct-foundation-dev libocct-modeling-data-dev libocct-modeling-algorithms-dev
  libocct-visualization-dev # holds a header that those of the modelling data include
  libtbb-dev libfmt-dev libcli11-dev nlohmann-json3-dev libpugixml-dev libpng-dev libzip-dev
  libglu1-mesa-dev libtinygltf-dev)
test=(libgtest-dev libgmock-dev)
command -v npm > /dev/null || test+=(npm) # for gltf_validator.sh; others than Debian's bring npm along with node
bench=(libbenchmark-dev)
fuzz=(clang libclang-rt-14-dev)

wanted=()
for group in "$@"; do
  case $group in
    build) wanted+=("${build[@]}") ;;
    test) wanted+=("${test[@]}") ;;
    bench) wanted+=("${bench[@]}") ;;
    fuzz) wanted+=("${fuzz[@]}") ;;
    *) echo "packages.sh: no group '$group'; there are: build, test, bench, fuzz" >&2; exit 2 ;;
  esac
done

if ! command -v dpkg-query > /dev/null; then
  echo "packages.sh: this is no Debian; going on in the hope that there is what these hold: ${wanted[*]}" >&2
  exit 0
fi

# dpkg-query fails when it doesn't know a package; what it does know it prints all the same.
installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "${wanted[@]}" 2> /dev/null || true)
missing=()
for package in "${wanted[@]}"; do
  grep --quiet --line-regexp --fixed-strings "installed $package" <<< "$installed" || missing+=("$package")
done
((${#missing[@]} > 0)) || exit 0

as_root=()
if ((EUID != 0)); then
  if ! command -v sudo > /dev/null; then
    echo "packages.sh: not root, and no sudo. As root, run: apt-get install ${missing[*]}" >&2
    exit 2
  fi
  as_root=(sudo)
fi

echo "Installing: ${missing[*]}" >&2
"${as_root[@]}" apt-get update --quiet >&2
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install --quiet --yes --no-install-recommends "${missing[@]}" >&2
