#!/usr/bin/env bash
# Builds everything with AddressSanitizer and UndefinedBehaviorSanitizer into
# build-asan/ and runs the test suites there. Any finding (a bad memory
# access, a leak, undefined behaviour) stops the program and fails the run.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DHULLKIT_SANITIZE=ON >/dev/null
cmake --build build-asan -j"$(nproc)"
export ASAN_OPTIONS="halt_on_error=1:abort_on_error=1:detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1:check_initialization_order=1:strict_init_order=1"
export UBSAN_OPTIONS="halt_on_error=1:abort_on_error=1:print_stacktrace=1"
ctest --test-dir build-asan --output-on-failure -j"$(nproc)"
