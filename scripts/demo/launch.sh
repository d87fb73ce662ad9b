# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Starting the launcher and looking at what it did; sourced by demo.sh.

# launch: one start, awaited; leaves STATUS, SECONDS_TAKEN and PEAK_KB.
launch() {
    folder before
    local from log_start
    log_start=$({ cat "$USER_DIR/log/launcher.log" 2>/dev/null || true; } | wc -l)
    from=$(date +%s%N)
    start_launcher
    STATUS=0
    wait "$LAUNCHER" || STATUS=$?
    # shellcheck disable=SC2034 # for acts.sh
    SECONDS_TAKEN=$((($(date +%s%N) - from) / 1000000000))
    # shellcheck disable=SC2034 # for acts.sh
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

# watched TRACE PICTURE COMMAND...: runs the command; TRACE gets a line for each state of the dialog
# on the screen meanwhile, PICTURE the last one.
watched() {
    local trace=$1 picture=$2 watch
    shift 2
    "$WATCH" "$WORK/screen/Xvfb_screen0" "$picture" > "$trace" &
    watch=$!
    "$@"
    sleep 0.2
    kill "$watch"
    wait "$watch" 2>/dev/null || true
}

folder() {
    say "  the home folder $1:"
    (cd "$HOME_DIR" && find . -maxdepth 3 ! -path './.LumarisBackup/Lumaris.app*/Contents' |
        LC_ALL=C sort | sed 's/^/    /')
    [ ! -d "$USER_DIR/Lumaris.app" ] ||
        say "    (Lumaris.app: $(find "$USER_DIR/Lumaris.app" | wc -l) entries, build $(installed_build))"
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
    { wait "$LAUNCHER" && client_runs; } || fail "build 120 could not be installed"
}
