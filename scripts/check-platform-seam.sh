#!/usr/bin/env bash
# The platform seam: only src/platform/ may include POSIX or C-library
# extension headers, use compiler builtins and extensions or test for Windows
# (_WIN32: the Windows backend is chosen by CMake). The same holds for the
# tests, where only the per-platform support files (tests/support/*_posix.*,
# *_win32.*, also picked by CMake) may. Prints every offending line and fails
# when there is one; every folder of src/ and tests/, present or future, is
# checked.
set -euo pipefail
cd "$(dirname "$0")/.."

pattern='#[[:space:]]*include[[:space:]]*<(unistd|fcntl|dlfcn|strings|pthread)\.h>|#[[:space:]]*include[[:space:]]*<sys/|__builtin_|__int128|__attribute__|_WIN32'
if git grep -nE "$pattern" -- 'src/' ':!src/platform/' 'tests/' ':!tests/support/*_posix.*' ':!tests/support/*_win32.*'; then
  echo "platform seam: the lines above belong in src/platform/ (tests: tests/support/)" >&2
  exit 1
fi
echo "platform seam: clean"
