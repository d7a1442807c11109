#!/usr/bin/env bash
# Builds the libFuzzer targets (clang, ASan + UBSan) and runs each for the
# given number of seconds (default 20), starting from its seed corpus in
# fuzz/corpus/<name> when there is one.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-20}

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

status=0
for target in build/fuzz/fuzz/fuzz_*; do
  [ -x "$target" ] || continue
  name=${target##*/fuzz_}
  corpus=$(mktemp -d)
  [ -d "fuzz/corpus/$name" ] && cp -r "fuzz/corpus/$name/." "$corpus/"
  echo "-- $name (${seconds}s)"
  if ! "$target" -max_total_time="$seconds" -artifact_prefix="$corpus/" "$corpus" 2>"$corpus.log"; then
    tail -n 40 "$corpus.log"
    for crash in "$corpus"/crash-* "$corpus"/leak-* "$corpus"/timeout-*; do
      [ -f "$crash" ] && echo "input (base64): $(base64 -w0 "$crash")"
    done
    status=1
  else
    grep -E '^Done|^#[0-9]+.*DONE' "$corpus.log" | tail -n 1 || true
  fi
  rm -rf "$corpus" "$corpus.log"
done
exit $status
