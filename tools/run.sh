#!/usr/bin/env bash
# Installs what is missing, builds Tallix and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "Tallix needs a graphical display and none is set (DISPLAY and WAYLAND_DISPLAY are empty); to run it without one, use a virtual display: tools/install-deps.sh && xvfb-run -a tools/run.sh" >&2
  exit 1
fi

tools/install-deps.sh
cmake -S . -B build-release -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTALLIX_BUILD_TESTS=OFF
cmake --build build-release -j"$(nproc)" --target tallix
exec build-release/app/tallix "$@"
