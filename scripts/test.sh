#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs missing packages, builds and runs all tests. --long runs the stress, sweep and volume tests only,
# and in full, which takes about four minutes.
# usage: scripts/test.sh [--long] [PRESET]     PRESET: dev (default), release, qt6, asan or tsan
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

source scripts/sanitizers.sh

which=(--timeout 600 --parallel "$(nproc)")
if [ "${1:-}" = --long ]; then
    which=(--timeout 7200 --tests-regex "(stress|sweep|volume)" --verbose)
    export LUMARIS_LONG=1
    shift
fi
preset=${1:-dev}
[ "$preset" != qt6 ] || PACKAGES+=("${QT6_PACKAGES[@]}")
install_packages "${PACKAGES[@]}"
build "$preset"
ctest --preset "$preset" --no-tests=error "${which[@]}"
