#!/usr/bin/env bash
# Builds the libFuzzer targets with clang into build-fuzz/ and runs each one
# for TALLIX_FUZZ_SECONDS seconds (default 60) on a copy of its seeds,
# fuzz/corpus/<target>/ and fuzz/regressions/<target>/. The copy grows in
# build-fuzz/fuzz-run/corpus/ from run to run; the repository is only read.
# Fails, naming the input, when a target crashes, hangs, leaks or runs out
# of memory.
#
# Usage: tools/fuzz.sh [target ...]      (default: every target)
set -euo pipefail
cd "$(dirname "$0")/.."

all=(layout dictionary language_choice settings coded_settings wide_digits skin_strings clip site_file)
targets=("${@:-${all[@]}}")
for t in "${targets[@]}"; do
  [ -d "fuzz/corpus/$t" ] || { echo "tools/fuzz.sh: no target '$t' (${all[*]})" >&2; exit 2; }
done
seconds=${TALLIX_FUZZ_SECONDS:-60}

tools/install-deps.sh

build=build-fuzz
# -O1 keeps the runs fast and the stacks readable; asserts stay on.
CC=clang CXX=clang++ cmake -S . -B "$build" -DTALLIX_FUZZ=ON -DTALLIX_BUILD_TESTS=OFF \
  -DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-g -O1" >/dev/null
cmake --build "$build" -j"$(nproc)" --target $(printf 'fuzz_%s ' "${targets[@]}")

run="$PWD/$build/fuzz-run"
mkdir -p "$run/tmp"
# The entries' scratch files, and Qt's runtime directory, stay in the build.
export TMPDIR="$run/tmp"
export XDG_RUNTIME_DIR="$run/tmp"
export QT_QPA_PLATFORM=offscreen

failed=()
for t in "${targets[@]}"; do
  corpus="$run/corpus/$t"
  artifacts="$run/artifacts/$t"
  log="$run/$t.log"
  rm -rf "$artifacts"
  mkdir -p "$corpus" "$artifacts"
  for seeds in "fuzz/corpus/$t" "fuzz/regressions/$t"; do
    if [ -d "$seeds" ]; then
      find "$seeds" -maxdepth 1 -type f -exec cp -t "$corpus" {} +
    fi
  done

  echo "== $t: $seconds s, log $log"
  status=0
  "$build/fuzz/fuzz_$t" "$corpus" \
    -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix="$artifacts/" -print_final_stats=1 >"$log" 2>&1 || status=$?
  grep -E '^stat::(number_of_executed_units|peak_rss_mb)|^#[0-9]+ +DONE' "$log" | tr '\n' ' ' || true
  echo
  found=$(find "$artifacts" -type f ! -name 'slow-unit-*' | sort)
  if [ "$status" -ne 0 ] || [ -n "$found" ]; then
    failed+=("$t")
    echo "FAILED: $t (exit $status)"
    grep -E 'ERROR|runtime error|check failed|SUMMARY' "$log" | head -5 || true
    for f in $found; do
      echo "  input: $f"
    done
  fi
done

if [ ${#failed[@]} -gt 0 ]; then
  echo "tools/fuzz.sh: failed: ${failed[*]}" >&2
  exit 1
fi
echo "tools/fuzz.sh: ${#targets[@]} targets, no failure"
