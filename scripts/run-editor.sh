#!/usr/bin/env bash
# Installs the dependencies, builds everything and starts the editor on the demo project.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh --editor
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j2
exec build/bin/kelvo-hmi-editor "$@"
