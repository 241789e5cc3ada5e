#!/usr/bin/env bash
# Installs what is missing, builds Tallix with its tests and runs them all.
# TALLIX_SANITIZE=1 builds and tests with AddressSanitizer and UBSan instead.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/install-deps.sh

build=build
sanitize=OFF
if [ "${TALLIX_SANITIZE:-0}" = "1" ]; then
  build=build-sanitize
  sanitize=ON
fi

cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Debug -DTALLIX_SANITIZE="$sanitize"
cmake --build "$build" -j"$(nproc)"
ctest --test-dir "$build" --output-on-failure -j"$(nproc)"
