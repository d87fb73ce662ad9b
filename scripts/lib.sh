# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Shared by the scripts of this folder; sourced, not run.

set -euo pipefail

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$ROOT"

# What building, testing and the demo need beyond a bare Debian 12.
# shellcheck disable=SC2034 # for the scripts that source this file
PACKAGES=(
    g++ cmake ninja-build
    qtbase5-dev qttools5-dev-tools libarchive-dev libicu-dev libgtest-dev
    libbenchmark-dev libspdlog-dev python3-fusepy
    dpkg-dev file zstd xvfb openbox xdotool x11-utils imagemagick time procps strace python3
    fonts-liberation fonts-noto-cjk
)

# For the preset qt6, in addition: the demo client is always made of files from Qt 5.
# shellcheck disable=SC2034 # for test.sh
QT6_PACKAGES=(qt6-base-dev qt6-base-dev-tools qt6-l10n-tools)

say() { printf '%s\n' "$*"; }

die() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

DISPLAY_PIDS=()

# install_packages NAME...: installs those that are missing; without root it names them and fails.
install_packages() {
    local package missing=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null)" = "ii " ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    [ "$(id -u)" -eq 0 ] || die "missing packages; as root: apt-get install ${missing[*]}"
    say "installing: ${missing[*]}"
    apt-get -qq update
    DEBIAN_FRONTEND=noninteractive apt-get -qq -y --no-install-recommends install \
        "${missing[@]}" >/dev/null
}

# build PRESET: configures and builds what has changed.
build() {
    say "building ($1)"
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1"
}

# start_display FOLDER: starts a display of our own, with its screen in FOLDER/Xvfb_screen0, and a window
# manager for the title bar; sets DISPLAY. stop_display ends both.
start_display() {
    mkdir -p "$1"
    Xvfb -displayfd 3 -fbdir "$1" -screen 0 640x360x24 -nocursor -nolisten tcp \
        3>"$1/display" >"$1/xvfb.log" 2>&1 &
    DISPLAY_PIDS+=($!)
    for _ in $(seq 100); do
        [ -s "$1/display" ] && break
        sleep 0.1
    done
    [ -s "$1/display" ] || die "Xvfb did not start: $(cat "$1/xvfb.log")"
    DISPLAY=":$(cat "$1/display")"
    export DISPLAY
    XDG_CACHE_HOME=$1 XDG_CONFIG_HOME=$1 HOME=$1 openbox >"$1/openbox.log" 2>&1 &
    DISPLAY_PIDS+=($!)
    for _ in $(seq 100); do
        xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 0x && return
        sleep 0.1
    done
    die "the window manager did not start: $(cat "$1/openbox.log")"
}

stop_display() {
    [ ${#DISPLAY_PIDS[@]} -eq 0 ] || kill "${DISPLAY_PIDS[@]}" 2>/dev/null || true
    wait "${DISPLAY_PIDS[@]}" 2>/dev/null || true
    DISPLAY_PIDS=()
}
