#!/usr/bin/env bash
# Installs what is missing, builds and runs every test.
# usage: scripts/test.sh [PRESET]     PRESET: dev (default), qt6, asan or tsan
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

source scripts/sanitizers.sh

preset=${1:-dev}
[ "$preset" != qt6 ] || PACKAGES+=("${QT6_PACKAGES[@]}")
install_packages "${PACKAGES[@]}"
build "$preset"
ctest --preset "$preset" --no-tests=error
