#!/bin/sh
# Cross-builds kilnutil.dll, kilnutil.exe and the tests with mingw-w64 and runs
# the tests under Wine in a throw-away Wine prefix (removed afterwards).
set -eu
cd "$(dirname "$0")/.."
./scripts/install-windows-deps.sh

prefix="$(pwd)/build/windows/wineprefix"
wine="$(command -v wine64 || true)"
[ -n "$wine" ] || wine=/usr/lib/wine/wine64
wineserver="$(dirname "$wine")/wineserver"
[ -x "$wineserver" ] || wineserver=wineserver
cleanup() {
  WINEPREFIX="$prefix" "$wineserver" -k 2>/dev/null || true
  rm -rf "$prefix"
}
trap cleanup EXIT INT TERM
cleanup

# The test preset runs every program with WINEPREFIX set to $prefix.
cmake --workflow --preset windows
