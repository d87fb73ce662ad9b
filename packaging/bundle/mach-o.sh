# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Shared by the scripts that look into a bundle for macOS; sourced, not run. They call the tools by
# their names there, so that they do the same here with LLVM's under these names.
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

# need TOOL...: says which one is missing
need() {
    local tool
    for tool in "$@"; do
        command -v "$tool" >/dev/null || die "$tool is missing"
    done
}
