#!/usr/bin/env bash
# Compares formats and compression of the package on one bundle, side by side: size, and the time to
# pack, to count and to install it. Prints the table of docs/packages.md, with ratios to the default
# of lumaris-pack. Takes about ten minutes with three rounds.
# usage: packaging/measure-formats.sh [BUILD_FOLDER [ROUNDS]]     default: build 3
set -euo pipefail
export LC_ALL=C
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=$(realpath "${1:-build}") rounds=${2:-3}
readonly MIN_BYTES=$((80 * 1000 * 1000))
readonly BASE="--filter xz"
readonly CODINGS=("--filter gzip --level 6" "--filter xz" "--filter zstd --level 3"
                  "--filter zstd --level 12" "--filter zstd --level 19"
                  "--format zip --level 6" "--format 7zip --level 6")

cmake --build "$build" --target lumaris-pack lumaris-backup-ui extract-timing >/dev/null
pack=$build/packaging/lumaris-pack/lumaris-pack
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
    # 7zip takes no other names; without these four tiny files every format packs the same.
    find "$app" -name '*[! -~]*' -delete
    ln -sf "$(basename "$(echo "$app"/Contents/Resources/help/0*)")" \
        "$app/Contents/Resources/help/index.txt"
}

app=$work/Lumaris.app
stage "$app"
bytes=$(find "$app" -type f -printf '%s\n' | awk '{ sum += $1 } END { printf "%d", sum }')
((bytes >= MIN_BYTES)) || { echo "measure-formats: only $bytes bytes" >&2; exit 1; }
echo "$(find "$app" | wc -l) entries, $bytes bytes, median of $rounds"

# One round takes every coding in turn, so that other load on the machine meets all of them.
for ((round = 1; round <= rounds; ++round)); do
    for coding in "${CODINGS[@]}"; do
        rm -rf "$work/out" "$work/installed"
        start=$(date +%s.%N)
        # shellcheck disable=SC2086 # several options
        "$pack" --build 121 --major 2 --minor 5 $coding "$app" "$work/out"
        packed=$(date +%s.%N)
        package=$work/out/package/lumaris.wpk
        times=$("$build/bench/extract-timing" "$package" "$work/installed")
        diff -r --no-dereference "$app" "$work/installed"
        echo "$coding;$(stat -c %s "$package");$(echo "$packed $start" | awk '{ print $1 - $2 }');${times/ /;}"
    done
done > "$work/results"

awk -F';' -v base="$BASE" '
    function median(key, column,    n, i, j, t, v) {
        n = split(values[key, column], v, " ")
        for (i = 2; i <= n; ++i)
            for (j = i; j > 1 && v[j - 1] + 0 > v[j] + 0; --j) { t = v[j]; v[j] = v[j - 1]; v[j - 1] = t }
        return v[int((n + 1) / 2)] + 0
    }
    function cell(key, column, unit, digits) {
        return sprintf("%." digits "f (%.2f)", median(key, column) / unit,
                       median(key, column) / median(base, column))
    }
    !($1 in seen) { seen[$1] = 1; keys[++count] = $1 }
    { for (column = 2; column <= 5; ++column) values[$1, column] = values[$1, column] " " $column }
    END {
        print "| options | MB | pack, s | count, s | count and extract, s |"
        print "|---|---|---|---|---|"
        for (i = 1; i <= count; ++i)
            printf "| `%s` | %s | %s | %s | %s |\n", keys[i], cell(keys[i], 2, 1e6, 1),
                   cell(keys[i], 3, 1, 1), cell(keys[i], 4, 1, 2), cell(keys[i], 5, 1, 2)
    }' "$work/results"
