#!/usr/bin/env bash
# Throughput of the tool's streaming commands beside the usual tools, in one
# run on the same generated files (not part of the tests):
#   base64 (encode and decode)   beside coreutils base64
#   to-utf8 of Windows-1252 text beside iconv -f CP1252 -t UTF-8
#   preview --csv / --ndjson     beside a plain read+write copy (cat) and,
#                                when python3-pandas is installed, pandas.read_csv
#   the line count (preview)     beside wc -l
# Prints wall and CPU seconds, MB/s (of CPU time), the ratio to the reference
# (of CPU time) and the peak memory of each run.
# Usage: bench/cli_throughput.sh [path/to/kilnutil] [MB]   (default: release build, 200 MB)
set -euo pipefail
cd "$(dirname "$0")/.."
tool=${1:-build/release/tools/kilnutil}
megabytes=${2:-200}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

python3 - "$work" "$megabytes" <<'PY'
import os, random, sys
work, megabytes = sys.argv[1], int(sys.argv[2])
target = megabytes * 1000 * 1000
with open(f"{work}/random.bin", "wb") as f:
    f.write(os.urandom(target))
rng = random.Random(7)
names = ["Zürich", "München", "Łódź", "São Paulo", "Reykjavík", "Kraków", "Genève", "Málaga"]
rows, size = [], 0
header = "id,date,city,note,value,ratio,count,flag,exp,total\n"
with open(f"{work}/table.csv", "w", encoding="utf-8") as f:
    f.write(header)
    i = 0
    while size < target:
        line = (f"{i},2024-{1 + i % 12:02}-{1 + i % 28:02},{names[i % 8]},\"note {i % 97}, café\","
                f"{rng.uniform(-100, 100):.3f},{rng.random():.6f},{rng.randrange(10**6)},{i % 2},"
                f"{rng.uniform(1, 9):.2f}e{rng.randrange(-20, 20)},{i * 0.25}\n")
        f.write(line)
        size += len(line.encode())
        i += 1
text = open(f"{work}/table.csv", encoding="utf-8").read()
open(f"{work}/table_cp1252.csv", "w", encoding="cp1252", errors="replace").write(text.replace("Ł", "L"))
PY

measure() {  # label bytes command... : wall and CPU (user+system) seconds, MB/s of CPU time, peak memory
  local label=$1 bytes=$2; shift 2
  /usr/bin/time -f "%e %U %S %M" -o "$work/time" "$@" > /dev/null
  local wall user system peak cpu
  read -r wall user system peak < "$work/time"
  cpu=$(echo "$user + $system + 0.001" | bc -l)
  printf "%-34s %7.2f s wall %7.2f s cpu %8.1f MB/s %8d KiB peak\n" "$label" "$wall" "$cpu" \
    "$(echo "$bytes / 1000000 / $cpu" | bc -l)" "$peak"
  echo "$cpu" > "$work/last"
}
# Ratios are of CPU time: on a shared machine wall time mostly measures the neighbours.
ratio() { printf "%-34s %8.2fx\n" "  -> speed ratio (tool/ref)" "$(echo "$2 / $1" | bc -l)"; }

size_of() { stat -c %s "$1"; }
bin=$(size_of "$work/random.bin"); csv=$(size_of "$work/table.csv"); cp=$(size_of "$work/table_cp1252.csv")
base64 "$work/random.bin" > "$work/random.b64"; b64=$(size_of "$work/random.b64")

measure "coreutils base64" "$bin" base64 "$work/random.bin"; ref=$(cat "$work/last")
measure "kilnutil base64" "$bin" "$tool" base64 "$work/random.bin"; ratio "$(cat "$work/last")" "$ref"
measure "coreutils base64 -d" "$b64" base64 -d "$work/random.b64"; ref=$(cat "$work/last")
measure "kilnutil base64 -d" "$b64" "$tool" base64 -d "$work/random.b64"; ratio "$(cat "$work/last")" "$ref"
measure "iconv cp1252 -> utf-8" "$cp" iconv -f CP1252 -t UTF-8 "$work/table_cp1252.csv"; ref=$(cat "$work/last")
measure "kilnutil to-utf8 (cp1252)" "$cp" "$tool" to-utf8 -c 1252 "$work/table_cp1252.csv"; ratio "$(cat "$work/last")" "$ref"
measure "kilnutil to-utf8 (detected)" "$cp" "$tool" to-utf8 "$work/table_cp1252.csv"; ratio "$(cat "$work/last")" "$ref"
measure "cat (read+write copy)" "$csv" cat "$work/table.csv"; ref=$(cat "$work/last")
measure "kilnutil preview --csv" "$csv" "$tool" preview "$work/table.csv" --csv; ratio "$(cat "$work/last")" "$ref"
measure "kilnutil preview --ndjson" "$csv" "$tool" preview "$work/table.csv" --ndjson; ratio "$(cat "$work/last")" "$ref"
pandas_python=""
for candidate in python3 /usr/bin/python3; do
  if "$candidate" -c "import pandas" 2> /dev/null; then pandas_python=$candidate; break; fi
done
if [ -n "$pandas_python" ]; then
  measure "pandas.read_csv" "$csv" "$pandas_python" -c "import pandas, sys; pandas.read_csv(sys.argv[1])" "$work/table.csv"
  ref=$(cat "$work/last")
  measure "kilnutil preview --csv (again)" "$csv" "$tool" preview "$work/table.csv" --csv; ratio "$(cat "$work/last")" "$ref"
fi
measure "wc -l" "$csv" wc -l "$work/table.csv"; ref=$(cat "$work/last")
measure "kilnutil preview (line count)" "$csv" "$tool" preview "$work/table.csv" --limit 1; ratio "$(cat "$work/last")" "$ref"
