#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds and runs every test, or with --long those that take minutes.
# usage: scripts/test.sh [--long] [PRESET]     PRESET: dev (default), qt6, asan or tsan
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

source scripts/sanitizers.sh

which=(--label-exclude long)
if [ "${1:-}" = --long ]; then
    which=(--label-regex long --verbose)
    shift
fi
preset=${1:-dev}
[ "$preset" != qt6 ] || PACKAGES+=("${QT6_PACKAGES[@]}")
install_packages "${PACKAGES[@]}"
build "$preset"
ctest --preset "$preset" --no-tests=error "${which[@]}"
