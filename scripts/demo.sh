#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the launcher and shows, act by act, what it does with a real package in a fresh home folder.
# usage: scripts/demo.sh [--preset PRESET] [ACT...]     ACT: 1 to 7, or "languages"; default 1 to 7
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

preset=dev
if [ "${1:-}" = --preset ]; then
    preset=$2
    shift 2
fi
acts=("${@:-1 2 3 4 5 6 7}")
# shellcheck disable=SC2206 # the default is a list in one word
acts=(${acts[@]})

install_packages "${PACKAGES[@]}"
build "$preset"

BUILD=$ROOT/build
[ "$preset" = dev ] || BUILD=$ROOT/build-$preset
DEMO=$BUILD/demo
# shellcheck disable=SC2034 # for demo/stage.sh and demo/acts.sh
PACK=$BUILD/packaging/lumaris-pack/lumaris-pack
# shellcheck disable=SC2034 # for demo/stage.sh and demo/acts.sh
CLIENT=$BUILD/samples/client/lumaris-backup-ui
# shellcheck disable=SC2034 # for demo/launch.sh and demo/languages.sh
WATCH=$BUILD/scripts/dialog-watch/dialog-watch
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset LUMARIS_CLIENT_IGNORE_SIGTERM
source scripts/sanitizers.sh
for part in stage launch acts languages; do
    # shellcheck source=/dev/null # each is checked separately
    source "scripts/demo/$part.sh"
done

mkdir -p "$DEMO"
WORK=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-demo.XXXXXX")

# Ends everything that still runs, including launchers and clients from the work folder, and removes
# the folder.
clean_up() {
    stop_display
    local process
    for process in $(jobs -p); do
        kill "$process" 2>/dev/null || true
    done
    for process in /proc/[0-9]*; do
        [[ "$(readlink "$process/exe" 2>/dev/null)" == "$WORK"/* ]] &&
            kill -9 "${process#/proc/}" 2>/dev/null
    done
    rm -rf "$WORK"
}
trap clean_up EXIT

fail() { die "act $ACT: $*"; }
check() { # check "what is true" COMMAND...
    local what=$1
    shift
    "$@" >/dev/null 2>&1 || fail "not true: $what"
    say "  ok: $what"
}

start_display "$WORK/screen"
for ACT in "${acts[@]}"; do
    case $ACT in
        [1-7] | languages) "act_$ACT" ;;
        *) die "there is no act '$ACT'" ;;
    esac
    # No client runs on into the next act.
    clients=$(client_pid || true)
    [ -z "$clients" ] || kill -9 "$clients" 2>/dev/null || true
done
say "all acts ended as described: ${acts[*]}"
