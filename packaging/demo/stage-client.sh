#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Puts together a client bundle to package, install and start in demonstrations and measurements:
# as large and as mixed as a real one, made only of files that come with qtbase5-dev and libicu-dev.
#
#   stage-client.sh BUILD CLIENT_EXECUTABLE OUT_APP
#
# OUT_APP is replaced when it is an earlier bundle; nothing is left half-built.
set -euo pipefail
export LC_ALL=C QT_SELECT=qt5  # qmake is that of Qt 5, whatever else is installed

readonly MIN_ENTRIES=300
readonly MIN_BYTES=$((50 * 1000 * 1000))
readonly FRAMEWORKS=(Core Gui Widgets Network DBus)
readonly HEADERS=(Widgets Network)
readonly ICU_LIBRARIES=(data uc i18n)
readonly PLUGINS=(bearer egldeviceintegrations generic imageformats platforminputcontexts platforms
                  printsupport sqldrivers xcbglintegrations)
readonly LANGUAGES=(cs da de en es fr hu it ja ko nl no pl pt_BR pt_PT ru sv tr zh_CN zh_TW)

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

libs=$(qmake -query QT_INSTALL_LIBS) || fail "qmake does not run; install qtbase5-dev"
plugins=$(qmake -query QT_INSTALL_PLUGINS)
headers=$(qmake -query QT_INSTALL_HEADERS)
readonly libs plugins headers

mkdir -p "$(dirname "$out")"
stage=$(mktemp -d "$out.XXXXXX")
readonly stage
trap 'rm -rf "$stage"' EXIT
readonly contents=$stage/Contents
readonly resources=$contents/Resources

# copy_library FILE NEW_PATH: the file behind a development link, with the permissions of a program
copy_library() {
    [[ -f $1 ]] || fail "'$1' is missing; install qtbase5-dev and libicu-dev"
    install -D -m 755 "$1" "$2"
}

stage_framework() {
    local folder=$contents/Frameworks/Qt$1.framework
    copy_library "$libs/libQt5$1.so.5" "$folder/Versions/5/Qt$1"
    mkdir -p "$folder/Versions/5/Resources"
    plist "org.qt-project.Qt$1" "Qt$1" FMWK > "$folder/Versions/5/Resources/Info.plist"
    ln -s 5 "$folder/Versions/Current"
    ln -s "Versions/Current/Qt$1" "$folder/Qt$1"
    ln -s Versions/Current/Resources "$folder/Resources"
}

stage_headers() {
    local folder=$contents/Frameworks/Qt$1.framework
    mkdir -p "$folder/Versions/5/Headers"
    # Plain files only: private headers, from another package, lie in folders beside them.
    find "$headers/Qt$1" -maxdepth 1 -type f \
        -exec install -m 644 -t "$folder/Versions/5/Headers" {} +
    ln -s Versions/Current/Headers "$folder/Headers"
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

stage_libraries() {
    local name
    for name in "${FRAMEWORKS[@]}"; do
        stage_framework "$name"
    done
    for name in "${HEADERS[@]}"; do
        stage_headers "$name"
    done
    for name in "${ICU_LIBRARIES[@]}"; do
        copy_library "$libs/libicu$name.so" "$contents/Frameworks/libicu$name.so.1"
        ln -s "libicu$name.so.1" "$contents/Frameworks/libicu$name.so"
    done
    for name in "${PLUGINS[@]}"; do
        [[ -d $plugins/$name ]] || continue
        install -D -m 755 -t "$contents/Frameworks/plugins/$name" "$plugins/$name"/*.so
    done
}

stage_languages() {
    local name
    for name in "${LANGUAGES[@]}"; do
        mkdir -p "$resources/$name.lproj"
        printf 'CFBundleName = "Lumaris Backup";\n' > "$resources/$name.lproj/InfoPlist.strings"
    done
}

# The names that go wrong first: composed, decomposed, no Latin letter, longer than a tar header.
stage_names() {
    local help=$resources/help
    local long
    printf -v long '%0120d' 0
    mkdir -p "$help" "$contents/PlugIns"
    echo overview > "$help"/$'\xc3\x9cbersicht.txt'
    echo greetings > "$help"/$'Gru\xcc\x88\xc3\x9fe.txt'
    echo backup > "$help"/$'\xe3\x83\x90\xe3\x83\x83\xe3\x82\xaf\xe3\x82\xa2\xe3\x83\x83\xe3\x83\x97.txt'
    echo long > "$help/$long.txt"
    ln -s $'\xc3\x9cbersicht.txt' "$help/index.txt"
}

stage_client() {
    install -D -m 755 "$client" "$contents/MacOS/lumaris-backup-ui"
    plist com.lumaris.backup lumaris-backup-ui APPL > "$contents/Info.plist"
    printf 'APPL????' > "$contents/PkgInfo"
    cat > "$resources/INFO" <<INFO
[Version]
major_version=2
minor_version=5
build_version=$build
icon_overlay_version=1
INFO
}

check_result() {
    local entries bytes
    entries=$(find "$stage" -mindepth 1 | wc -l)
    bytes=$(find "$stage" -type f -printf '%s\n' | awk '{ sum += $1 } END { printf "%d", sum }')
    ((entries >= MIN_ENTRIES)) || fail "only $entries entries, at least $MIN_ENTRIES are needed"
    ((bytes >= MIN_BYTES)) || fail "only $bytes bytes, at least $MIN_BYTES are needed"
    echo "$out: $entries entries, $bytes bytes"
}

stage_libraries
stage_languages
stage_names
stage_client
# The caller's umask is no property of the bundle.
chmod -R u=rwX,go=rX "$stage"
summary=$(check_result)
rm -rf "$out"
mv "$stage" "$out"
echo "$summary"
