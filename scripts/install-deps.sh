#!/usr/bin/env bash
# Installs the Debian packages that building, testing, fuzzing and
# benchmarking kilnutil need; packages already present are left alone.
set -euo pipefail

packages=(
  cmake ninja-build g++ clang libclang-rt-dev pkg-config binutils
  libicu-dev libgtest-dev libgmock-dev libbenchmark-dev libomp-dev libssl-dev
  libboost-dev liblapack-dev
)

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed"; then
    missing+=("$package")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
echo "installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
