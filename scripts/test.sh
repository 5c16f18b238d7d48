#!/usr/bin/env bash
# Builds and runs every test: the GCC build, then the clang build with
# AddressSanitizer and UndefinedBehaviorSanitizer, which reruns the suite and
# gives each libFuzzer target a short pass.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh

source scripts/fuzz-lib.sh

jobs=$(nproc)
# The short fuzz pass shares one budget among all targets, so that the run
# stays bounded as targets are added; long campaigns run outside CI
# (scripts/fuzz-campaign.sh).
fuzz_targets=$(fuzz_targets | wc -l)
fuzz_budget=${ZUM_FUZZ_TOTAL_SECONDS:-240}
fuzz_seconds=${ZUM_FUZZ_SECONDS:-$(( fuzz_budget / fuzz_targets > 10 ? 10 : (fuzz_budget / fuzz_targets < 3 ? 3 : fuzz_budget / fuzz_targets) ))}

echo "== build and test (gcc)"
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZUM_BUILD_BENCH=ON >/dev/null
cmake --build build -j "$jobs"
ctest --test-dir build --output-on-failure -j "$jobs"

echo "== benchmarks (smoke run)"
# Each benchmark once, briefly, so that none rots; speed never fails the run.
build/bench/zum-bench --benchmark_min_time=0.01

echo "== install and consumer check"
bash scripts/check-install.sh build

echo "== build and test with ASan + UBSan (clang)"
CC=clang CXX=clang++ cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug \
  -DZUM_SANITIZE=ON -DZUM_FUZZ=ON -DZUM_BUILD_TOOLS=OFF >/dev/null
cmake --build build-asan -j "$jobs"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
ctest --test-dir build-asan --output-on-failure -j "$jobs"

# Seeds: the committed ones, and the sections of the samples and (where the
# folder is present) the captures, minimised per target.
echo "== fuzz seeds"
seeds=build-asan/fuzz/seeds
rm -rf "$seeds"
fuzz_seeds build-asan "$seeds"

echo "== fuzz (${fuzz_seconds}s per target)"
for name in $(fuzz_targets); do
  target="build-asan/fuzz/$name"
  work=$(mktemp -d)
  cp -r "$seeds/$name/." "$work/"
  dict=()
  if fuzz_dict "$name" "$work.dict"; then dict=(-dict="$work.dict"); fi
  "$target" -max_total_time="$fuzz_seconds" -max_len=$ZUM_FUZZ_MAX_LEN -print_final_stats=0 "${dict[@]}" \
    "$work" 2>"$work.log" || { cat "$work.log"; echo "fuzz target $name failed"; exit 1; }
  echo "$name: $(grep -o 'cov: [0-9]*' "$work.log" | tail -1), no crash"
  rm -rf "$work" "$work.log" "$work.dict"
done
echo "all tests passed"
