#!/usr/bin/env bash
# Throughput and memory of zum-inspect on a long generated stream, beside
# ffprobe (Debian's ffmpeg) on the same file when it is installed.
# Usage: scripts/bench-inspect.sh [BUILD_DIR] [MEGABYTES]   (defaults: build 1000)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
megabytes=${2:-1000}
gen="$build/tools/zum-gen-sample"
inspect="$build/tools/zum-inspect"
for tool in "$gen" "$inspect"; do
  [ -x "$tool" ] || { echo "missing $tool: build the tools first"; exit 1; }
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
stream="$work/long.ts"
"$gen" --megabytes "$megabytes" "$stream"
bytes=$(stat -c %s "$stream")
packets=$((bytes / 188))
passes=$((packets / 1015)) # 15 packets of tables and 1000 of audio and video per pass
echo "stream: $bytes bytes, $packets packets, $passes passes of the sample's 18 sections"

# Seconds and peak resident kilobytes of one command, its output to $work/out.
measure() {
  /usr/bin/time -f "%e %M" -o "$work/time" "$@" >"$work/out" 2>"$work/err" || {
    cat "$work/err"; return 1; }
  read -r seconds kilobytes <"$work/time"
}

# Warm the page cache, so that every tool reads from memory.
cat "$stream" >/dev/null

row() { # name seconds kilobytes
  awk -v n="$1" -v s="$2" -v k="$3" -v b="$bytes" \
    'BEGIN { printf "%-44s %8.2f s %9.1f MB/s %8.1f MiB peak\n", n, s, (s > 0 ? b / 1e6 / s : 0), k / 1024 }'
}

measure "$inspect" --summary --quiet-progress "$stream"
row "zum-inspect --summary" "$seconds" "$kilobytes"
# The counts are exact: every packet, and every section of every pass.
grep -q "demux: $packets packets of 188 bytes, $((passes * 18)) sections, 0 sync losses" "$work/out" || {
  echo "summary counts differ:"; cat "$work/out"; exit 1; }

measure "$inspect" --summary --quiet-progress --all-pids "$stream"
row "zum-inspect --summary --all-pids" "$seconds" "$kilobytes"

measure "$inspect" --json --quiet-progress "$stream"
row "zum-inspect --json (whole model)" "$seconds" "$kilobytes"

if command -v ffprobe >/dev/null; then
  # Probes the start of the file for its programs, as a player does.
  measure ffprobe -v error -show_programs "$stream"
  row "ffprobe -show_programs" "$seconds" "$kilobytes"
  # Demultiplexes every packet of every stream to count them: the whole file.
  measure ffprobe -v error -count_packets -show_programs "$stream"
  row "ffprobe -count_packets -show_programs" "$seconds" "$kilobytes"
else
  echo "ffprobe not installed (apt-get install ffmpeg): no comparison"
fi
