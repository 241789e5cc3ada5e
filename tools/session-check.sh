#!/usr/bin/env bash
# Runs the whole user session under its three instruments: AddressSanitizer
# with UndefinedBehaviorSanitizer (build-sanitize/), then valgrind memcheck
# and the no-writes check under strace (build/). Builds what is missing.
# Run tools/install-deps.sh first.
#
#   tools/session-check.sh
#
# TALLIX_SANITIZE_BUILD and TALLIX_BUILD name other build directories.
set -euo pipefail
cd "$(dirname "$0")/.."

san_build=${TALLIX_SANITIZE_BUILD:-build-sanitize}
build=${TALLIX_BUILD:-build}
jobs=$(nproc)

cmake -S . -B "$san_build" -DCMAKE_BUILD_TYPE=Debug -DTALLIX_SANITIZE=ON >/dev/null
cmake --build "$san_build" -j"$jobs" --target tallix_session
ctest --test-dir "$san_build" --output-on-failure -R '^session$'

cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Debug -DTALLIX_SANITIZE=OFF >/dev/null
cmake --build "$build" -j"$jobs" --target tallix_session
ctest --test-dir "$build" --output-on-failure -R '^session_(valgrind|no_writes)$'
