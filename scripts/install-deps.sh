#!/usr/bin/env bash
# Installs the Debian packages the build needs, if any are missing.
set -euo pipefail

# clang and its runtimes (libFuzzer, the sanitizers) build the fuzz targets.
packages=(build-essential cmake googletest libgtest-dev libgmock-dev libbenchmark-dev
          libtsl-ordered-map-dev libcli11-dev nlohmann-json3-dev clang libclang-rt-dev
          libxml2-dev  # the tests read the SVG the host writes
          time)  # /usr/bin/time measures the demo mission

missing=()
for p in "${packages[@]}"; do
    dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq "${missing[@]}"
