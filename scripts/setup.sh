#!/usr/bin/env bash
# Installs the Debian packages the project needs (only those missing), then configures and builds
# with clang: build/ (optimised, with assertions) and build-asan/ (ASan + UBSan); with --gcc also
# build-gcc/ (optimised, with gcc). Warnings are errors in all of them.
# Usage: scripts/setup.sh [--no-asan] [--gcc]
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(
  build-essential cmake ninja-build pkg-config time python3
  gcc clang clang-14 libclang-14-dev llvm-14-dev llvm-14-tools libclang-rt-14-dev
  libboost-dev libboost-regex-dev libxml2-dev libxml2-utils
  googletest libgtest-dev
  frama-c-base
  libc6-dev-i386 libnewlib-arm-none-eabi
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

asan=1; gcc=0
for arg in "$@"; do
  case $arg in
    --no-asan) asan=0 ;;
    --gcc) gcc=1 ;;
    *) echo "setup: unknown option $arg" >&2; exit 2 ;;
  esac
done

jobs=$(nproc)
# configure DIR C_COMPILER CXX_COMPILER CMAKE_ARGS...: the compilers count for a new DIR only.
configure() {
  local dir=$1 cc=$2 cxx=$3; shift 3
  if [ ! -f "$dir/build.ninja" ]; then
    CC=$cc CXX=$cxx cmake -S . -B "$dir" -G Ninja "$@" >/dev/null
  else
    cmake -S . -B "$dir" "$@" >/dev/null
  fi
  cmake --build "$dir" -j "$jobs"
}

configure build clang-14 clang++-14 -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQVT_WERROR=ON
if [ $asan = 1 ]; then
  configure build-asan clang-14 clang++-14 -DCMAKE_BUILD_TYPE=Debug -DQVT_SANITIZE=ON -DQVT_WERROR=ON
fi
if [ $gcc = 1 ]; then
  configure build-gcc gcc g++ -DCMAKE_BUILD_TYPE=Release -DQVT_WERROR=ON
fi
