#!/usr/bin/env bash
# Sets up, builds the inspector alone, and decodes the sample transport stream
# in samples/ with it. A build directory of its own, configured without the
# tests, leaves the one of scripts/test.sh as that script wants it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build-example -G Ninja -DZUM_BUILD_TESTS=OFF >/dev/null
cmake --build build-example --target zum-inspect
./build-example/tools/zum-inspect samples/sample.ts
