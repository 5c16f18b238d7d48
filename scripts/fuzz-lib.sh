# Shared by the fuzz scripts (sourced): the targets, their dictionaries and
# their seeds, as fuzz/targets.txt maps them.

ZUM_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
ZUM_CAPTURES_DIR=${ZUM_CAPTURES_DIR:-$ZUM_ROOT/../shared/captures}
# The longest input the short pass and the campaign try: a section of 4096
# bytes with its selector bytes, or 22 transport stream packets.
ZUM_FUZZ_MAX_LEN=4200

# Every fuzz target, as fuzz/CMakeLists.txt globs them.
fuzz_targets() {
  local source
  for source in "$ZUM_ROOT"/fuzz/fuzz_*.cpp; do basename "$source" .cpp; done
}

# fuzz_dict TARGET FILE: joins the target's dictionaries into FILE; fails when
# fuzz/targets.txt gives it none.
fuzz_dict() {
  local names name
  names=$(awk -v t="$1" '$1 == t { print $2 }' "$ZUM_ROOT/fuzz/targets.txt" | tr ',' '\n' | sort -u)
  [ -n "$names" ] || return 1
  : >"$2"
  for name in $names; do cat "$ZUM_ROOT/fuzz/dict/$name.dict" >>"$2"; done
}

# fuzz_seeds BUILD OUT: adds to OUT/<target> what adds coverage there, from the
# committed seeds and from the sections of the samples and, when present, of
# the captures (libFuzzer's -merge=1). Prints per target what it kept of what.
fuzz_seeds() {
  local build=$1 out=$2 raw target files
  raw=$(mktemp -d)
  files=("$ZUM_ROOT"/samples/*.ts "$ZUM_ROOT"/samples/*.sec)
  if [ -d "$ZUM_CAPTURES_DIR" ]; then
    files+=("$ZUM_CAPTURES_DIR"/*.ts "$ZUM_CAPTURES_DIR"/*.bin)
  fi
  "$build/fuzz/zum-fuzz-seeds" "$ZUM_ROOT/fuzz/targets.txt" "$raw" "${files[@]}" >/dev/null
  for target in $(fuzz_targets); do
    mkdir -p "$out/$target" "$raw/$target"
    grep -q "^$target " "$ZUM_ROOT/fuzz/targets.txt" || echo "$target: no line in fuzz/targets.txt, committed seeds only"
    # A target may have no committed seeds yet: libFuzzer refuses a missing folder.
    local committed=()
    [ -d "$ZUM_ROOT/fuzz/corpus/$target" ] && committed=("$ZUM_ROOT/fuzz/corpus/$target")
    "$build/fuzz/$target" -merge=1 -max_len=$ZUM_FUZZ_MAX_LEN "$out/$target" \
      "${committed[@]}" "$raw/$target" >"$raw/$target.log" 2>&1 || {
      cat "$raw/$target.log"; rm -rf "$raw"; return 1; }
    echo "$target: $(ls "$out/$target" | wc -l) seeds of $(ls "$raw/$target" | wc -l) from streams" \
      "and $(ls "$ZUM_ROOT/fuzz/corpus/$target" 2>/dev/null | wc -l) committed"
  done
  rm -rf "$raw"
}
