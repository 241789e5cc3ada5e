#!/usr/bin/env bash
# Formats the tracked C++ sources with the house style (.clang-format).
#   tools/format.sh           rewrites the files in place
#   tools/format.sh --check   changes nothing; lists the files that differ and fails
# CLANG_FORMAT names another binary; the style is written for clang-format 14.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=apply
case "${1:-}" in
  "") ;;
  --check) mode=check ;;
  *) echo "usage: tools/format.sh [--check]" >&2; exit 64 ;;
esac

cf="${CLANG_FORMAT:-clang-format}"
if ! command -v "$cf" >/dev/null 2>&1; then
  echo "tools/format.sh: $cf not found (tools/install-deps.sh installs it)" >&2
  exit 1
fi

# Fuzz inputs are data whatever their names; build trees hold generated code.
files=()
while IFS= read -r -d '' f; do
  case "$f" in
    fuzz/corpus/* | fuzz/regressions/* | build*/* | */moc_* | */ui_* | *_autogen/*) continue ;;
  esac
  [ -f "$f" ] && files+=("$f")
done < <(git ls-files -z -- '*.cpp' '*.h')

[ ${#files[@]} -eq 0 ] && exit 0

if [ "$mode" = apply ]; then
  printf '%s\0' "${files[@]}" | xargs -0 -P2 -n 20 "$cf" -i --style=file
  exit 0
fi

# One line per file that would change.
differ=$(printf '%s\0' "${files[@]}" |
  xargs -0 -n 40 "$cf" --style=file --dry-run --ferror-limit=1 2>&1 |
  sed -n 's/^\(.*\):[0-9]*:[0-9]*: warning: .*/\1/p' | sort -u)
if [ -n "$differ" ]; then
  echo "$differ"
  echo "tools/format.sh: $(echo "$differ" | wc -l) file(s) differ from the house style; run tools/format.sh" >&2
  exit 1
fi
