#!/usr/bin/env bash
# Builds the Debian package of Tallix in build-pkg/ (Release) and prints its
# path. --install-test then installs it on this machine, starts it on a
# virtual display and removes it again (needs root or sudo).
#
#   tools/package.sh [--install-test]
# TALLIX_PKG_JOBS sets the build's parallel jobs (default: all cores).
set -euo pipefail
cd "$(dirname "$0")/.."

install_test=no
case "${1:-}" in
  --install-test) install_test=yes ;;
  "") ;;
  *) echo "usage: tools/package.sh [--install-test]" >&2; exit 2 ;;
esac

# Only the package's path goes to stdout.
tools/install-deps.sh >&2
cmake -S . -B build-pkg -DCMAKE_BUILD_TYPE=Release -DTALLIX_BUILD_TESTS=OFF \
  -DCMAKE_INSTALL_PREFIX=/usr >&2
cmake --build build-pkg -j"${TALLIX_PKG_JOBS:-$(nproc)}" >&2
rm -f build-pkg/tallix_*.deb
(cd build-pkg && cpack -G DEB >cpack.log 2>&1) || { cat build-pkg/cpack.log >&2; exit 1; }
deb=$(realpath build-pkg/tallix_*.deb)

if [ "$install_test" = yes ]; then
  tests/package/install-test.sh "$deb" >&2
fi
echo "$deb"
