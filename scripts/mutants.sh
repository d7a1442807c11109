#!/usr/bin/env bash
# Mutation spot-check (not part of CI): applies each one-line mutant of
# scripts/mutants/list.tsv to a scratch copy of the working tree, rebuilds only
# the mutated subsystem's test program and runs only that subsystem's tests.
# A mutant is caught when those tests fail. Prints one line per mutant and the
# totals; exits 1 when fewer than 85% are caught.
#   scripts/mutants.sh [list.tsv]      (scratch: build/mutants, or $KILNUTIL_MUTANT_DIR)
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
list=${1:-$root/scripts/mutants/list.tsv}
scratch=${KILNUTIL_MUTANT_DIR:-$root/build/mutants}
tree=$scratch/tree
build=$scratch/build

mkdir -p "$tree"
(cd "$root" && git ls-files --cached --others --exclude-standard -z | xargs -0 cp --parents -t "$tree")
export CCACHE_BASEDIR=$tree CCACHE_NOHASHDIR=1
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
cmake -S "$tree" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DKILNUTIL_BUILD_BENCH=OFF \
  -DKILNUTIL_BUILD_TOOLS=OFF "${launcher[@]}" >/dev/null

# Replaces the one occurrence of $2 in file $1 by $3; fails when it is not unique.
mutate() {
  python3 - "$1" "$2" "$3" <<'PY'
import sys
path, old, new = sys.argv[1:]
text = open(path).read()
if text.count(old) != 1:
    sys.exit(f"{path}: {text.count(old)} occurrences of the mutated text")
open(path, "w").write(text.replace(old, new))
PY
}

caught=0
survived=0
while IFS=$'\t' read -r file original replacement; do
  [[ -z "$file" || "$file" == \#* ]] && continue
  subsystem=$(cut -d/ -f2 <<<"$file")
  cp "$tree/$file" "$scratch/original"
  verdict=survived
  if ! mutate "$tree/$file" "$original" "$replacement"; then
    verdict="not applied"
  elif ! cmake --build "$build" --target "test_$subsystem" >"$scratch/build.log" 2>&1; then
    verdict="caught (does not compile)"
  elif ! "$build/tests/test_$subsystem" --gtest_brief=1 >"$scratch/test.log" 2>&1; then
    verdict=caught
  fi
  cp "$scratch/original" "$tree/$file"
  case "$verdict" in
    caught*) caught=$((caught + 1)) ;;
    survived) survived=$((survived + 1)) ;;
  esac
  printf '%-26s %-40s %s\n' "$verdict" "$file" "$original"
done <"$list"

total=$((caught + survived))
echo "caught $caught of $total ($((total ? 100 * caught / total : 0))%)"
[ "$total" -gt 0 ] && [ $((100 * caught)) -ge $((85 * total)) ]
