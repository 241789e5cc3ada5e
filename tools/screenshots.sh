#!/usr/bin/env bash
# Rebuilds Tallix and takes the pictures the README shows, on a virtual X
# display of 1400 by 900 (no desktop needed):
#   docs/main-window.png    the real program's window
#   docs/about-dialog.png   its About dialog, opened by a click on the toolbar
#   docs/message-dialog.png the message box, shown over the main window by
#                           the shell's tests (no page of the program opens it)
#
#   tools/screenshots.sh [build directory]     default: build
# TALLIX_SHOTS_BUILD_JOBS sets the build's parallel jobs (default: all cores).
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath -m "${1:-build}")

tools/install-deps.sh
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Debug
cmake --build "$build" -j"${TALLIX_SHOTS_BUILD_JOBS:-$(nproc)}" \
  --target tallix tallix_xgrab shell_window_tests
app=$build/app
grab=$(find "$build/tests/shell" -maxdepth 1 -name tallix_xgrab -type f | head -n1)
tests=$(find "$build/tests/shell" -maxdepth 1 -name shell_window_tests -type f | head -n1)

work=$(mktemp -d)
. tests/shell/XvfbSession.sh
trap 'stop_session; rm -rf "$work"' EXIT
fail() {
  echo "screenshots: $*" >&2
  [ -s "$work/tallix.log" ] && cat "$work/tallix.log" >&2
  exit 1
}
mkdir -p docs

start_xvfb 1400x900x24
start_tallix "$app"
main=$(wait_window "Tallix Storage Planner" 30) || true
[ -n "$main" ] || fail "the main window did not come up"
# The pointer off every window, so that no button shows its hover face.
xdotool mousemove 2 2
sleep 1
"$grab" "$main" docs/main-window.png

# About: the toolbar's first button, 1012, 8 to 1036, 32.
xdotool mousemove --window "$main" 1024 20 click 1
xdotool mousemove 2 2
about=
for _ in $(seq 100); do
  about=$(xdotool search --onlyvisible --pid "$app_pid" 2>/dev/null | grep -vx "$main" | head -n1) || true
  [ -n "$about" ] && break
  sleep 0.1
done
[ -n "$about" ] || fail "the About dialog did not come up"
sleep 1
"$grab" "$about" docs/about-dialog.png
# Its close button, 338, 2 to 362, 26; then the main window's, 1069, 8 to 1096, 32.
xdotool mousemove --window "$about" 349 14 click 1
sleep 0.5
xdotool mousemove --window "$main" 1082 20 click 1
wait_exit 20
[ "$app_rc" = 0 ] || fail "the program ended with $app_rc"

mkdir -p "$work/shots"
env QT_QPA_PLATFORM=xcb TALLIX_SHOT_DIR="$work/shots" \
  "$tests" --gtest_filter=MessageDialog.OpensOverItsParentWindow >"$work/tests.log" 2>&1 ||
  { cat "$work/tests.log" >&2; fail "the message dialog test failed"; }
cp "$work/shots/message-dialog.png" docs/message-dialog.png
echo "docs/main-window.png docs/about-dialog.png docs/message-dialog.png"
