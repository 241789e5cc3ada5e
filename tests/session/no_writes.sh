#!/usr/bin/env bash
# Runs the session under strace and fails if it tried to write anywhere: an
# open for writing, creating or truncating, or any create, rename, link,
# truncate, remove or mkdir call, whether it succeeded or not.
#
#   no_writes.sh <strace> <tallix_session> [session options...]
#
# The session gets what a desktop session gives a user: a fresh home and a
# private runtime directory that exists (without one, Qt makes
# /tmp/runtime-<user> itself). The log lies in a directory the session is
# not told about, and strace, not the session, writes it.
set -euo pipefail
strace=$1
session=$2
shift 2

log_dir=$(mktemp -d)
home=$(mktemp -d)
trap 'rm -rf "$log_dir" "$home"' EXIT
mkdir -m 700 "$home/runtime"

calls=open,openat,openat2,creat,rename,renameat,renameat2,unlink,unlinkat,rmdir,mkdir,mkdirat
calls=$calls,truncate,ftruncate,link,linkat,symlink,symlinkat

set +e
# No session bus either, as on a bare X server: none may be started for it.
(cd / && env -u DBUS_SESSION_BUS_ADDRESS HOME="$home" XDG_RUNTIME_DIR="$home/runtime" \
   "$strace" -f -qq -e signal=none -o "$log_dir/trace" -e trace="$calls" "$session" "$@")
rc=$?
set -e
if [ "$rc" -ne 0 ]; then
  echo "no_writes: the session failed (exit code $rc)" >&2
  exit 1
fi

# One call per line, "pid name(args) = result". A call that another thread's
# cut in two is joined again: "<unfinished ...>", later "<... name resumed>".
# Qt makes sure the runtime directory exists by a mkdir at every start; one
# that finds the directory there (EEXIST) creates nothing.
writes=$(awk '
  function check(line, call) {
    call = line
    sub(/^[0-9]+ +/, "", call)
    sub(/\(.*/, "", call)
    if (call ~ /^open/) {
      if (line ~ /O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND|O_TMPFILE/)
        print line
    } else if (!(call ~ /^mkdir/ && line ~ /= -1 EEXIST/)) {
      print line
    }
  }
  $2 == "<..." { check(pending[$1] " " $0); delete pending[$1]; next }
  $2 !~ /^[a-z0-9_]+\(/ { next }
  /<unfinished \.\.\.>$/ { pending[$1] = $0; next }
  { check($0) }
  END { for (pid in pending) check(pending[pid]) }' "$log_dir/trace")

opens=$(grep -c 'open' "$log_dir/trace" || true)
if [ -n "$writes" ]; then
  echo "no_writes: the session tried to write:" >&2
  echo "$writes" >&2
  exit 1
fi
echo "no_writes: $opens opens, all for reading; nothing created, renamed or removed"
