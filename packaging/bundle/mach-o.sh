# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Shared by the scripts that inspect a macOS bundle; sourced, not run. The scripts call the tools by
# their macOS names; on Linux LLVM's tools stand in under these names.
set -euo pipefail

die() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# is_mach_o FILE: whether it is a program or a library, for one processor or for several
is_mach_o() {
    case $(od -An -N4 -tx1 "$1" | tr -d ' \n') in
    cffaedfe | cafebabe) return 0 ;;
    *) return 1 ;;
    esac
}

# need TOOL...: fails when one is missing
need() {
    local tool
    for tool in "$@"; do
        command -v "$tool" >/dev/null || die "$tool is missing"
    done
}
