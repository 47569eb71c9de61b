#!/usr/bin/env bash
# Installs the Debian packages the project needs (only those missing), then configures and builds
# both configurations: build/ (optimised, with assertions) and build-asan/ (ASan + UBSan).
# Usage: scripts/setup.sh [--no-asan]
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(
  build-essential cmake ninja-build pkg-config time python3
  gcc clang clang-14 libclang-14-dev llvm-14-dev llvm-14-tools libclang-rt-14-dev
  libboost-dev libboost-regex-dev libxml2-dev libxml2-utils
  googletest libgtest-dev
  frama-c-base
  libc6-dev-i386
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "setup: installing ${missing[*]}" >&2
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

jobs=$(nproc)
configure() {
  local dir=$1; shift
  if [ ! -f "$dir/build.ninja" ]; then
    cmake -S . -B "$dir" -G Ninja "$@" >/dev/null
  fi
  cmake --build "$dir" -j "$jobs"
}

export CC=clang-14 CXX=clang++-14
configure build -DCMAKE_BUILD_TYPE=RelWithDebInfo
if [ "${1:-}" != "--no-asan" ]; then
  configure build-asan -DCMAKE_BUILD_TYPE=Debug -DQVT_SANITIZE=ON
fi
