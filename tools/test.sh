#!/usr/bin/env bash
# Installs what is missing, builds Tallix with its tests and runs them all:
#   0. the layer check (tools/check-layers.py) and the format check
#      (tools/format.sh --check), before anything is built;
#   1. the test suite in build/ (Debug, warnings as errors), the valgrind and
#      no-writes session included;
#   2. the scripted user session under AddressSanitizer and UBSan;
#   3. every fuzz target for TALLIX_FUZZ_SECONDS seconds (default 60);
#   4. the Debian package: built, installed, started and removed again
#      (needs root or sudo, as the install script does).
# TALLIX_SANITIZE=1 builds and tests the whole suite with the sanitizers
# instead, in build-sanitize/, and stops there. TALLIX_QUICK=1 stops after 1.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/install-deps.sh

echo "== layers and format"
python3 tools/check-layers.py
tools/format.sh --check

build=build
sanitize=OFF
if [ "${TALLIX_SANITIZE:-0}" = "1" ]; then
  build=build-sanitize
  sanitize=ON
fi

cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Debug -DTALLIX_SANITIZE="$sanitize" -DTALLIX_WERROR=ON
cmake --build "$build" -j"$(nproc)"
ctest --test-dir "$build" --output-on-failure -j"$(nproc)"

if [ "$sanitize" = ON ] || [ "${TALLIX_QUICK:-0}" = "1" ]; then
  exit 0
fi

echo "== the user session under AddressSanitizer and UBSan"
cmake -S . -B build-sanitize -DCMAKE_BUILD_TYPE=Debug -DTALLIX_SANITIZE=ON -DTALLIX_WERROR=ON >/dev/null
cmake --build build-sanitize -j"$(nproc)" --target tallix_session
ctest --test-dir build-sanitize --output-on-failure -R '^session$'

echo "== fuzz targets, ${TALLIX_FUZZ_SECONDS:-60} s each"
tools/fuzz.sh

echo "== the Debian package, installed and started"
tools/package.sh --install-test >/dev/null
