#!/bin/sh
# SPDX-License-Identifier: MIT
# Packs a small client with lumaris-pack: the same bytes each time, or one line and nothing left.
# usage: lumaris_pack_test.sh LUMARIS_PACK
set -eu
export LC_ALL=C
pack=$1
work=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-pack-test.XXXXXX")
trap 'rm -rf "$work"' EXIT
mkdir "$work/here" && cd "$work/here"

# Makes Client.app anew, with a folder -C that tar could take for an option.
make_client() {
    rm -rf Client.app
    mkdir -p Client.app/Contents/MacOS Client.app/Contents/Resources Client.app/-C
    echo plist > Client.app/Contents/Info.plist
    echo program > Client.app/Contents/MacOS/lumaris-backup-ui
    chmod 755 Client.app/Contents/MacOS/lumaris-backup-ui
    printf '%s\n' '[Version]' major_version=2 minor_version=5 build_version=121 \
        icon_overlay_version=1 > Client.app/Contents/Resources/INFO
}

# expect STATUS TEXT COMMAND...: the command, in a subshell, exits with the status, prints one line
# that holds the text, and leaves no new file.
expect() {
    status=0 before=$(ls)
    (shift 2 && "$@") > "$work/said" 2>&1 || status=$?
    if [ "$status" != "$1" ] || [ "$(ls)" != "$before" ] ||
        [ "$(wc -l < "$work/said")" != 1 ] || ! grep -qF -e "$2" "$work/said"; then
        printf 'FAILED, expected: %s\nbut status %s, and there is: %s\n' "$*" $status "$(ls)"
        cat "$work/said"
        exit 1
    fi
}

make_client
"$pack" Client.app first > "$work/said"
printf '7 entries, GNU tar format, zstd\nfirst: version 2.5.121\n' | diff - "$work/said"
# Sorted, but for the executable and INFO, which the verifier wants at the end.
tar -tf first/package/lumaris.wpk | head -n -2 | sort -c

# The same from another place, with other times and settings.
cp -r Client.app 'another place'
TAR_OPTIONS=--totals CDPATH=$PWD TZ=Asia/Tokyo "$pack" 'another place/' "$work/second/"
cmp first/package/lumaris.wpk "$work/second/package/lumaris.wpk"

pack_into_client() { cd Client.app/Contents && "$pack" .. Resources/out; }
# Writes beyond the limit fail then, as on a full disk, and send no signal.
pack_on_full_disk() { trap '' XFSZ && ulimit -f 99 && "$pack" big out; }
cp -r Client.app big
head -c 1M /dev/urandom > big/file
expect 2 usage "$pack" Client.app
expect 1 "'first' exists" "$pack" Client.app first
expect 1 'lies in the client' pack_into_client
expect 1 "'out' cannot be written: zstd" pack_on_full_disk

# refused TEXT HARM...: what is done to the client is the reason. Root passes
# over permissions, so it drops that right.
[ "$(id -u)" != 0 ] || without_override='setpriv --bounding-set -dac_override,-dac_read_search'
refused() {
    make_client
    (shift && cd Client.app/Contents && "$@")
    # shellcheck disable=SC2086 # it is no word or more than one
    expect 1 "$1" ${without_override-} "$pack" Client.app out
}
refused 'no number minor_version' sed -i s/minor_version=5/minor_version=x/ Resources/INFO
refused 'has a line break' touch "$(printf 'two\nlines')"
refused 'Cannot open: Permission denied' chmod 0 Info.plist
refused "Info.plist' is missing" rm Info.plist

# Minutes to read, interrupted once something of it is in the work folder of the packer. The status
# comes from wait.
pack_until_killed() {
    "$pack" big out &
    until ls out.*/out/package/*; do sleep .1; done > /dev/null 2>&1
    kill $! && wait $!
}
truncate -s 100G big/file
expect 1 interrupted pack_until_killed

cd big # a Mac cannot store such holes, so the verifier refuses them, too
tar -Scf ../sparse.tar file Contents/Info.plist Contents/MacOS/lumaris-backup-ui Contents/Resources/INFO
expect 1 "'file' has holes" "${pack%/*}/lumaris-verify" ../sparse.tar
