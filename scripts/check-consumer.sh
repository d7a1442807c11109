#!/usr/bin/env bash
# Builds the release library, installs it into a scratch prefix, and builds
# and runs a small C program against the installed copy twice: through
# find_package(kilnutil) and through pkg-config.
set -euo pipefail
cd "$(dirname "$0")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"

build=build/install-check
cmake --preset release -B "$build" -DKILNUTIL_BUILD_BENCH=OFF >/dev/null
cmake --build "$build"
cmake --install "$build" --prefix "$prefix" >/dev/null

consumer=tests/consumer
export LD_LIBRARY_PATH="$prefix/lib${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}"

echo "-- through find_package(kilnutil)"
cmake -S "$consumer" -B "$work/cmake-build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$work/cmake-build" >/dev/null
"$work/cmake-build/consumer"

echo "-- through pkg-config"
libdir=$(find "$prefix" -name kilnutil.pc -printf '%h\n' | head -n 1)
export PKG_CONFIG_PATH="$libdir${PKG_CONFIG_PATH:+:$PKG_CONFIG_PATH}"
cc -std=c11 -Wall -Wextra -Werror "$consumer/consumer.c" -o "$work/consumer-pc" \
  $(pkg-config --cflags --libs kilnutil)
"$work/consumer-pc"
