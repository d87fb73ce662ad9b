#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Signs a bundle from the inside out, since each signature seals what is inside, and verifies the
# result. IDENTITY "-" gives an ad-hoc signature: it names nobody, but programs for Apple silicon only
# run with a valid signature.
# usage: sign.sh BUNDLE IDENTITY [OPTION OF codesign...]
source "$(dirname "${BASH_SOURCE[0]}")/mach-o.sh"
[ $# -ge 2 ] || { echo "usage: sign.sh BUNDLE IDENTITY [OPTION...]" >&2; exit 2; }
[ -d "$1/Contents/MacOS" ] || die "$1 is not a bundle"
need codesign
bundle=$1 identity=$2
shift 2

sign() { codesign --force "${options[@]}" --sign "$identity" "$1"; }

options=(--prefix com.lumaris.backup. "$@") # the prefix is for libraries, which have no identifier
while IFS= read -r library; do
    sign "$library"
done < <(find "$bundle/Contents/Frameworks" -type f -name '*.dylib')
for framework in "$bundle"/Contents/Frameworks/*.framework; do
    [ ! -d "$framework" ] || sign "$framework"
done
sign "$bundle"
codesign --verify --deep --strict "$bundle"
echo "$(basename "$bundle"): signed by '$identity'"
