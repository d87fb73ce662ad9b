#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Joins two bundles, each installed for one processor, into one for both. Whatever is neither program
# nor library must be the same in both. The result has no valid signature: sign it afterwards.
# usage: join.sh FIRST.app SECOND.app OUT.app
source "$(dirname "${BASH_SOURCE[0]}")/mach-o.sh"
[ $# -eq 3 ] || { echo "usage: join.sh FIRST.app SECOND.app OUT.app" >&2; exit 2; }
first=$1 second=$2 out=$3
for bundle in "$first" "$second"; do
    [ -d "$bundle/Contents/MacOS" ] || die "$bundle is no bundle"
done
need lipo

# processors FILE: x86_64, arm64 or both, with one blank between them
processors() {
    local names
    read -ra names <<< "$(lipo -archs "$1")"
    echo "${names[*]}"
}

# Signatures of the parts say nothing about the whole.
names() { (cd "$1" && find . \( -type f -o -type l \) ! -path '*/_CodeSignature/*' | LC_ALL=C sort); }
different=$(diff <(names "$first") <(names "$second") | grep -m 1 '^[<>]' || true)
[ -z "$different" ] || die "in one bundle only: ${different#??}"

rm -rf "$out"
cp -R "$first" "$out"
find "$out" -depth -name _CodeSignature -exec rm -rf {} +
while IFS= read -r name; do
    [ ! -L "$out/$name" ] || continue
    if ! is_mach_o "$out/$name"; then
        cmp -s "$first/$name" "$second/$name" || die "${name#./} differs between the bundles"
        continue
    fi
    # Made for both processors already, as by the toolkit's makers, it serves as it is.
    case $(processors "$first/$name"),$(processors "$second/$name") in
    *' '*,*) ;;
    *,*' '*) cp "$second/$name" "$out/$name" ;;
    *) lipo -create "$first/$name" "$second/$name" -output "$out/$name" ;;
    esac
done < <(names "$first")
echo "$(basename "$out"): $(processors "$out/Contents/MacOS/launcher")"
