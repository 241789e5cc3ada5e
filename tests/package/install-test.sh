#!/usr/bin/env bash
# Lints the Debian package (lintian, AppStream metadata, menu entry), installs
# it on this machine, checks what landed, starts the installed program on a
# virtual X display twice (once closing itself, once closed by a real click on
# its close button) and removes the package and anything its installation
# pulled in, leaving the package set as it was.
# Needs root or sudo; changes the machine while it runs.
#
#   tests/package/install-test.sh <tallix_VERSION_ARCH.deb>
set -euo pipefail
deb=$(realpath "$1")
here=$(cd "$(dirname "$0")" && pwd)

if [ "$(id -u)" -eq 0 ]; then SUDO=(); else SUDO=(sudo); fi
export DEBIAN_FRONTEND=noninteractive
for tool in Xvfb xdotool lintian appstreamcli desktop-file-validate; do
  command -v "$tool" >/dev/null || { echo "install-test: $tool is missing (tools/install-deps.sh)" >&2; exit 1; }
done
if dpkg-query -W -f='${Status}' tallix 2>/dev/null | grep -q "ok installed"; then
  echo "install-test: tallix is installed already; remove it first" >&2
  exit 1
fi

work=$(mktemp -d)
installed_packages() { dpkg-query -W -f='${db:Status-Abbrev} ${Package}:${Architecture}\n' | awk '$1 == "ii" { print $2 }' | sort; }
installed_packages >"$work/packages.before"

. "$here/../shell/XvfbSession.sh"
# Removes the package and whatever its installation added besides it.
restore() {
  if dpkg-query -W -f='${Status}' tallix 2>/dev/null | grep -q "ok installed"; then
    "${SUDO[@]}" apt-get remove -y -q tallix >>"$work/remove.log" 2>&1 || return 1
  fi
  installed_packages | comm -13 "$work/packages.before" - >"$work/added"
  if [ -s "$work/added" ]; then
    "${SUDO[@]}" apt-get remove -y -q $(cat "$work/added") >>"$work/remove.log" 2>&1 || return 1
  fi
}
cleanup() {
  stop_session
  restore || cat "$work/remove.log" >&2
  rm -rf "$work"
}
trap cleanup EXIT
fail() {
  echo "install-test: $*" >&2
  [ -s "$work/tallix.log" ] && { echo "--- program output:" >&2; cat "$work/tallix.log" >&2; }
  exit 1
}

# The control fields the desktop needs: the display plugins and fonts.
depends=$(dpkg-deb -f "$deb" Depends)
for p in qt6-qpa-plugins fonts-noto-cjk libqt6widgets6 libavcodec; do
  grep -q "$p" <<<"$depends" || fail "Depends lacks $p: $depends"
done

# Debian's own checks, on the package as it stands: any error or warning of
# lintian, and any finding of the AppStream and menu entry validators, fails.
lintian --fail-on error,warning "$deb" >"$work/lintian.log" 2>&1 ||
  { cat "$work/lintian.log" >&2; fail "lintian found the above"; }
dpkg-deb -x "$deb" "$work/tree"
metainfo=$(find "$work/tree/usr/share/metainfo" -name '*.metainfo.xml' 2>/dev/null || true)
[ "$(wc -w <<<"$metainfo")" = 1 ] || fail "not one AppStream metainfo file: ${metainfo:-none}"
# Software centres show the screenshots the README shows.
for shot in $(grep -o 'docs/[A-Za-z0-9_-]*\.png' "$here/../../README.md" | sort -u); do
  grep -q "/$shot</image>" "$metainfo" || fail "the metainfo lacks the README's screenshot $shot"
done
# The whole tree, so that the metadata is checked against the menu entry and
# icon it names.
appstreamcli validate-tree --no-net --pedantic --strict "$work/tree" >"$work/appstream.log" 2>&1 &&
  ! grep -qE '^ *[EWIP]: ' "$work/appstream.log" ||
  { cat "$work/appstream.log" >&2; fail "the AppStream metadata is not clean"; }
for entry in "$work"/tree/usr/share/applications/*.desktop; do
  findings=$(desktop-file-validate "$entry" 2>&1) && [ -z "$findings" ] ||
    fail "the menu entry $(basename "$entry") is not clean: $findings"
done

"${SUDO[@]}" apt-get install -y -q "$deb" >"$work/install.log" 2>&1 ||
  { cat "$work/install.log" >&2; fail "apt-get install failed"; }

dpkg -L tallix >"$work/files"
for f in /usr/bin/tallix /usr/lib/tallix/tallix /usr/lib/tallix/Tallix_Style.css \
         /usr/lib/tallix/Language.xml /usr/lib/tallix/Lang_en.xml /usr/lib/tallix/Lang_cn.xml \
         /usr/lib/tallix/1low.kvf /usr/lib/tallix/1medium.kvf /usr/lib/tallix/1high.kvf \
         /usr/lib/tallix/Bin/Skin/tallix.png \
         /usr/share/applications/tallix.desktop \
         /usr/share/icons/hicolor/256x256/apps/tallix.png \
         /usr/bin/tallix-plan /usr/lib/tallix/tallix-plan; do
  grep -qx "$f" "$work/files" || fail "the package does not list $f"
  [ -e "$f" ] || fail "$f is listed but missing"
done
skins=$(grep -c '^/usr/lib/tallix/Bin/Skin/.*\.png$' "$work/files")
[ "$skins" -gt 50 ] || fail "only $skins skin images installed"
[ "$(readlink /usr/bin/tallix)" = ../lib/tallix/tallix ] || fail "/usr/bin/tallix is not a link into /usr/lib/tallix"
[ "$(readlink /usr/bin/tallix-plan)" = ../lib/tallix/tallix-plan ] ||
  fail "/usr/bin/tallix-plan is not a link into /usr/lib/tallix"
unreadable=$(find /usr/lib/tallix ! -perm -o+r | head -n3)
[ -z "$unreadable" ] || fail "not readable by every user: $unreadable"
grep -qx 'Exec="/usr/bin/tallix"' /usr/share/applications/tallix.desktop ||
  fail "the menu entry does not start /usr/bin/tallix: $(grep '^Exec' /usr/share/applications/tallix.desktop)"

# The command-line planner, through its link, without a display: it must
# find the dictionaries beside its real path and answer as the window does.
printf 'channels,compression,scene,resolution,fps,audio\n1,H.264,0,D1,60,off\n' >"$work/site.csv"
plan_out=$(env -u DISPLAY /usr/bin/tallix-plan --days 7 --lang cn "$work/site.csv" 2>&1) ||
  fail "tallix-plan failed: $plan_out"
[ "$plan_out" = "$(printf '合计 1 通道数, 2048.00 kbps\n所需容量： 147.66GB')" ] ||
  fail "tallix-plan printed: $plan_out"
if ldd /usr/lib/tallix/tallix-plan | grep -q libQt; then fail "tallix-plan links Qt"; fi
for page in tallix tallix-plan; do
  [ "$(man -w "$page" 2>/dev/null)" = "/usr/share/man/man1/$page.1.gz" ] || fail "no manual page $page(1)"
done

start_xvfb 1400x900x24 || fail "no X display"

# Through the link in /usr/bin: the program finds its data beside its real
# path, or its window would lack its title and skin.
TALLIX_EXIT_AFTER_START=1 start_tallix /usr/bin
wait_exit 30
[ "$app_rc" = 0 ] || fail "with TALLIX_EXIT_AFTER_START=1 it ended with $app_rc, not 0"
[ ! -s "$work/tallix.log" ] || fail "it printed something"

start_tallix /usr/bin
wid=$(wait_window "Tallix Storage Planner" 30) || true
[ -n "$wid" ] || fail "no window named Tallix Storage Planner"
eval "$(xdotool getwindowgeometry --shell "$wid")"
[ "$WIDTH" = 1100 ] && [ "$HEIGHT" = 750 ] || fail "window is ${WIDTH}x$HEIGHT, not 1100x750"
sleep 0.5
# The close button, 1069, 8 to 1096, 32, clicked in its middle.
xdotool mousemove --window "$wid" 1082 20 click 1
wait_exit 20
[ "$app_rc" = 0 ] || fail "exit code $app_rc after the close button, not 0"
[ ! -s "$work/tallix.log" ] || fail "it printed something"
stop_session

restore || { cat "$work/remove.log" >&2; fail "apt-get remove failed"; }
[ ! -e /usr/lib/tallix ] && [ ! -e /usr/bin/tallix ] && [ ! -e /usr/bin/tallix-plan ] &&
  [ ! -e /usr/share/applications/tallix.desktop ] ||
  fail "files left behind after removal"
installed_packages | diff "$work/packages.before" - >&2 || fail "the installed packages differ from before"
echo "installed, ran tallix-plan once, started twice from /usr/bin/tallix (closed itself, closed by its button), removed"
