#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Packs the bare sample client, for launcher bundles that are tested and not shipped.
# usage: sample-package.sh BUILD_FOLDER OUT
set -euo pipefail
[ $# -eq 2 ] || { echo "usage: sample-package.sh BUILD_FOLDER OUT" >&2; exit 2; }
build=$1 out=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
contents=$work/Lumaris.app/Contents
mkdir -p "$contents/MacOS" "$contents/Resources"
cp "$build/samples/client/lumaris-backup-ui" "$contents/MacOS/"
printf '[Version]\nmajor_version=2\nminor_version=5\nbuild_version=120\nicon_overlay_version=1\n' \
    > "$contents/Resources/INFO"
echo '<plist version="1.0"><dict/></plist>' > "$contents/Info.plist"
"$build/packaging/lumaris-pack/lumaris-pack" "$work/Lumaris.app" "$out"
