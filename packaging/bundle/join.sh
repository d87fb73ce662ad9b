#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Joins two bundles for one processor each into one for both. All files except programs and libraries
# must be identical. The result has no valid signature: sign it afterwards.
# usage: join.sh FIRST.app SECOND.app OUT.app
source "$(dirname "${BASH_SOURCE[0]}")/mach-o.sh"
[ $# -eq 3 ] || { echo "usage: join.sh FIRST.app SECOND.app OUT.app" >&2; exit 2; }
first=$1 second=$2 out=$3
for bundle in "$first" "$second"; do
    [ -d "$bundle/Contents/MacOS" ] || die "$bundle is not a bundle"
done
need lipo

# processors FILE: prints x86_64, arm64 or both, separated by one space
processors() {
    local names
    read -ra names <<< "$(lipo -archs "$1")"
    echo "${names[*]}"
}

# names BUNDLE: prints its files and links. The signatures are not valid for the joined bundle.
names() { (cd "$1" && find . \( -type f -o -type l \) ! -path '*/_CodeSignature/*' | LC_ALL=C sort); }
different=$(diff <(names "$first") <(names "$second") | grep -m 1 '^[<>]' || true)
[ -z "$different" ] || die "only in one of the bundles: ${different#??}"

rm -rf "$out"
cp -R "$first" "$out"
find "$out" -depth -name _CodeSignature -exec rm -rf {} +
while IFS= read -r name; do
    [ ! -L "$out/$name" ] || continue
    if ! is_mach_o "$out/$name"; then
        cmp -s "$first/$name" "$second/$name" || die "${name#./} differs between the bundles"
        continue
    fi
    # A file for both processors, such as Qt from its makers, is taken as it is.
    case $(processors "$first/$name"),$(processors "$second/$name") in
    *' '*,*) ;;
    *,*' '*) cp "$second/$name" "$out/$name" ;;
    *) lipo -create "$first/$name" "$second/$name" -output "$out/$name" ;;
    esac
done < <(names "$first")
echo "$(basename "$out"): $(processors "$out/Contents/MacOS/launcher")"
