#!/usr/bin/env bash
# Installs every Debian package that building, testing and running Tallix need.
# Safe to run again: apt-get skips what is already there.
set -euo pipefail

PACKAGES=(
  build-essential cmake pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-qpa-plugins libqt6test6
  libgl-dev
  libtinyxml-dev
  libboost-dev
  libavformat-dev libavcodec-dev libavutil-dev libswscale-dev ffmpeg
  libgtest-dev libgmock-dev googletest
  xvfb xauth xdotool
  fonts-noto-cjk fonts-dejavu-core
  clang libclang-rt-14-dev clang-format clang-tidy python3
  valgrind strace
  dpkg-dev file lintian appstream desktop-file-utils
)

if [ "$(id -u)" -eq 0 ]; then
  SUDO=()
elif command -v sudo >/dev/null 2>&1; then
  SUDO=(sudo)
else
  echo "tools/install-deps.sh: run as root or install sudo." >&2
  exit 1
fi

missing=()
for p in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

export DEBIAN_FRONTEND=noninteractive
# A fresh image ships without package lists; fetch them once.
if [ -z "$(ls -A /var/lib/apt/lists 2>/dev/null | grep -v -e '^lock$' -e '^partial$' -e '^auxfiles$')" ]; then
  "${SUDO[@]}" apt-get update
fi
if ! "${SUDO[@]}" apt-get install -y --no-install-recommends "${missing[@]}"; then
  # Stale lists: refresh and try once more.
  "${SUDO[@]}" apt-get update
  "${SUDO[@]}" apt-get install -y --no-install-recommends "${missing[@]}"
fi
