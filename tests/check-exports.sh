#!/usr/bin/env bash
# Fails when libzum-parser.so exports more than its boundary, or lacks a
# SONAME carrying the major version.  Usage: check-exports.sh LIBRARY MAJOR
set -euo pipefail
lib=$1
major=$2

soname=$(readelf -d "$lib" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
if [ "$soname" != "libzum-parser.so.$major" ]; then
    echo "SONAME is '$soname', expected libzum-parser.so.$major"
    exit 1
fi

# Rule: an exported symbol belongs to a TC/TT/TS/I class (members, vtable, typeinfo) or is named below; weak std:: and
# compiler-made instances are tolerated, and so are weak boost:: ones (the exception types Boost marks visible).
named='^(_TCParserAssert|PrintSignalMessage|PrintXmlFormat|CEXTEventLinkageInfo|CAudioPreselection|CSSULinkLoop|CSSUInfoLoop|M7HomeTPLinkageData|OSDT|SDContent|CLogoData|SubDescriptor)$'

# Sets scope to the outermost scope of a mangled name: its class, namespace or free function.
owner() {
    local s=${1#_Z}
    local special='^(T[IVSTHWC]|Th[n]?[0-9]+_|Tv[n]?[0-9]+_[n]?[0-9]+_|Tc([hv][n]?[0-9]+_([n]?[0-9]+_)?){2}|GV|Z|L|N[rVKRO]*)'
    scope=$1
    [ "$s" != "$1" ] || return 0
    while [[ $s =~ $special ]]; do s=${s:${#BASH_REMATCH[0]}}; done
    if [[ $s =~ ^S[tabsiod] ]]; then
        scope=std
    elif [[ $s =~ ^([0-9]+) ]]; then
        local n=${BASH_REMATCH[1]}
        scope=${s:${#n}:$n}
    else
        scope="?$s"
    fi
}

mapfile -t types < <(nm -D --defined-only "$lib" | awk '{ print $2 }')
mapfile -t syms < <(nm -D --defined-only "$lib" | awk '{ print $3 }')
mapfile -t plains < <(printf '%s\n' "${syms[@]}" | c++filt)
bad=0
for i in "${!syms[@]}"; do
    type=${types[$i]} plain=${plains[$i]}
    owner "${syms[$i]}"
    if [[ $plain == *zum_diag::* || $plain == *zumtest::* || $plain == *"(anonymous namespace)"* ]]; then
        :
    elif [[ $scope =~ ^(TC|TT|TS|I)[A-Z] || $scope =~ $named ]]; then
        continue
    elif [[ $type =~ ^[WVu]$ && ($scope == std || $scope == __gnu_cxx || $scope == boost) ]]; then
        continue
    elif [[ $type =~ ^[WVu]$ && ${syms[$i]} =~ ^_ZT[IS] && $scope == "?"* ]]; then
        continue  # typeinfo of a pointer, reference or function type, made by -fsanitize
    elif [[ ${syms[$i]} =~ ^__(start|stop)___sancov_ ]]; then
        continue  # bounds of the coverage sections of an instrumented (fuzzing) build
    fi
    echo "exported but not part of the boundary: $plain"
    bad=1
done
[ ${#syms[@]} -gt 0 ] || { echo "no exported symbol in $lib"; exit 1; }
exit $bad
