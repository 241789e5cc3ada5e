#!/usr/bin/env bash
# Builds Tallix and its benchmarks in build-bench/ (Release), runs them all
# and prints one Markdown table, headed by the machine it ran on:
#   start-up to the first painted window against a bare Qt widget program,
#     on a virtual X display (as a user sees it) and offscreen;
#   the channel page: row edits and adds as the table grows, memory per row;
#   the scene preview: decoding and painting cost against ffmpeg's own.
#
#   tools/bench.sh [start-up runs]      (default 21 of each program)
# TALLIX_BENCH_JOBS sets the build's parallel jobs (default: all cores).
set -euo pipefail
cd "$(dirname "$0")/.."
runs=${1:-21}
build=build-bench

tools/install-deps.sh >&2
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release >&2
cmake --build "$build" -j"${TALLIX_BENCH_JOBS:-$(nproc)}" \
  --target tallix tallix_floor tallix_startup_bench streams_page_bench vexplay_bench >&2

work=$(mktemp -d)
. tests/shell/XvfbSession.sh
trap 'stop_session; rm -rf "$work"' EXIT

echo "start-up on Xvfb, $runs runs each..." >&2
start_xvfb 1400x900x24
QT_QPA_PLATFORM=xcb "$build/bench/startup/tallix_startup_bench" \
  "$build/app/tallix" "$build/bench/floor/tallix_floor" "$runs" >"$work/xcb"
stop_session
echo "start-up offscreen..." >&2
QT_QPA_PLATFORM=offscreen "$build/bench/startup/tallix_startup_bench" \
  "$build/app/tallix" "$build/bench/floor/tallix_floor" "$runs" >"$work/offscreen"
echo "channel page, 500 rows..." >&2
QT_QPA_PLATFORM=offscreen "$build/tests/streams/streams_page_bench" 500 >"$work/page"
echo "scene preview..." >&2
QT_QPA_PLATFORM=offscreen "$build/tests/vexplay/vexplay_bench" 3 >"$work/preview"

# <file> <program> <field>: a figure of the start-up bench's line.
startup() { awk -v p="$2" -v f="$3" '$1 == p { for (i = 2; i < NF; i++) if ($i == f) print $(i + 1) }' "$1"; }
# pass when $1 < $2
verdict() { awk -v a="$1" -v b="$2" 'BEGIN { print (a + 0 < b + 0) ? "pass" : "**FAIL**" }'; }

# <file> <where> <judged>: offscreen is there for comparison, not judged.
startup_rows() {
  local file=$1 where=$2 judged=$3 t f ratio rss frss time_goal mem_goal
  t=$(startup "$file" tallix median); f=$(startup "$file" tallix_floor median)
  ratio=$(awk '$1 == "ratio" { print $2 }' "$file")
  rss=$(startup "$file" tallix rss-mb); frss=$(startup "$file" tallix_floor rss-mb)
  time_goal="for comparison | –"; mem_goal="for comparison | –"
  if [ "$judged" = yes ]; then
    time_goal="within 2× the floor | $(verdict "$ratio" 2.0001)"
    mem_goal="under 80 MB | $(verdict "$rss" 80)"
  fi
  echo "| Start-up, $where | to first painted window: tallix median $t ms" \
       "(quartiles $(startup "$file" tallix q1)–$(startup "$file" tallix q3))," \
       "floor $f ms ($(startup "$file" tallix_floor q1)–$(startup "$file" tallix_floor q3)): **${ratio}×**;" \
       "processor time per run $(startup "$file" tallix cpu-ms) ms against $(startup "$file" tallix_floor cpu-ms) ms |" \
       "$time_goal |"
  echo "| Start-up, $where | resident memory at first paint: tallix **$rss MB**, floor $frss MB |" \
       "$mem_goal |"
}

# Channel page: "<rows> | add [cpu] painted [cpu] | edit [cpu] painted [cpu]".
# Processor times in brackets are dropped first.
page_edit() { awk -v n="$1" '{ gsub(/\[[^]]*\]/, "") } $1 == n && $2 == "|" { print $7 }' "$work/page"; }
page_add=$(awk -F': ' '/^add of the last rows/ { gsub(/\[[^]]*\]/, ""); split($2, a, " "); print a[2] }' "$work/page")
page_mem=$(awk '/^memory per row:/ { print $5 }' "$work/page")
page_clear=$(awk '/^clear all at/ { print $15 }' "$work/page")

cpu=$(lscpu | awk -F': *' '/^Model name/ { print $2; exit }')
ram=$(awk '/^MemTotal/ { printf "%.0f GB", $2 / 1048576 }' /proc/meminfo)
qt=$(dpkg-query -W -f='${Version}' libqt6core6 | sed 's/[+-].*//')

echo "Machine: $cpu, $(nproc) cores, $ram, Debian $(cat /etc/debian_version), Qt $qt; Release build, $(date +%F)."
echo
echo "| Benchmark | Figure | Goal | Result |"
echo "|---|---|---|---|"
startup_rows "$work/xcb" Xvfb yes
startup_rows "$work/offscreen" offscreen no
for n in 10 100 500; do
  e=$(page_edit "$n")
  echo "| Channel page | one row edit through totals and calculator, painted, at $n rows: $e ms | under 16 ms | $(verdict "$e" 16) |"
done
echo "| Channel page | adding a row at 500 rows, painted (median of the last 10): $page_add ms | under 20 ms | $(verdict "$page_add" 20) |"
echo "| Channel page | private memory per row: $page_mem KB | under 150 KB | $(verdict "$page_mem" 150) |"
echo "| Channel page | Clear All at 500 rows, painted: $page_clear ms | none set | – |"
# Preview: "<clip> <play>ms <ffmpeg>ms <ratio> <frames> <first med> <first max>".
awk 'NR > 1 { sub(/\.kvf$/, "", $1); sub(/ms$/, "", $2); sub(/ms$/, "", $3)
  printf "| Scene preview | %s: %s ms CPU per second of clip, %s× `ffmpeg -f null`'"'"'s %s ms; first frame painted %s ms after play (max %s) | none set | – |\n",
    $1, $2, $4, $3, $6, $7 }' "$work/preview"
