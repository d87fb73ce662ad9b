#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Draws the icons of the dialog and of the bundle from ico_72_lumaris.svg. Both are kept in the
# repository, so that a build needs no drawing tools.
# usage: packaging/bundle/make-icon.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/lib.sh"

install_packages icnsutils librsvg2-bin
cd packaging/bundle
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

draw() { rsvg-convert --width "$1" --height "$1" ico_72_lumaris.svg --output "$2"; }
for size in 16 32 48 128 256 512 1024; do
    draw "$size" "$work/$size.png"
done
png2icns lumaris.icns "$work"/*.png >/dev/null
draw 72 ico_72_lumaris.png
say "drawn: lumaris.icns, ico_72_lumaris.png"
