# Sourced by the scripts that run the real program on a virtual X display.
# Needs $work, a scratch directory the caller removes.

# Starts Xvfb on a display number it picks itself; exports DISPLAY and a
# private XDG_RUNTIME_DIR, as a desktop session would have them.
start_xvfb() {
  mkdir -p -m 700 "$work/runtime"
  export XDG_RUNTIME_DIR="$work/runtime"
  Xvfb -displayfd 3 -screen 0 "$1" -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
  xvfb_pid=$!
  for _ in $(seq 100); do
    [ -s "$work/display" ] && break
    sleep 0.1
  done
  if [ ! -s "$work/display" ]; then
    echo "Xvfb did not start:" >&2
    cat "$work/xvfb.log" >&2
    return 1
  fi
  export DISPLAY=":$(head -n1 "$work/display")"
}

# Starts the program of the given application directory from /, as a user
# would, and sets app_pid.
start_tallix() {
  local supp
  supp="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/lsan.supp"
  (cd / && exec env QT_QPA_PLATFORM=xcb \
     LSAN_OPTIONS="suppressions=$supp:print_suppressions=0${LSAN_OPTIONS:+:$LSAN_OPTIONS}" \
     "$1/tallix" >"$work/tallix.log" 2>&1) &
  app_pid=$!
}

# Waits up to $2 seconds for a visible window named exactly $1; prints its id.
wait_window() {
  timeout "$2" xdotool search --sync --onlyvisible --name "^$1\$" | head -n1
}

# Waits up to $1 seconds for the program to end; sets app_rc.
wait_exit() {
  for _ in $(seq $(($1 * 10))); do
    kill -0 "$app_pid" 2>/dev/null || break
    sleep 0.1
  done
  if kill -0 "$app_pid" 2>/dev/null; then
    app_rc=timeout
    return
  fi
  set +e
  wait "$app_pid"
  app_rc=$?
  set -e
  app_pid=
}

stop_session() {
  local pid
  # A killed process's wait fails; under set -e that must not end the cleanup.
  for pid in ${app_pid:-} ${xvfb_pid:-}; do
    { kill "$pid" && wait "$pid"; } 2>/dev/null || true
  done
  return 0
}
