#!/usr/bin/env bash
# Sets up, builds, and decodes the sample PAT and PMT sections in samples/.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DZUM_BUILD_TESTS=OFF >/dev/null
cmake --build build --target zum-psi-example
./build/examples/zum-psi-example samples/pat.sec samples/pmt.sec
