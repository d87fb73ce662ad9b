#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks every load path of every program and library in a bundle: each must lead to a file in the
# bundle or to a library of the system. Otherwise the program cannot start, at least on other machines.
# usage: check-loads.sh BUNDLE
source "$(dirname "${BASH_SOURCE[0]}")/mach-o.sh"
[ $# -eq 1 ] || { echo "usage: check-loads.sh BUNDLE" >&2; exit 2; }
[ -d "$1/Contents/MacOS" ] || die "$1 is not a bundle"
need otool
bundle=$(cd "$1" && pwd)

# loads FILE: prints the paths of the libraries that it loads, for every processor. The list of a
# library starts with its own name, which is left out.
loads() {
    local own
    own=$(otool -arch all -D "$1" | grep -v ':$' | sort -u || true)
    otool -arch all -L "$1" | sed -n 's/^[[:space:]]\{1,\}\(.*\) (compatibility.*/\1/p' |
        grep -vxF -- "${own:-none}" | sort -u || true
}

# check_load FILE PATH: fails unless PATH, as FILE loads it, leads to a file of the bundle or the system
check_load() {
    local target
    case $2 in
    /usr/lib/* | /System/Library/*) return ;;
    @executable_path/*) target=$bundle/Contents/MacOS/${2#@executable_path/} ;;
    @loader_path/*) target=$(dirname "$1")/${2#@loader_path/} ;;
    *) die "${1#"$bundle/"} loads $2, which is neither in the bundle nor in the system" ;;
    esac
    target=$(cd "$(dirname "$target")" 2>/dev/null && pwd -P)/$(basename "$target") || target=none
    case $target in
    "$(cd "$bundle" && pwd -P)"/*) [ -f "$target" ] && return ;;
    esac
    die "${1#"$bundle/"} loads $2, which is not in the bundle"
}

files=0 paths=0
while IFS= read -r file; do
    is_mach_o "$file" || continue
    files=$((files + 1))
    while IFS= read -r path; do
        [ -n "$path" ] || continue
        check_load "$file" "$path"
        paths=$((paths + 1))
    done <<< "$(loads "$file")"
done < <(find "$bundle" -type f)
[ "$paths" -gt 0 ] || die "$1 holds no program for macOS"
echo "$(basename "$bundle"): $paths load paths of $files binaries all lead into it or the system"
