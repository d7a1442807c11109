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

# Configure and build first, then make the prefix once and wait for it: the
# first program of a fresh prefix otherwise races Wine's own set-up.
cmake --preset windows
cmake --build --preset windows
mkdir -p "$(dirname "$prefix")"
WINEPREFIX="$prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" "$wine" wineboot --init >/dev/null 2>&1 || true
WINEPREFIX="$prefix" "$wineserver" -w

# The test preset runs every program with WINEPREFIX set to $prefix.
cmake --workflow --preset windows
