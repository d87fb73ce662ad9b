#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares the launcher (release build) with the usual tools for the same work, prints the results and
# writes them to docs/performance.md. Keep only results from an otherwise idle machine.
# usage: scripts/bench.sh [CASE...]     CASE: part of a case's title; the page then stays as it is
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

install_packages "${PACKAGES[@]}" libarchive-tools python3-matplotlib
build release

WORK=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-bench.XXXXXX")
OTHER_VOLUME=$(mktemp -d /dev/shm/lumaris-bench.XXXXXX) # on another volume than WORK
clean_up() {
    stop_display
    rm -rf "$WORK" "$OTHER_VOLUME"
}
trap clean_up EXIT
[ "$(stat -c %d "$WORK")" != "$(stat -c %d "$OTHER_VOLUME")" ] ||
    die "the temporary folder lies in memory; set TMPDIR to a folder on a disk"

start_display "$WORK/screen"
mkdir "$WORK/tmp"
TMPDIR=$WORK/tmp LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb PYTHONDONTWRITEBYTECODE=1 \
    bench/compare.py "$ROOT/build-release" "$WORK" "$OTHER_VOLUME" "$@"
