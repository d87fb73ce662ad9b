#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the Debian package, installs it below a temporary root with a package database of its own (the
# machine's stays as it is) and starts the launcher in it with a fresh home folder: the client has to
# be installed, complete and running.
# usage: package_test.sh CPACK BUILD_FOLDER
set -euo pipefail
cpack=$1 build=$2

fail() {
    printf 'package_test: %s\n' "$*" >&2
    exit 1
}

work=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-package.XXXXXX")
client_pid() { sed -n 's/^pid=//p' "$work/home/.LumarisBackup/ui.pid" 2>/dev/null; }
client_runs() {
    [[ $(readlink "/proc/$(client_pid)/exe") == "$work"/home/*/lumaris-backup-ui ]]
}
# Ends what was started from the work folder, a client without a pid file included.
clean_up() {
    local process
    for process in /proc/[0-9]*; do
        [[ $(readlink "$process/exe") != "$work"/* ]] || kill -KILL "${process#/proc/}" || true
    done
    rm -rf "$work"
}
trap clean_up EXIT

# Nobody ships the demo client by accident.
if "$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$work/out" >"$work/cpack.log" 2>&1; then
    fail "packaged without a client to ship"
fi
grep -q 'configure with -DLUMARIS_PACKAGE=FOLDER' <(tr -s ' \n' ' ' <"$work/cpack.log") ||
    fail "no word of the client to ship: $(cat "$work/cpack.log")"
export LUMARIS_PACKAGE=$build/packaging/bundle/package
"$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$work/out" >"$work/cpack.log" 2>&1 ||
    fail "no package: $(cat "$work/cpack.log")"
deb=$(echo "$work"/out/*.deb)
for library in libqt libarchive13 libicu; do
    [[ $(dpkg-deb -f "$deb" Depends) == *$library* ]] || fail "the package does not depend on $library"
done
mkdir -p "$work/root/var/lib/dpkg/info" "$work/root/var/lib/dpkg/updates"
touch "$work/root/var/lib/dpkg/status"
# The libraries that it depends on are the machine's and not in that root.
PATH=$PATH:/usr/sbin:/sbin dpkg --root="$work/root" --force-depends --force-not-root --log=/dev/null \
    -i "$deb" >"$work/dpkg.log" 2>&1 || fail "not installable: $(cat "$work/dpkg.log")"
installed=$work/root/opt/lumaris
bundle=$installed/LumarisLauncher.app
"$installed/bin/lumaris-pack" --verify "$bundle/Contents/Resources/package/lumaris.wpk" >/dev/null ||
    fail "the package of the bundle is refused"

mkdir "$work/home" "$work/tmp"
env -u DISPLAY HOME="$work/home" TMPDIR="$work/tmp" XDG_RUNTIME_DIR="$work/tmp" LC_ALL=C.UTF-8 \
    QT_QPA_PLATFORM=offscreen "$bundle/Contents/MacOS/launcher" >"$work/log" 2>&1 ||
    fail "the launcher ended with $?: $(cat "$work/log")"
diff -r --no-dereference "$build/packaging/bundle/client/Lumaris.app" \
    "$work/home/.LumarisBackup/Lumaris.app" || fail "another client was installed"
for _ in $(seq 100); do
    ! client_runs || exit 0
    sleep 0.1
done
fail "the client does not run"
