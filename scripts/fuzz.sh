#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each for the given number of seconds
# (default 60), one after the other. Inputs that crash or hang a target are saved in
# fuzz/regressions/<target>/, which the normal test suite replays; new coverage goes to a
# working corpus in build-fuzz/, seeded from fuzz/corpus/<target>/.
#   bash scripts/fuzz.sh [SECONDS] [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
shift || true
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    targets=(windowfile numberparsers projectargument windowlist rtdb hmidb history datalog evaluator expression)
fi

bash scripts/install-deps.sh
if ! command -v clang++ >/dev/null; then
    ${SUDO:-} apt-get install -y -qq --no-install-recommends clang >/dev/null
fi

CC=clang CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKELVO_FUZZ=ON \
    -DKELVO_BUILD_TESTS=OFF >/dev/null
cmake --build build-fuzz -j2 --target $(printf 'fuzz-%s ' "${targets[@]}")

export ASAN_OPTIONS=detect_leaks=1
export LSAN_OPTIONS="suppressions=$PWD/tests/sanitizers/lsan.supp:print_suppressions=0"
for target in "${targets[@]}"; do
    corpus=build-fuzz/corpus/$target
    regressions=fuzz/regressions/$target
    mkdir -p "$corpus" "$regressions"
    echo "== $target, $seconds s"
    build-fuzz/bin/fuzz-"$target" "$corpus" fuzz/corpus/"$target" -max_total_time="$seconds" -timeout=10 \
        -rss_limit_mb=2048 -max_len=65536 -artifact_prefix="$regressions/" -print_final_stats=1 2>&1 |
        grep -E "^(stat::number_of_executed_units|stat::new_units_added|==|SUMMARY|artifact_prefix)|Done" || true
done
