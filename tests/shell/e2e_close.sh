#!/usr/bin/env bash
# The real program on a virtual X display: its window comes up at 1100 by 750,
# centred and painted; a real click on the toolbar's close button ends it
# with exit code 0; it has printed nothing and changed nothing in its
# directory.
#
#   e2e_close.sh <application directory> <tallix_xgrab>
set -euo pipefail
app_src=$1
grab=$2
for tool in Xvfb xdotool; do
  command -v "$tool" >/dev/null || { echo "skipped: $tool is not installed"; exit 77; }
done

work=$(mktemp -d)
. "$(dirname "$0")/XvfbSession.sh"
trap 'stop_session; rm -rf "$work"' EXIT
fail() {
  echo "e2e_close: $*" >&2
  [ -s "$work/tallix.log" ] && { echo "--- program output:" >&2; cat "$work/tallix.log" >&2; }
  exit 1
}

# A copy, so that anything written there can be seen.
cp -a "$app_src" "$work/app"
listing() { (cd "$work/app" && find . -printf '%p %s %T@\n' | sort); }
listing >"$work/before"

start_xvfb 1400x900x24 || fail "no X display"
start_tallix "$work/app"
wid=$(wait_window "Tallix Storage Planner" 30) || true
[ -n "$wid" ] || fail "no window named Tallix Storage Planner"

eval "$(xdotool getwindowgeometry --shell "$wid")"
[ "$WIDTH" = 1100 ] && [ "$HEIGHT" = 750 ] || fail "window is ${WIDTH}x$HEIGHT, not 1100x750"
# Without a window manager the work area is the whole 1400 by 900 screen.
[ "$X" = 150 ] && [ "$Y" = 75 ] || fail "window at $X,$Y, not centred at 150,75"

# Painted: a dark toolbar over a light page.
brightness() { local c=$1; echo $(( (16#${c:1:2} + 16#${c:3:2} + 16#${c:5:2}) / 3 )); }
painted=
for _ in $(seq 50); do
  mapfile -t colours < <("$grab" "$wid" "$work/window.png" 600,30 8,745 2>/dev/null || true)
  if [ "${#colours[@]}" = 2 ] && [ "${colours[0]}" != none ] &&
     [ "$(brightness "${colours[0]}")" -lt 80 ] && [ "$(brightness "${colours[1]}")" -gt 200 ]; then
    painted=yes
    break
  fi
  sleep 0.1
done
[ -n "$painted" ] || fail "the window does not show its skin (toolbar ${colours[0]:-?}, page ${colours[1]:-?})"

# The day spinner's skinned arrows, as the README's picture shows them; the
# platform's own darker arrows there mean its sheet was lost.
mapfile -t arrows < <("$grab" "$wid" - 357,580 357,598 2>/dev/null || true)
[ "${arrows[0]:-}" = "#646970" ] && [ "${arrows[1]:-}" = "#85898e" ] ||
  fail "the day spinner lost its skin (arrows ${arrows[0]:-?}, ${arrows[1]:-?})"

# The close button, 1069, 8 to 1096, 32, clicked in its middle.
xdotool mousemove --window "$wid" 1082 20 click 1
wait_exit 20
[ "$app_rc" = 0 ] || fail "exit code $app_rc after the close button, not 0"

listing >"$work/after"
diff -u "$work/before" "$work/after" >&2 || fail "the program changed its directory"
[ ! -s "$work/tallix.log" ] || fail "the program printed something on a normal run"
echo "closed by its button, exit code 0, nothing written or printed"
