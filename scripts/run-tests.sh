#!/usr/bin/env bash
# Installs the dependencies, builds everything and runs the whole test suite twice: as built
# for use, and built with AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
export QT_QPA_PLATFORM=offscreen

cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j2
ctest --test-dir build --output-on-failure -j2

cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DKELVO_SANITIZE=ON
cmake --build build-asan -j2
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS="suppressions=$PWD/tests/sanitizers/lsan.supp:print_suppressions=0"
ctest --test-dir build-asan --output-on-failure -j2
