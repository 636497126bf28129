#!/usr/bin/env bash
# Builds everything and runs the test suites.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
ctest --test-dir build --output-on-failure -j"$(nproc)"
