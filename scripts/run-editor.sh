#!/usr/bin/env bash
# Installs the dependencies, builds everything and starts the program on the demo project.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j2
# Until the desktop editor is built, the command-line tool shows the demo windows' widgets.
for window in examples/demo/main.xml examples/demo/pumps.xml examples/demo/trends.xml; do
    echo "== $window"
    build/bin/kelvo-hmi list "$window"
done
