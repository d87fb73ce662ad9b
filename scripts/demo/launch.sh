# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Starts the launcher and looks at what it did; sourced by demo.sh.

# launch: starts the launcher, waits for it and sets STATUS, SECONDS_TAKEN and PEAK_KB.
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

# start_launcher [VARIABLE=VALUE...]: starts the launcher and does not wait. Sets LAUNCHER to the process
# id; the output goes beside the home folder.
start_launcher() {
    env HOME="$HOME_DIR" TMPDIR="$TMP_DIR" XDG_RUNTIME_DIR="$TMP_DIR" "$@" \
        time -q -f %M -o "$HOME_DIR/../peak" "$BUNDLE/Contents/MacOS/launcher" \
        >"$HOME_DIR/../out" 2>"$HOME_DIR/../err" &
    LAUNCHER=$!
}

# watched TRACE PICTURE COMMAND...: runs the command and watches the dialog on the screen. TRACE gets a
# line for each step of its bar, PICTURE a picture of it.
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
client_runs() { # waits for the client, since the launcher does not
    for _ in $(seq 50); do
        [ "$(readlink "/proc/$(client_pid)/exe" 2>/dev/null)" = \
            "$USER_DIR/Lumaris.app/Contents/MacOS/lumaris-backup-ui" ] && return
        sleep 0.1
    done
    return 1
}
client_gone() { # waits, since a killed process may take a moment to end
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
bundle_is() { # bundle_is BUILD: the installed bundle equals the client folder of that build
    cmp <(tree_state "$(client_folder "$1")") <(tree_state "$USER_DIR/Lumaris.app")
}
no_backups() { ! compgen -G "$USER_DIR/Lumaris.app_tmp*"; }
logged() { grep -qF -- "$1" "$USER_DIR/log/launcher.log"; }
install_120() { # brings about the state after act 1, without printing anything
    start_launcher "$@"
    { wait "$LAUNCHER" && client_runs; } || fail "build 120 could not be installed"
}
