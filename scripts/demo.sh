#!/usr/bin/env bash
# Builds the launcher and shows, act by act, what it does with a real package in a fresh home folder.
# usage: scripts/demo.sh [--preset PRESET] [ACT...]     ACT: 1 to 7, or "languages"; default 1 to 7
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

preset=dev
if [ "${1:-}" = --preset ]; then
    preset=$2
    shift 2
fi
acts=("${@:-1 2 3 4 5 6 7}")
# shellcheck disable=SC2206 # the default is a list in one word
acts=(${acts[@]})

install_packages "${PACKAGES[@]}"
build "$preset"

BUILD=$ROOT/build
[ "$preset" = dev ] || BUILD=$ROOT/build-$preset
DEMO=$BUILD/demo
PACK=$BUILD/packaging/lumaris-pack/lumaris-pack
CLIENT=$BUILD/samples/client/lumaris-backup-ui
WATCH=$BUILD/scripts/dialog-watch/dialog-watch
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset LUMARIS_CLIENT_IGNORE_SIGTERM
source scripts/sanitizers.sh

mkdir -p "$DEMO"
WORK=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-demo.XXXXXX")

# Ends what still runs, launchers and clients from the work folder included, then removes that.
clean_up() {
    stop_display
    local process
    for process in $(jobs -p); do
        kill "$process" 2>/dev/null || true
    done
    for process in /proc/[0-9]*; do
        [[ "$(readlink "$process/exe" 2>/dev/null)" == "$WORK"/* ]] &&
            kill -9 "${process#/proc/}" 2>/dev/null
    done
    rm -rf "$WORK"
}
trap clean_up EXIT

fail() { die "act $ACT: $*"; }
check() { # check "what is true" COMMAND...
    local what=$1
    shift
    "$@" >/dev/null 2>&1 || fail "not so: $what"
    say "  ok: $what"
}

# new_home NAME: a fresh home folder and temporary folder in HOME_DIR and TMP_DIR.
new_home() {
    HOME_DIR=$WORK/$1/home
    TMP_DIR=$WORK/$1/tmp
    USER_DIR=$HOME_DIR/.LumarisBackup
    mkdir -p "$HOME_DIR" "$TMP_DIR"
}

# new_bundle NAME BUILD: a copy of the staged bundle in BUNDLE that carries that build; its log
# thresholds are raised.
new_bundle() {
    BUNDLE=$WORK/$1.app
    cp -R "$BUILD/LumarisLauncher.app" "$BUNDLE"
    if [ "$2" != 120 ]; then
        make_package "$2"
        cp "$WORK/package-$2/package/lumaris.wpk" "$BUNDLE/Contents/Resources/package/"
        cp "$WORK/package-$2/INFO" "$BUNDLE/Contents/Resources/INFO"
    fi
    printf '%s=7\n' launcher_debug service_debug extractor_debug > "$BUNDLE/log/launcher.debug"
}

# make_package BUILD: the client folder of that build and its package, made once.
make_package() {
    [ -d "$WORK/package-$1" ] && return
    "$ROOT/packaging/demo/stage-client.sh" "$1" "$CLIENT" "$WORK/client-$1/Lumaris.app" >/dev/null
    "$PACK" --level 1 --major 2 --minor 5 --build "$1" "$WORK/client-$1/Lumaris.app" \
        "$WORK/package-$1"
}

client_folder() {
    if [ "$1" = 120 ]; then
        printf '%s' "$BUILD/packaging/bundle/client/Lumaris.app"
    else
        printf '%s' "$WORK/client-$1/Lumaris.app"
    fi
}

folder() {
    say "  the home folder $1:"
    (cd "$HOME_DIR" && find . -maxdepth 3 ! -path './.LumarisBackup/Lumaris.app*/Contents' |
        LC_ALL=C sort | sed 's/^/    /')
    [ ! -d "$USER_DIR/Lumaris.app" ] ||
        say "    (Lumaris.app: $(find "$USER_DIR/Lumaris.app" | wc -l) entries, build $(installed_build))"
}

# launch: one start, awaited; leaves STATUS, SECONDS_TAKEN and PEAK_KB.
launch() {
    folder before
    local from log_start
    log_start=$({ cat "$USER_DIR/log/launcher.log" 2>/dev/null || true; } | wc -l)
    from=$(date +%s%N)
    start_launcher
    STATUS=0
    wait "$LAUNCHER" || STATUS=$?
    SECONDS_TAKEN=$((($(date +%s%N) - from) / 1000000000))
    PEAK_KB=$(tail -n 1 "$HOME_DIR/../peak")
    say "  the log of this run:"
    tail -n "+$((log_start + 1))" "$USER_DIR/log/launcher.log" | sed "s#$WORK#...#g; s/^/    /"
    folder after
    check "exit status 0" [ "$STATUS" -eq 0 ]
}

# start_launcher [VARIABLE=VALUE...]: the same without waiting; process in LAUNCHER, output beside the home folder.
start_launcher() {
    env HOME="$HOME_DIR" TMPDIR="$TMP_DIR" XDG_RUNTIME_DIR="$TMP_DIR" "$@" \
        time -q -f %M -o "$HOME_DIR/../peak" "$BUNDLE/Contents/MacOS/launcher" \
        >"$HOME_DIR/../out" 2>"$HOME_DIR/../err" &
    LAUNCHER=$!
}

installed_build() {
    sed -n 's/^build_version=//p' "$USER_DIR/Lumaris.app/Contents/Resources/INFO"
}
client_pid() { sed -n 's/^pid=//p' "$USER_DIR/ui.pid" 2>/dev/null; }
client_runs() { # waits for it: the launcher does not
    for _ in $(seq 50); do
        [ "$(readlink "/proc/$(client_pid)/exe" 2>/dev/null)" = \
            "$USER_DIR/Lumaris.app/Contents/MacOS/lumaris-backup-ui" ] && return
        sleep 0.1
    done
    return 1
}
client_gone() { # waits for it: a killed process may take a moment to leave
    for _ in $(seq 20); do
        [ -e "/proc/$1" ] || return 0
        sleep 0.1
    done
    return 1
}
# Names, kinds, link targets, permissions and contents of a tree.
tree_state() {
    (cd "$1" && find . -printf '%p %y %l %M\n' | LC_ALL=C sort &&
        find . -type f -print0 | LC_ALL=C sort -z | xargs -0 sha256sum)
}
bundle_is() { # bundle_is BUILD: the installed bundle is that client folder, byte for byte
    cmp <(tree_state "$(client_folder "$1")") <(tree_state "$USER_DIR/Lumaris.app")
}
no_backups() { ! compgen -G "$USER_DIR/Lumaris.app_tmp*"; }
logged() { grep -qF -- "$1" "$USER_DIR/log/launcher.log"; }
install_120() { # the state after act 1, without showing it
    start_launcher "$@"
    wait "$LAUNCHER" && client_runs || fail "build 120 could not be installed"
}

# The last step is on the screen for some milliseconds only; on a busy machine the dialog may be
# hidden before it is painted, so the first start gets three fresh home folders to show it.
act_1() {
    say "== Act 1: first start in an empty home folder installs the client and starts it"
    new_bundle launcher 120
    local attempt watch last=
    for attempt in 1 2 3; do
        new_home "1-$attempt"
        "$WATCH" "$WORK/screen/Xvfb_screen0" "$WORK/dialog.xwd" > "$DEMO/dialog-trace.txt" &
        watch=$!
        launch
        sleep 0.2
        kill "$watch"
        wait "$watch" 2>/dev/null || true
        check "the bundle is the packaged client, byte for byte" bundle_is 120
        check "the client runs" client_runs
        last=$(tail -n 1 "$DEMO/dialog-trace.txt" | cut -d' ' -f2)
        [ "$last" != 100 ] || break
        say "  the dialog was last painted at ${last:-nothing}; once more"
        kill -9 "$(client_pid)"
    done
    convert "xwd:$WORK/dialog.xwd" -trim +repage "$DEMO/dialog.png"
    say "  the dialog went through $(wc -l < "$DEMO/dialog-trace.txt") steps; picture: $DEMO/dialog.png"
    check "the dialog was shown and followed to 100" [ "$last" = 100 ]
    printf '%s\n' "$PEAK_KB" > "$DEMO/peak-act-1"
}

act_2() {
    say "== Act 2: second start with the same build changes nothing and opens the client again"
    new_home 2
    new_bundle launcher2 120
    install_120
    "$WATCH" "$WORK/screen/Xvfb_screen0" "$WORK/none.xwd" > "$WORK/trace-2" &
    local watch=$! starts
    starts=$(wc -l < "$USER_DIR/log/client.log")
    launch
    sleep 0.2
    kill "$watch"
    wait "$watch" 2>/dev/null || true
    check "no dialog was shown" [ ! -s "$WORK/trace-2" ]
    check "the log says that there is no need to upgrade" logged "no need to upgrade"
    check "the client was opened again" [ "$(wc -l < "$USER_DIR/log/client.log")" -gt "$starts" ]
    check "the client runs" client_runs
}

upgrade_to_121() { # upgrade_to_121 [VARIABLE=VALUE...]: the variables go to the old client
    new_bundle "launcher$ACT" 120
    install_120 "$@"
    OLD_CLIENT=$(client_pid)
    mkdir -p "$USER_DIR/app/Contents"
    echo aged > "$USER_DIR/app/Contents/old"
    new_bundle "launcher$ACT-121" 121
    launch
    check "the old client is gone" client_gone "$OLD_CLIENT"
    check "the bundle is build 121, byte for byte" bundle_is 121
    check "no backups are left" no_backups
    check "the aged folder is gone" [ ! -e "$USER_DIR/app" ]
    check "the new client runs" client_runs
}

act_3() {
    say "== Act 3: build 121 over 120 while the client runs: stopped, replaced, started"
    new_home 3
    upgrade_to_121
    check "the old client left because it was asked" \
        grep -q "asked to end, pid $OLD_CLIENT\$" "$USER_DIR/log/client.log"
}

act_4() {
    say "== Act 4: the same with a client that ignores SIGTERM: killed after about five seconds"
    new_home 4
    upgrade_to_121 LUMARIS_CLIENT_IGNORE_SIGTERM=1
    check "that took at least five seconds ($SECONDS_TAKEN), and not twice that" \
        [ "$SECONDS_TAKEN" -ge 5 -a "$SECONDS_TAKEN" -lt 10 ]
}

act_5() {
    say "== Act 5: a package cut in half over an installed build is rolled back"
    new_home 5
    new_bundle launcher5 120
    install_120
    new_bundle launcher5-121 121
    local package=$BUNDLE/Contents/Resources/package/lumaris.wpk
    truncate -s $(($(stat -c %s "$package") / 2)) "$package"
    launch
    check "the log says so" logged "Failed to extract package, rollback to old installation"
    check "the bundle is build 120 again, byte for byte" bundle_is 120
    check "no backups are left" no_backups
    check "the old client runs" client_runs
}

act_6() {
    say "== Act 6: a second launcher leaves at once; a killed one blocks nobody"
    new_home 6
    new_bundle launcher6 120
    install_120 LUMARIS_CLIENT_IGNORE_SIGTERM=1 # keeps the upgrade busy for five seconds
    make_package 121
    cp "$WORK/package-121/package/lumaris.wpk" "$BUNDLE/Contents/Resources/package/"
    cp "$WORK/package-121/INFO" "$BUNDLE/Contents/Resources/INFO"

    start_launcher
    sleep 1.5
    pkill -KILL -P "$LAUNCHER" || fail "the launcher to kill has already ended"
    wait "$LAUNCHER" 2>/dev/null || true
    check "the first launcher was killed; its lock is left behind" \
        compgen -G "$TMP_DIR/*lockfile"

    start_launcher
    local first=$LAUNCHER from
    sleep 1.5
    from=$(date +%s%N)
    env HOME="$HOME_DIR" TMPDIR="$TMP_DIR" "$BUNDLE/Contents/MacOS/launcher" > "$WORK/second" \
        2>/dev/null || fail "the second launcher did not exit with 0"
    check "the second launcher exited with 0 within two seconds" \
        [ $(($(date +%s%N) - from)) -lt 2000000000 ]
    check "it printed its line: $(cat "$WORK/second")" grep -q "^lib path = '" "$WORK/second"
    check "it said why" logged "app has already launched, return"
    check "the first one still works" kill -0 "$first"
    STATUS=0
    wait "$first" || STATUS=$?
    folder after
    check "the first one ended with 0" [ "$STATUS" -eq 0 ]
    check "the bundle is build 121, byte for byte" bundle_is 121
    check "the new client runs" client_runs
}

act_7() {
    say "== Act 7: a package of 100,000 small entries: the dialog moves, memory stays flat"
    new_home 7
    new_bundle launcher7 120
    local client=$WORK/many/Lumaris.app files=$WORK/many/Lumaris.app/Contents/Resources/many
    mkdir -p "$client/Contents/MacOS" "$files"
    cp "$CLIENT" "$client/Contents/MacOS/"
    printf '[Version]\nmajor_version=2\nminor_version=5\nbuild_version=130\nicon_overlay_version=1\n' \
        > "$client/Contents/Resources/INFO"
    (cd "$files" && seq 100000 | split -a 5 -d -l 1 - entry-)
    "$PACK" --level 1 --major 2 --minor 5 --build 130 "$client" "$WORK/package-many"
    cp "$WORK/package-many/package/lumaris.wpk" "$BUNDLE/Contents/Resources/package/"
    cp "$WORK/package-many/INFO" "$BUNDLE/Contents/Resources/INFO"

    "$WATCH" "$WORK/screen/Xvfb_screen0" "$WORK/none.xwd" > "$DEMO/dialog-trace-many.txt" &
    local watch=$!
    launch
    sleep 0.2
    kill "$watch"
    wait "$watch" 2>/dev/null || true
    local steps pause base
    steps=$(wc -l < "$DEMO/dialog-trace-many.txt")
    pause=$(awk 'NR > 1 && $1 - last > max { max = $1 - last } { last = $1 } END { print max + 0 }' \
        "$DEMO/dialog-trace-many.txt")
    check "100,000 small files are there" \
        [ "$(find "$USER_DIR/Lumaris.app/Contents/Resources/many" -type f | wc -l)" -eq 100000 ]
    check "the dialog moved in $steps steps (at least 60)" [ "$steps" -ge 60 ]
    check "it never stood still for two seconds (longest pause $pause ms)" [ "$pause" -lt 2000 ]
    base=$(cat "$DEMO/peak-act-1" 2>/dev/null || echo 0)
    [ "$base" -gt 0 ] || fail "run act 1 first: its peak memory is the measure"
    check "peak memory $PEAK_KB KB is within 40 MB of act 1's $base KB" \
        [ $((PEAK_KB - base)) -lt 40960 ]
    check "the client runs" client_runs
}

act_languages() {
    say "== Languages: the dialog under all twenty locales, on one sheet"
    declare -A locales=([enu]=en_US [cht]=zh_TW [chs]=zh_CN [jpn]=ja_JP [deu]=de_DE [krn]=ko_KR
        [fra]=fr_FR [ita]=it_IT [esn]=es_ES [ptb]=pt_BR [rus]=ru_RU [dan]=da_DK [nor]=nb_NO
        [sve]=sv_SE [nld]=nl_NL [plk]=pl_PL [hun]=hu_HU [ptg]=pt_PT [trk]=tr_TR [csy]=cs_CZ)
    local code watch pictures=()
    new_bundle languages 120
    for code in enu cht chs jpn deu krn fra ita esn ptb rus dan nor sve nld plk hun ptg trk csy; do
        new_home "language-$code"
        rm -f "$WORK/dialog.xwd"
        "$WATCH" "$WORK/screen/Xvfb_screen0" "$WORK/dialog.xwd" > "$WORK/trace-language" &
        watch=$!
        start_launcher LC_ALL="${locales[$code]}.UTF-8"
        TITLE=
        while kill -0 "$LAUNCHER" 2>/dev/null && [ -z "$TITLE" ]; do
            TITLE=$(xdotool search --onlyvisible --class launcher getwindowname 2>/dev/null || true)
        done
        STATUS=0
        wait "$LAUNCHER" || STATUS=$?
        kill "$watch"
        wait "$watch" 2>/dev/null || true
        [ "$STATUS" -eq 0 ] && client_runs || fail "$code: status $STATUS, or the client does not run"
        [ "$TITLE" = "Lumaris Backup" ] || fail "$code: the title is '$TITLE'"
        [ -s "$WORK/dialog.xwd" ] || fail "$code: the dialog was not seen at work"
        check "$code under ${locales[$code]}: dialog, title, catalogue, client" \
            grep -q "qstrDef)=\[$code" "$HOME_DIR/../err"
        convert "xwd:$WORK/dialog.xwd" -trim +repage "$WORK/$code.png"
        pictures+=(-label "$code  ${locales[$code]}" "$WORK/$code.png")
        kill -9 "$(client_pid)"
        rm -rf "$HOME_DIR"
    done
    montage "${pictures[@]}" -tile 3x -geometry +12+8 -pointsize 14 -background '#e8e8e8' \
        "$DEMO/languages.png"
    say "  the sheet: $DEMO/languages.png"
}

start_display "$WORK/screen"
for ACT in "${acts[@]}"; do
    case $ACT in
        [1-7] | languages) "act_$ACT" ;;
        *) die "there is no act '$ACT'" ;;
    esac
    # A client of one act does not keep running into the next.
    clients=$(client_pid || true)
    [ -z "$clients" ] || kill -9 "$clients" 2>/dev/null || true
done
say "all acts ended as described: ${acts[*]}"
