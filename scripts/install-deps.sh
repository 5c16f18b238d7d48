#!/usr/bin/env bash
# Installs the Debian packages the build, tests and sanitizer lane need; does
# nothing when they are all present.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  clang libclang-rt-14-dev
  libgtest-dev libbenchmark-dev
  zlib1g-dev nlohmann-json3-dev libboost-dev libaribb24-dev
  libgstreamer-plugins-bad1.0-dev libdvbpsi-dev
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "installing: ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
