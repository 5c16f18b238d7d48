#!/usr/bin/env bash
# A long fuzz campaign outside CI: every target (or those named) for a given
# time or number of executions each, several at once, each starting from its
# grown corpus with the seeds of the samples and captures merged in. Prints
# executions, coverage and findings per target.
#
#   scripts/fuzz-campaign.sh [-t SECONDS] [-n RUNS] [-j JOBS] [-c DIR] [-b BUILD] [-o OPTIONS] [-S] [TARGET...]
#
#   -t  seconds per target (default 600)
#   -n  executions per target; the run ends at whichever of -t and -n comes first
#   -j  targets at once (default: the machine's cores)
#   -c  where corpora, findings and logs are kept (default ~/.cache/zum-fuzz)
#   -b  a clang build with -DZUM_FUZZ=ON (default build-fuzz: optimised, with
#       AddressSanitizer and UndefinedBehaviorSanitizer, made when missing)
#   -o  further libFuzzer options for every target
#   -S  no seeding: the corpora in DIR are taken as they are
set -euo pipefail
source "$(dirname "$0")/fuzz-lib.sh"

seconds=600
runs=-1
jobs=$(nproc)
keep=${XDG_CACHE_HOME:-$HOME/.cache}/zum-fuzz
build=$ZUM_ROOT/build-fuzz
extra=""
seed=yes
while getopts "t:n:j:c:b:o:S" option; do
  case $option in
    t) seconds=$OPTARG ;;
    n) runs=$OPTARG ;;
    j) jobs=$OPTARG ;;
    c) keep=$OPTARG ;;
    b) build=$OPTARG ;;
    o) extra=$OPTARG ;;
    S) seed=no ;;
    *) sed -n '2,19p' "$0"; exit 2 ;;
  esac
done
shift $((OPTIND - 1))
targets=("$@")
[ ${#targets[@]} -gt 0 ] || mapfile -t targets < <(fuzz_targets)
if [ ! -x "$build/fuzz/zum-fuzz-seeds" ]; then
  # Optimised: a campaign counts executions, and this build runs about five
  # times as many as the Debug build of the test lane (SDT: 16 k/s against 3 k/s).
  CC=clang CXX=clang++ cmake -S "$ZUM_ROOT" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DZUM_SANITIZE=ON -DZUM_FUZZ=ON -DZUM_BUILD_TESTS=OFF -DZUM_BUILD_TOOLS=OFF >/dev/null
fi
cmake --build "$build" -j "$jobs" >/dev/null
keep=$(mkdir -p "$keep" && cd "$keep" && pwd)
mkdir -p "$keep/corpus" "$keep/findings" "$keep/logs"

if [ "$seed" = yes ]; then
  echo "== seeds into $keep/corpus"
  fuzz_seeds "$build" "$keep/corpus"
fi

# Short allocation stacks: recording thirty frames per allocation slows the
# allocating targets by a tenth; a finding is replayed with full stacks.
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:malloc_context_size=4}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}

run_target() {
  local target=$1 dict=$keep/logs/$1.dict options=()
  mkdir -p "$keep/findings/$target"
  fuzz_dict "$target" "$dict" && options+=(-dict="$dict")
  "$build/fuzz/$target" -max_total_time="$seconds" -runs="$runs" -max_len=$ZUM_FUZZ_MAX_LEN \
    -print_final_stats=1 -artifact_prefix="$keep/findings/$target/" "${options[@]}" $extra \
    "$keep/corpus/$target" >"$keep/logs/$target.log" 2>&1 || true
}

echo "== ${#targets[@]} targets, ${seconds}s or $runs runs each, $jobs at once"
running=0
for target in "${targets[@]}"; do
  if [ "$running" -ge "$jobs" ]; then wait -n || true; running=$((running - 1)); fi
  run_target "$target" &
  running=$((running + 1))
done
wait

printf '%-22s %12s %8s %6s %7s %7s %s\n' target executions exec/s cov ft corpus findings
for target in "${targets[@]}"; do
  log=$keep/logs/$target.log
  last=$(grep -E '^#[0-9]+.*cov: ' "$log" | tail -1 || true)
  # A run that stopped at a finding prints no final figures: its last status line tells.
  execs=$(grep -o 'number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' || grep -o '^#[0-9]*' <<<"$last" | tr -d '#' || echo '?')
  speed=$(grep -o 'average_exec_per_sec: *[0-9]*' "$log" | grep -o '[0-9]*$' || echo '?')
  cov=$(grep -o 'cov: [0-9]*' <<<"$last" | grep -o '[0-9]*' || echo '?')
  ft=$(grep -o 'ft: [0-9]*' <<<"$last" | grep -o '[0-9]*' || echo '?')
  findings=$(ls "$keep/findings/$target" | wc -l)
  printf '%-22s %12s %8s %6s %7s %7s %s\n' "$target" "$execs" "$speed" "$cov" "$ft" \
    "$(ls "$keep/corpus/$target" | wc -l)" "$findings $(ls "$keep/findings/$target" | tr '\n' ' ')"
done
echo "corpora in $keep/corpus, findings in $keep/findings, logs in $keep/logs"
