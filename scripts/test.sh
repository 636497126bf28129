#!/usr/bin/env bash
# Builds everything and runs the test suites: once as built for use (build/),
# once more under AddressSanitizer and UndefinedBehaviorSanitizer
# (build-asan/). Then replays the fuzz regression cases and fuzzes each reader
# of outside text for 30 s (build-fuzz/).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
ctest --test-dir build --output-on-failure -j"$(nproc)"
scripts/sanitize.sh
scripts/fuzz.sh
