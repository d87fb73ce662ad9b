#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Draws the icon of the dialog and the one of the bundle from ico_72_lumaris.svg; both are kept, so
# that a build needs neither tool. On Debian: apt-get install icnsutils librsvg2-bin
# usage: packaging/bundle/make-icon.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

for tool in rsvg-convert png2icns; do
    command -v "$tool" >/dev/null || { echo "error: $tool is missing" >&2; exit 1; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

draw() { rsvg-convert --width "$1" --height "$1" ico_72_lumaris.svg --output "$2"; }
for size in 16 32 48 128 256 512 1024; do
    draw "$size" "$work/$size.png"
done
png2icns lumaris.icns "$work"/*.png >/dev/null
draw 72 ico_72_lumaris.png
echo "drawn: lumaris.icns, ico_72_lumaris.png"
