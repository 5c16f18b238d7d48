#!/usr/bin/env bash
# Sets up, builds, and decodes the sample PAT that ships in samples/.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DZUM_BUILD_TESTS=OFF >/dev/null
cmake --build build --target zum-pat-example
./build/examples/zum-pat-example samples/pat.sec
