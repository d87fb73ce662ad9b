# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Makes what an act starts with: a home folder, a launcher bundle, a package; sourced by demo.sh.

# new_home NAME: makes a fresh home folder and temporary folder; sets HOME_DIR and TMP_DIR.
new_home() {
    HOME_DIR=$WORK/$1/home
    TMP_DIR=$WORK/$1/tmp
    # shellcheck disable=SC2034 # for launch.sh and acts.sh
    USER_DIR=$HOME_DIR/.LumarisBackup
    mkdir -p "$HOME_DIR" "$TMP_DIR"
}

# new_bundle NAME BUILD: copies the staged bundle, puts that build into it and makes it log debug
# messages; sets BUNDLE.
new_bundle() {
    BUNDLE=$WORK/$1.app
    cp -R "$BUILD/LumarisLauncher.app" "$BUNDLE"
    if [ "$2" != 120 ]; then
        make_package "$2"
        ship "$WORK/package-$2"
    fi
    printf '%s=7\n' launcher_debug service_debug extractor_debug > "$BUNDLE/log/launcher.debug"
}

# ship FOLDER: puts the package that lumaris-pack wrote to FOLDER into the bundle.
ship() {
    cp "$1/package/lumaris.wpk" "$BUNDLE/Contents/Resources/package/"
    cp "$1/INFO" "$BUNDLE/Contents/Resources/INFO"
}

# make_package BUILD: makes the client folder of that build and its package, unless they exist.
make_package() {
    [ -d "$WORK/package-$1" ] && return
    "$ROOT/packaging/demo/stage-client.sh" "$1" "$CLIENT" "$WORK/client-$1/Lumaris.app" >/dev/null
    "$PACK" "$WORK/client-$1/Lumaris.app" "$WORK/package-$1" >/dev/null
}

client_folder() {
    if [ "$1" = 120 ]; then
        printf '%s' "$BUILD/packaging/bundle/client/Lumaris.app"
    else
        printf '%s' "$WORK/client-$1/Lumaris.app"
    fi
}
