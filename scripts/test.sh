#!/usr/bin/env bash
# Builds everything and runs the test suites: once as built for use (build/),
# once more under AddressSanitizer and UndefinedBehaviorSanitizer
# (build-asan/).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
ctest --test-dir build --output-on-failure -j"$(nproc)"
scripts/sanitize.sh
