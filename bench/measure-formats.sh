#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares formats and compressions of the package on one bundle: its size, the times to pack it, to
# count its entries and to install it, and that time as a multiple of bsdtar's. Then flips bits in
# packages of a small client, cuts off their ends, and counts what becomes of them. Prints the tables of
# docs/packages.md.
# usage: bench/measure-formats.sh [BUILD_FOLDER [ROUNDS]]     default: build-release 5
set -euo pipefail
export LC_ALL=C
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=$(realpath "${1:-build-release}") rounds=${2:-5}
readonly MIN_BYTES=$((80 * 1000 * 1000))
readonly FLIPS=1000 CUTS=1000
readonly FORMATS=(lumaris-pack "zstd -3 --check" "zstd -19 --check" zip "xz -6" cat)

command -v bsdtar >/dev/null || { echo "measure-formats: install libarchive-tools" >&2; exit 1; }

cmake --build "$build" --target lumaris-verify lumaris-backup-ui extract-timing damage >/dev/null
pack=$build/packaging/lumaris-pack/lumaris-pack timing=$build/bench/extract-timing
work=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-measure.XXXXXX")
trap 'rm -rf "$work"' EXIT

# stage APP: the demo client with the larger libraries that its programs load besides Qt and ICU. A real
# bundle ships such libraries when it cannot rely on those of the machine.
stage() {
    local app=$1 library
    packaging/demo/stage-client.sh 121 "$build/samples/client/lumaris-backup-ui" "$app" >/dev/null
    { find "$app" -type f -perm -100 -exec ldd {} + 2>/dev/null || true; } |
        awk '$2 == "=>" && $3 ~ /^\// { print $3 }' | sort -u | { grep -Ev '/lib(Qt5|icu)' || true; } |
        while read -r library; do
            (($(stat -L -c %s "$library") < 500000)) ||
                install -m 755 "$library" "$app/Contents/Frameworks/"
        done
}

app=$work/Lumaris.app
stage "$app"
bytes=$(find "$app" -type f -printf '%s\n' | awk '{ sum += $1 } END { printf "%d", sum }')
((bytes >= MIN_BYTES)) || { echo "measure-formats: only $bytes bytes" >&2; exit 1; }
echo "$(find "$app" | wc -l) entries, $bytes bytes, median of $rounds"

seconds() { # seconds COMMAND...: prints how long it takes
    local start=$EPOCHREALTIME
    "$@"
    awk -v from="$start" -v to="$EPOCHREALTIME" 'BEGIN { print to - from }'
}

# pack_as FORMAT APP PACKAGE: packs with lumaris-pack, with bsdtar, or with a command that compresses the
# tar that lumaris-pack made last
pack_as() {
    case $1 in
        lumaris-pack)
            rm -rf "$work/out"
            "$pack" "$2" "$work/out" >/dev/null
            cp "$work/out/package/lumaris.wpk" "$3"
            ;;
        zip) bsdtar --format zip -C "$2" -cf "$3" Contents ;;
        *) zstd -dqc "$work/out/package/lumaris.wpk" | $1 > "$3" ;;
    esac
}

for i in "${!FORMATS[@]}"; do
    packing[i]=$(seconds pack_as "${FORMATS[i]}" "$app" "$work/$i")
    "$timing" "$work/$i" "$work/installed" >/dev/null
    diff -r --no-dereference "$app" "$work/installed"
done

# Each round measures every format once, so that other load on the machine affects all of them.
for ((round = 1; round <= rounds; ++round)); do
    for i in "${!FORMATS[@]}"; do
        package=$work/$i
        rm -rf "$work/installed" "$work/peer"
        mkdir "$work/peer"
        read -r count install < <("$timing" "$package" "$work/installed")
        peer=$(seconds bsdtar -C "$work/peer" -xf "$package")
        echo "${FORMATS[i]};$(stat -c %s "$package");${packing[i]};$count;$install;$peer"
    done
done | bench/format-table.py

# A small client with every kind of entry: damage then hits a name, a type or permissions as often as
# content, and thousands of packages can be installed in a minute.
small=$work/small/Lumaris.app
mkdir -p "$small/Contents/MacOS" "$small/Contents/Resources" "$small/Contents/Frameworks/A/Versions/5"
cp "$build/samples/client/lumaris-backup-ui" "$small/Contents/MacOS/"
cp "$app/Contents/Resources/INFO" "$small/Contents/Resources/"
cp "$app/Contents/Info.plist" "$small/Contents/"
seq 2000 > "$small/Contents/Resources/numbers"
echo secret > "$small/Contents/Resources/secret"
chmod 400 "$small/Contents/Resources/secret"
ln -s 5 "$small/Contents/Frameworks/A/Versions/Current"

echo
echo "| package | bytes | flips: refused | whole | wrong | cuts: refused | whole | wrong |"
echo "|---|---|---|---|---|---|---|---|"
mkdir "$work/damage"
for format in lumaris-pack zip "xz -6" cat; do
    pack_as "$format" "$small" "$work/small/package"
    read -r refused whole wrong cut_refused cut_whole cut_wrong < <(
        "$build/bench/damage" "$work/small/package" "$work/damage" "$FLIPS" "$CUTS")
    echo "| \`$format\` | $(stat -c %s "$work/small/package") | $refused | $whole | $wrong |" \
        "$cut_refused | $cut_whole | $cut_wrong |"
done
