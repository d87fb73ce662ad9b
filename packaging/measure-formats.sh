#!/usr/bin/env bash
# Compares formats and compression of the package on one bundle, side by side: size, the time to
# pack, to count and to install it, that time over what bsdtar takes for the same file, and how many
# of 25 single flipped bits are noticed. Prints the table of docs/packages.md.
# usage: packaging/measure-formats.sh [BUILD_FOLDER [ROUNDS]]     default: build 5
set -euo pipefail
export LC_ALL=C
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=$(realpath "${1:-build}") rounds=${2:-5}
readonly MIN_BYTES=$((80 * 1000 * 1000))
readonly FLIPS=25
readonly CODINGS=("--format zip --level 6" "--format zip --level 1" "--filter xz"
                  "--filter zstd --level 3" "--filter zstd --level 12" "--filter none")

command -v bsdtar >/dev/null || { echo "measure-formats: install libarchive-tools" >&2; exit 1; }

cmake --build "$build" --target lumaris-pack lumaris-backup-ui extract-timing >/dev/null
pack=$build/packaging/lumaris-pack/lumaris-pack timing=$build/bench/extract-timing
work=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-measure.XXXXXX")
trap 'rm -rf "$work"' EXIT

# The demo client with the larger ones of the libraries that its programs load besides Qt and ICU: a
# bundle ships them when it cannot count on the machine it runs on.
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

seconds() { # seconds COMMAND...: how long it takes
    local start=$EPOCHREALTIME
    "$@"
    awk -v from="$start" -v to="$EPOCHREALTIME" 'BEGIN { print to - from }'
}

# noticed PACKAGE: how many flipped bits, spread over the whole file, make the installation fail
noticed() {
    local i at byte bytes count=0
    bytes=$(stat -c %s "$1")
    for ((i = 1; i <= FLIPS; ++i)); do
        at=$((bytes * i / (FLIPS + 1)))
        byte=$(od -An -tu1 -j "$at" -N 1 "$1")
        cp "$1" "$work/flipped"
        # shellcheck disable=SC2059 # the format is the byte
        printf "\\x$(printf %x $((byte ^ 1 << i % 8)))" |
            dd of="$work/flipped" bs=1 seek="$at" conv=notrunc status=none
        rm -rf "$work/installed"
        "$timing" "$work/flipped" "$work/installed" >/dev/null 2>&1 || ((++count))
    done
    echo "$count"
}

for i in "${!CODINGS[@]}"; do
    # shellcheck disable=SC2206 # several options
    options=(${CODINGS[i]})
    packing[i]=$(seconds "$pack" --build 121 --major 2 --minor 5 "${options[@]}" "$app" "$work/$i")
    "$timing" "$work/$i/package/lumaris.wpk" "$work/installed" >/dev/null
    diff -r --no-dereference "$app" "$work/installed"
    found[i]=$(noticed "$work/$i/package/lumaris.wpk")
done

# One round takes every coding in turn, so that other load on the machine meets all of them.
for ((round = 1; round <= rounds; ++round)); do
    for i in "${!CODINGS[@]}"; do
        package=$work/$i/package/lumaris.wpk
        rm -rf "$work/installed" "$work/peer"
        mkdir "$work/peer"
        read -r count install < <("$timing" "$package" "$work/installed")
        peer=$(seconds bsdtar -C "$work/peer" -xf "$package")
        echo "${CODINGS[i]};$(stat -c %s "$package");${packing[i]};$count;$install;$peer;${found[i]}"
    done
done > "$work/results"

awk -F';' -v flips="$FLIPS" '
    function median(list,    n, i, j, t, v) {
        n = split(list, v, " ")
        for (i = 2; i <= n; ++i)
            for (j = i; j > 1 && v[j - 1] + 0 > v[j] + 0; --j) { t = v[j]; v[j] = v[j - 1]; v[j - 1] = t }
        return v[int((n + 1) / 2)] + 0
    }
    !($1 in size) { keys[++rows] = $1 }
    {
        size[$1] = $2; packing[$1] = $3; found[$1] = $7
        counts[$1] = counts[$1] " " $4
        installs[$1] = installs[$1] " " $5
        ratios[$1] = ratios[$1] " " $5 / $6
    }
    END {
        print "| options | MB | pack, s | count, s | count and extract, s | over `bsdtar -xf` | noticed |"
        print "|---|---|---|---|---|---|---|"
        for (i = 1; i <= rows; ++i) {
            key = keys[i]
            printf "| `%s` | %.1f | %.1f | %.2f | %.2f | %.2f | %d of %d |\n", key, size[key] / 1e6,
                   packing[key], median(counts[key]), median(installs[key]), median(ratios[key]),
                   found[key], flips
        }
    }' "$work/results"
