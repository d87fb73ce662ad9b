#!/bin/sh
# SPDX-License-Identifier: MIT
# Packs a small client with lumaris-pack: the same bytes each time, or one line and nothing left.
# usage: lumaris_pack_test.sh LUMARIS_PACK
set -eu
umask 022
export LC_ALL=C
pack=$1
verify=${pack%/*}/lumaris-verify
work=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-pack-test.XXXXXX")
trap 'rm -rf "$work"' EXIT
mkdir "$work/here" "$work/tools"
cd "$work/here"
export pack verify work

# client: makes Client.app anew, with names that a program could mistake for something else.
client() {
    rm -rf Client.app
    mkdir -p Client.app/Contents/MacOS Client.app/Contents/Resources Client.app/-C
    echo plist > Client.app/Contents/Info.plist
    echo program > Client.app/Contents/MacOS/lumaris-backup-ui
    chmod 755 Client.app/Contents/MacOS/lumaris-backup-ui
    echo text > 'Client.app/Contents/a\tb *'
    ln 'Client.app/Contents/a\tb *' Client.app/Contents/hard-link
    printf '%s\n' '[Version]' major_version=2 minor_version=5 build_version=121 \
        icon_overlay_version=1 > Client.app/Contents/Resources/INFO
}

# expect STATUS TEXT COMMAND: it ends so, says one line with the text, and leaves no other files.
expect() {
    ls > "$work/before"
    status=0
    sh -c "$3" > "$work/said" 2>&1 || status=$?
    if [ $status != "$1" ] || ! grep -qF -e "$2" "$work/said" ||
        [ "$(wc -l < "$work/said")" != 1 ] || ! ls | cmp -s - "$work/before"; then
        echo "FAILED: $3: not status $1 and '$2', but $status and:"
        cat "$work/said"
        ls
        exit 1
    fi
}

client
"$pack" Client.app first
tar -tf first/package/lumaris.wpk | head -n -2 | sort -c
cmp first/INFO Client.app/Contents/Resources/INFO
mkdir unpacked
tar -xpf first/package/lumaris.wpk -C unpacked
diff -r Client.app unpacked
mv unpacked 'another place' # whose files have times of their own, and no two are one
TAR_OPTIONS=--totals CDPATH=$PWD TZ=Asia/Tokyo "$pack" 'another place/' "$work/second/"
cmp first/package/lumaris.wpk "$work/second/package/lumaris.wpk"

pack_out='"$pack" Client.app out'
expect 2 usage '"$pack" Client.app'
expect 1 "'first' exists" '"$pack" Client.app first'
expect 1 'lies in the client' 'cd Client.app/Contents && "$pack" .. Resources/out'
expect 1 'cannot be made' '"$pack" Client.app none/out'
expect 1 "'first/Contents/Resources/INFO' cannot be read" '"$pack" first out'
expect 1 'unknown date format' "SOURCE_DATE_EPOCH=- $pack_out"
expect 1 'No space left' "$pack_out >/dev/full"
for tool in sh dirname sed tar; do
    ln -s "$(command -v $tool)" "$work/tools/"
done
expect 1 'zstd is missing' "PATH=\$work/tools; $pack_out"
ln -sf "$(command -v true)" "$work/tools/tar"
expect 1 'GNU tar is missing' "PATH=\$work/tools; $pack_out"

# expect_refused TEXT HARM: what was done to the client is the reason. Root passes over permissions.
[ "$(id -u)" != 0 ] || owner='setpriv --bounding-set -dac_override,-dac_read_search'
expect_refused() {
    client
    (cd Client.app/Contents && eval "$2")
    expect 1 "$1" "${3-} ${owner-} $pack_out"
}
expect_refused 'no number minor_version' 'sed -i s/r_version=5/r_version=x/ Resources/INFO'
expect_refused 'has a line break' "touch 'two
lines'"
expect_refused 'Cannot open: Permission denied' 'chmod 0 Info.plist'
expect_refused 'Permission denied' 'mkdir -m 0 closed'
expect_refused "Info.plist' is missing" 'rm Info.plist'
expect_refused "'out' cannot be written: zstd" 'head -c 9M /dev/urandom > big' 'trap "" XFSZ; ulimit -f 99;'
client
truncate -s 100G Client.app/Contents/big # takes minutes to read
expect 1 interrupted "$pack_out & until ls out.*/out/package/*; do sleep .1; done >/dev/null 2>&1
    kill \$!; wait \$!"

expect 2 usage '"$verify"'
expect 1 'cannot be opened' '"$verify" none'
expect 1 'standard output' '"$verify" first/package/lumaris.wpk >&-'
tar --no-recursion -C Client.app -Scf "$work/holes" Contents/Info.plist Contents/big \
    Contents/MacOS/lumaris-backup-ui Contents/Resources/INFO
expect 1 "'Contents/big' has holes" '"$verify" "$work/holes"'
tar -cf "$work/empty" -T /dev/null
! "$verify" "$work/empty" 2> "$work/said" && [ "$(wc -l < "$work/said")" = 4 ]
