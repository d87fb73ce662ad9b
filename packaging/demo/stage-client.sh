#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds a client bundle to package, install and start in demonstrations and measurements. It is as
# large and varied as a real one, but made only of files from qtbase5-dev and libicu-dev.
#
#   stage-client.sh BUILD CLIENT_EXECUTABLE OUT_APP
#
# Replaces an earlier bundle at OUT_APP; a failure leaves nothing half-built.
set -euo pipefail
export LC_ALL=C QT_SELECT=qt5  # the qmake of Qt 5, even when Qt 6 is installed, too

readonly FRAMEWORKS=(Core Gui Widgets Network DBus)
readonly HEADERS=(Widgets Network)
readonly ICU_LIBRARIES=(data uc i18n)
readonly PLUGINS=(bearer egldeviceintegrations generic imageformats platforminputcontexts platforms
                  printsupport sqldrivers xcbglintegrations)

fail() {
    printf 'stage-client: %s\n' "$*" >&2
    exit 1
}

[[ $# -eq 3 ]] || { echo "usage: stage-client.sh BUILD CLIENT_EXECUTABLE OUT_APP" >&2; exit 2; }
readonly build=$1 client=$2 out=${3%/}
[[ $build =~ ^[0-9]+$ ]] || fail "the build '$build' is not a number"
[[ -f $client && -x $client ]] || fail "'$client' is not an executable file"
if [[ -e $out || -L $out ]]; then
    [[ -d $out && ! -L $out ]] || fail "'$out' exists and is not a folder"
    [[ -d $out/Contents || -z $(ls -A "$out") ]] || fail "'$out' exists and is not a bundle"
fi

# The launcher's languages, so that they are listed in one place.
languages=$(sed -n '/<array>/,/<\/array>/s/.*<string>\(.*\)<\/string>/\1/p' \
    "$(dirname "${BASH_SOURCE[0]}")/../bundle/Info.plist.in")
libs=$(qmake -query QT_INSTALL_LIBS) || fail "qmake does not run; install qtbase5-dev"
plugins=$(qmake -query QT_INSTALL_PLUGINS)
headers=$(qmake -query QT_INSTALL_HEADERS)

mkdir -p "$(dirname "$out")"
stage=$(mktemp -d "$out.XXXXXX")
trap 'rm -rf "$stage"' EXIT
readonly contents=$stage/Contents
readonly frameworks=$contents/Frameworks resources=$contents/Resources

# copy_library FILE NEW_PATH: copies the file behind a development link and makes it executable
copy_library() {
    [[ -f $1 ]] || fail "'$1' is missing; install qtbase5-dev and libicu-dev"
    install -D -m 755 "$1" "$2"
}

# plist IDENTIFIER EXECUTABLE TYPE
plist() {
    cat <<PLIST
<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
    <key>CFBundleExecutable</key><string>$2</string>
    <key>CFBundleIdentifier</key><string>$1</string>
    <key>CFBundlePackageType</key><string>$3</string>
    <key>CFBundleShortVersionString</key><string>2.5</string>
    <key>CFBundleVersion</key><string>$build</string>
</dict>
</plist>
PLIST
}

for name in "${FRAMEWORKS[@]}"; do
    folder=$frameworks/Qt$name.framework
    copy_library "$libs/libQt5$name.so.5" "$folder/Versions/5/Qt$name"
    mkdir "$folder/Versions/5/Resources"
    plist "org.qt-project.Qt$name" "Qt$name" FMWK > "$folder/Versions/5/Resources/Info.plist"
    ln -s 5 "$folder/Versions/Current"
    ln -s "Versions/Current/Qt$name" Versions/Current/Resources "$folder"
done
for name in "${HEADERS[@]}"; do
    folder=$frameworks/Qt$name.framework
    mkdir "$folder/Versions/5/Headers"
    # Plain files only: the subfolders hold private headers, which another package installs.
    find "$headers/Qt$name" -maxdepth 1 -type f \
        -exec install -m 644 -t "$folder/Versions/5/Headers" {} +
    ln -s Versions/Current/Headers "$folder"
done
for name in "${ICU_LIBRARIES[@]}"; do
    copy_library "$libs/libicu$name.so" "$frameworks/libicu$name.so.1"
    ln -s "libicu$name.so.1" "$frameworks/libicu$name.so"
done
for name in "${PLUGINS[@]}"; do
    [[ -d $plugins/$name ]] || continue
    install -D -m 755 -t "$frameworks/plugins/$name" "$plugins/$name"/*.so
done

for name in $languages; do
    mkdir -p "$resources/$name.lproj"
    echo 'CFBundleName = "Lumaris Backup";' > "$resources/$name.lproj/InfoPlist.strings"
done

# Names that are likely to break: a composed and a decomposed umlaut, Japanese, and one that is too
# long for the name field of a tar header.
mkdir "$resources/help" "$contents/PlugIns"
printf -v long '%0120d' 0
for name in $'\xc3\x9cbersicht' $'Gru\xcc\x88\xc3\x9fe' "$long" \
    $'\xe3\x83\x90\xe3\x83\x83\xe3\x82\xaf\xe3\x82\xa2\xe3\x83\x83\xe3\x83\x97'; do
    echo help > "$resources/help/$name.txt"
done
ln -s $'\xc3\x9cbersicht.txt' "$resources/help/index.txt"

install -D -m 755 "$client" "$contents/MacOS/lumaris-backup-ui"
plist com.lumaris.backup lumaris-backup-ui APPL > "$contents/Info.plist"
printf 'APPL????' > "$contents/PkgInfo"
printf '%s\n' '[Version]' major_version=2 minor_version=5 "build_version=$build" \
    icon_overlay_version=1 > "$resources/INFO"
# The permissions must not depend on the caller's umask.
chmod -R u=rwX,go=rX "$stage"

entries=$(find "$stage" -mindepth 1 | wc -l)
bytes=$(find "$stage" -type f -printf '%s\n' | awk '{ sum += $1 } END { printf "%d", sum }')
((entries >= 300)) || fail "only $entries entries, at least 300 are needed"
((bytes >= 50000000)) || fail "only $bytes bytes, at least 50000000 are needed"
rm -rf "$out"
mv "$stage" "$out"
echo "$out: $entries entries, $bytes bytes"
