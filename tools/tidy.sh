#!/usr/bin/env bash
# Runs clang-tidy with the checks of .clang-tidy over the project's own sources
# and fails on any finding.
#   tools/tidy.sh [build directory]     default build/, configured if need be
# CLANG_TIDY names another binary; the checks are chosen for clang-tidy 14.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(pwd)
build=$(realpath -m "${1:-build}")

tidy="${CLANG_TIDY:-clang-tidy}"
if ! command -v "$tidy" >/dev/null 2>&1; then
  echo "tools/tidy.sh: $tidy not found (tools/install-deps.sh installs it)" >&2
  exit 1
fi
if [ ! -f "$build/compile_commands.json" ]; then
  cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Debug >/dev/null
fi

# The sources of the compile database that are ours: no build tree, nothing
# generated. A second list names the targets whose moc output a source
# includes, which must exist before clang-tidy reads it.
lists=$(python3 - "$root" "$build" <<'EOF'
import json, os, re, sys
root, build = sys.argv[1], sys.argv[2]
files, autogen = [], set()
for entry in json.load(open(os.path.join(build, "compile_commands.json"))):
    path = os.path.normpath(os.path.join(entry["directory"], entry["file"]))
    rel = os.path.relpath(path, root)
    if rel.startswith(("..", "build")) or "_autogen" in rel or path.startswith(build + os.sep):
        continue
    files.append(path)
    with open(path, encoding="utf-8", errors="replace") as source:
        if re.search(r'^\s*#\s*include\s*"(moc_[^"]*|[^"]*\.moc)"', source.read(), re.M):
            target = re.search(r"CMakeFiles/([^/]+)\.dir/", entry.get("output", entry.get("command", "")))
            if target:
                autogen.add(target.group(1) + "_autogen")
for name in sorted(set(files)):
    print("file", name)
for name in sorted(autogen):
    print("autogen", name)
EOF
)
mapfile -t files < <(sed -n 's/^file //p' <<<"$lists")
mapfile -t autogen < <(sed -n 's/^autogen //p' <<<"$lists")
if [ ${#autogen[@]} -gt 0 ]; then
  cmake --build "$build" --target "${autogen[@]}" >/dev/null
fi

# Findings in our own headers count too; generated and system headers do not.
folders=$(find . -mindepth 1 -maxdepth 1 -type d ! -name '.*' ! -name 'build*' -printf '%f\n' |
  sort | paste -sd'|')
filter="^${root}/(${folders})/"

echo "tools/tidy.sh: ${#files[@]} sources"
status=0
printf '%s\0' "${files[@]}" | xargs -0 -P2 -n1 sh -c '
  out=$("$0" --quiet -p "$1" --header-filter="$2" --warnings-as-errors="*" "$3" 2>&1) && exit 0
  printf "%s\n" "$out" | grep -v -e "warnings\? generated\.$" -e "^Suppressed [0-9]* warnings" \
    -e "^Use -header-filter=" -e "^[0-9]* warnings\? treated as errors\.$"
  exit 1' "$tidy" "$build" "$filter" || status=1
if [ "$status" -ne 0 ]; then
  echo "tools/tidy.sh: findings above" >&2
fi
exit "$status"
