#!/usr/bin/env bash
# Installs the dependencies, builds everything and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j2
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j2
