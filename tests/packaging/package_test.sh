#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the Debian package, installs it below a temporary root with a package database of its own (the
# machine's stays as it is) and starts the launcher in it with a fresh home folder: the client has to
# be installed, complete and running.
# usage: package_test.sh CPACK BUILD_FOLDER
set -euxo pipefail
readonly cpack=$1 build=$2

work=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-package.XXXXXX")
# Ends what was started from the work folder, a client without a pid file included.
trap 'pkill -KILL -f "^$work/" || true; rm -rf "$work"' EXIT

package() { "$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$work/out" 2>&1; }
# Nobody ships the demo client by accident.
(! package) | tr -s ' \n' ' ' | grep 'configure with -DLUMARIS_PACKAGE=FOLDER'
LUMARIS_PACKAGE=$build/packaging/bundle/package package
[[ $(dpkg-deb -f "$work"/out/*.deb Depends) == *libarchive13*libicu*libqt* ]]

mkdir -p "$work"/{home,tmp} "$work"/root/var/lib/dpkg/{info,updates}
touch "$work/root/var/lib/dpkg/status"
# The libraries that it depends on are the machine's and not in that root.
PATH=$PATH:/usr/sbin:/sbin dpkg --root="$work/root" --force-depends --force-not-root --log=/dev/null \
    -i "$work"/out/*.deb
readonly installed=$work/root/opt/lumaris contents=$work/root/opt/lumaris/LumarisLauncher.app/Contents
"$installed/bin/lumaris-pack" --verify "$contents/Resources/package/lumaris.wpk"
env -u DISPLAY HOME="$work/home" TMPDIR="$work/tmp" XDG_RUNTIME_DIR="$work/tmp" LC_ALL=C.UTF-8 \
    QT_QPA_PLATFORM=offscreen "$contents/MacOS/launcher"
diff -r --no-dereference "$build/packaging/bundle/client/Lumaris.app" \
    "$work/home/.LumarisBackup/Lumaris.app"
until pgrep -f "^$work/home/.*/lumaris-backup-ui"; do
    ((SECONDS < 60))
    sleep 0.1
done
