#!/usr/bin/env bash
# Whole-process time and peak memory of `kilnutil preview` on a 50 MB
# comma-separated file in UTF-8 (read as a stream) and the same table in
# UTF-16LE (converted to a UTF-8 copy first, which costs about its size once).
# Usage: bench/preview_memory.sh [path/to/kilnutil]   (default: the release build)
set -euo pipefail
cd "$(dirname "$0")/.."
tool=${1:-build/release/tools/kilnutil}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

python3 - "$work" <<'PY'
import sys
lines = ["time,station,temperature_\u00b0C,humidity_%,note"]
stations = ["\u00c5lesund", "M\u00fcnchen", "Bergen", "K\u00f6ln"]
size, i = 0, 0
while size < 50 * 1024 * 1024:
    note = '"wind, gusts"' if i % 7 == 0 else ("" if i % 3 == 0 else "clear")
    line = f"2024-{1 + i % 12:02}-{1 + i % 28:02} {i % 24:02}:00,{stations[i % 4]},{i % 40}.{i % 10},{40 + i % 60},{note}"
    lines.append(line)
    size += len(line.encode()) + 1
    i += 1
text = "\n".join(lines) + "\n"
open(f"{sys.argv[1]}/table_utf8.csv", "wb").write(text.encode("utf-8"))
open(f"{sys.argv[1]}/table_utf16.csv", "wb").write(b"\xff\xfe" + text.encode("utf-16-le"))
PY

for file in table_utf8.csv table_utf16.csv; do
  bytes=$(stat -c %s "$work/$file")
  /usr/bin/time -v "$tool" preview "$work/$file" --rows "2:0|1-99999" --cols "1 3" --limit 5 \
    >"$work/out.txt" 2>"$work/time.txt"
  seconds=$(grep -E "Elapsed \(wall clock\)" "$work/time.txt" | awk '{print $NF}')
  peak_kb=$(grep -E "Maximum resident set size" "$work/time.txt" | awk '{print $NF}')
  echo "$file: $((bytes / 1048576)) MiB, wall $seconds, peak RSS $((peak_kb / 1024)) MiB, $(grep -E '^lines' "$work/out.txt")"
done
