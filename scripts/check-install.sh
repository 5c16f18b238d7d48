#!/usr/bin/env bash
# Installs a build into a temporary prefix and builds examples/consumer against
# it, once through the CMake package and once through pkg-config; then moves
# the prefix elsewhere and does both again, to prove the install relocatable.
# Usage: scripts/check-install.sh [BUILD-DIR]   (default: build)
set -euo pipefail
cd "$(dirname "$0")/.."
src=$PWD
build=$(cd "${1:-build}" && pwd)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset LD_LIBRARY_PATH PKG_CONFIG_PATH CMAKE_PREFIX_PATH

fail() { echo "check-install: FAILED: $*" >&2; exit 1; }
# Runs a command quietly; shows its output when it fails.
run() { "$@" >"$work/log" 2>&1 || { cat "$work/log" >&2; fail "$*"; }; }
cache() { sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"; }

version=$(cache CMAKE_PROJECT_VERSION)
major=${version%%.*}
libdir=$(cache CMAKE_INSTALL_LIBDIR)
includedir=$(cache CMAKE_INSTALL_INCLUDEDIR)
[ -n "$version" ] && [ -n "$libdir" ] && [ -n "$includedir" ] || fail "$build is not a configured build tree"
generator=()
command -v ninja >/dev/null && generator=(-G Ninja)

check_layout() {
    local prefix=$1 lib name
    for name in zum-parser zum-platform; do
        lib=$prefix/$libdir/lib$name.so
        [ -L "$lib" ] && [ "$(readlink "$lib")" = "lib$name.so.$major" ] || fail "$lib is not a link to lib$name.so.$major"
        [ -L "$lib.$major" ] && [ "$(readlink "$lib.$major")" = "lib$name.so.$version" ] || fail "$lib.$major is not a link to lib$name.so.$version"
        [ -f "$lib.$version" ] && [ ! -L "$lib.$version" ] || fail "$lib.$version missing"
        readelf -d "$lib.$version" | grep -q "(SONAME).*\[lib$name.so.$major\]" || fail "lib$name.so.$version has no SONAME lib$name.so.$major"
    done
    # Every header of src/ ships, in its folder, and nothing else does.
    diff <(cd src && find . -name '*.h' | sort) <(cd "$prefix/$includedir/zum-parser" && find . -type f | sort) ||
        fail "installed parser headers differ from src/**/*.h"
    diff <(cd platform/include/zum-platform && find . -name '*.h' | sort) <(cd "$prefix/$includedir/zum-platform" && find . -type f | sort) ||
        fail "installed platform headers differ from platform/include/zum-platform"
    for name in "$libdir/cmake/ZumParser/ZumParserConfig.cmake" "$libdir/cmake/ZumParser/ZumParserConfigVersion.cmake" \
                "$libdir/cmake/ZumParser/ZumParserTargets.cmake" "$libdir/pkgconfig/zum-parser.pc"; do
        [ -f "$prefix/$name" ] || fail "$name missing"
    done
    # A path of this machine in the package files would pin the install in place.
    if grep -rn -e "$work" -e "$src" -e "$build" "$prefix/$libdir/cmake" "$prefix/$libdir/pkgconfig"; then
        fail "package files hold absolute paths"
    fi
}

# Each installed header compiles alone with the install's include directory only.
check_headers() {
    local prefix=$1
    (cd "$prefix/$includedir" && find zum-parser zum-platform -name '*.h') |
        xargs -P "$(nproc)" -I{} sh -c 'echo "#include <{}>" | "$0" -std=c++17 -fsyntax-only -Wall -Wextra -I"$1" -x c++ - 2>&1 || echo "in {}"' \
            "${CXX:-c++}" "$prefix/$includedir" >"$work/headers.log"
    [ ! -s "$work/headers.log" ] || { cat "$work/headers.log" >&2; fail "installed headers do not compile on their own"; }
}

# Runs a consumer binary on the sample PAT and PMT sections and checks what it printed and where it took the libraries from.
check_run() {
    local prefix=$1 binary=$2 how=$3 name loaded
    "$binary" samples/pat.sec samples/pmt.sec >"$work/out.txt" 2>&1 || { cat "$work/out.txt" >&2; fail "$how consumer failed to run"; }
    diff -u examples/consumer/expected.txt "$work/out.txt" >&2 || fail "$how consumer printed something else"
    for name in zum-parser zum-platform; do
        loaded=$(ldd "$binary" | sed -n "s/^[[:space:]]*lib$name.so.$major => \([^ ]*\).*/\1/p")
        [ -n "$loaded" ] && [ "$(realpath "$loaded")" = "$(realpath "$prefix/$libdir/lib$name.so.$version")" ] ||
            { ldd "$binary" >&2; fail "$how consumer does not load lib$name from $prefix"; }
    done
    echo "  $how: ok"
}

consume() {
    local prefix=$1 tag=$2 out=$work/$2
    check_layout "$prefix"
    check_headers "$prefix"

    run cmake -S examples/consumer -B "$out/cmake" "${generator[@]}" -DCMAKE_PREFIX_PATH="$prefix"
    [ "$(sed -n 's/^ZumParser_DIR:PATH=//p' "$out/cmake/CMakeCache.txt")" = "$prefix/$libdir/cmake/ZumParser" ] ||
        fail "find_package took ZumParser from somewhere else than $prefix"
    run cmake --build "$out/cmake"
    check_run "$prefix" "$out/cmake/zum-consumer" "find_package"

    export PKG_CONFIG_PATH=$prefix/$libdir/pkgconfig
    [ "$(pkg-config --variable=pcfiledir zum-parser)" = "$PKG_CONFIG_PATH" ] || fail "pkg-config found another zum-parser.pc"
    [ "$(pkg-config --modversion zum-parser)" = "$version" ] || fail "zum-parser.pc has another version"
    mkdir -p "$out/pc"
    # shellcheck disable=SC2046  # the flags are meant to split
    run "${CXX:-c++}" -std=c++17 -Wall -Wextra examples/consumer/main.cpp -o "$out/pc/zum-consumer" \
        $(pkg-config --cflags zum-parser) $(pkg-config --libs zum-parser) \
        -Wl,-rpath,"$(pkg-config --variable=libdir zum-parser)"
    check_run "$prefix" "$out/pc/zum-consumer" "pkg-config"
    unset PKG_CONFIG_PATH
}

run cmake --install "$build" --prefix "$work/prefix"
echo "installed into a temporary prefix"
consume "$work/prefix" first

mkdir -p "$work/moved"
mv "$work/prefix" "$work/moved/elsewhere"
echo "moved the prefix"
consume "$work/moved/elsewhere" moved
echo "install and consumer check passed"
