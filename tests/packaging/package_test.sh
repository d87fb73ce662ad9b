#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the Debian package, unpacks it below a temporary root and starts the launcher in it with a
# fresh home folder: the client has to be installed, complete and running.
# usage: package_test.sh CPACK BUILD_FOLDER
set -euxo pipefail
readonly cpack=$1 build=$2

work=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-package.XXXXXX")
# Ends what was started from the work folder, a client without a pid file included.
trap 'pkill -KILL -f "^$work/" || true; rm -rf "$work"' EXIT

make_deb() { "$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$work/out" 2>&1; }
# Nobody ships the demo client by accident: it has to be named, here by the environment. The message
# is wrapped.
(! make_deb) | tr -s ' \n' ' ' | grep 'configure with -DLUMARIS_PACKAGE=FOLDER'
LUMARIS_PACKAGE=$build/packaging/bundle/package make_deb
[[ $(dpkg-deb -f "$work"/out/*.deb Depends) == *libarchive13*libicu*libqt* ]]

mkdir "$work"/{home,tmp}
dpkg-deb -x "$work"/out/*.deb "$work/root"
readonly installed=$work/root/opt/lumaris
readonly contents=$installed/LumarisLauncher.app/Contents
# That of the toolkit.
grep -q 'GNU LESSER GENERAL PUBLIC LICENSE' "$work/root/usr/share/doc/lumaris-launcher/copyright"
"$installed/bin/lumaris-verify" "$contents/Resources/package/lumaris.wpk"
env -u DISPLAY HOME="$work/home" TMPDIR="$work/tmp" XDG_RUNTIME_DIR="$work/tmp" LC_ALL=C.UTF-8 \
    QT_QPA_PLATFORM=offscreen "$contents/MacOS/launcher"
diff -r --no-dereference "$build/packaging/bundle/client/Lumaris.app" \
    "$work/home/.LumarisBackup/Lumaris.app"
timeout 60 sh -c 'until pgrep -f "^$0/home/.*/lumaris-backup-ui"; do sleep 0.1; done' "$work"
