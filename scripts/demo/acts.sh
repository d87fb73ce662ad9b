# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# The acts; sourced by demo.sh.

# The dialog shows 100 percent for only a few milliseconds. On a busy machine it may be hidden before
# that is painted, so the first start gets three attempts, each in a fresh home folder.
act_1() {
    say "== Act 1: first start in an empty home folder installs the client and starts it"
    new_bundle launcher 120
    local attempt last=
    for attempt in 1 2 3; do
        new_home "1-$attempt"
        watched "$DEMO/dialog-trace.txt" "$WORK/dialog.xwd" launch
        check "the bundle is the packaged client, byte for byte" bundle_is 120
        check "the client runs" client_runs
        last=$(tail -n 1 "$DEMO/dialog-trace.txt" | cut -d' ' -f2)
        [ "$last" != 100 ] || break
        say "  the last percentage on the screen was ${last:-none}; trying again"
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
    local starts
    starts=$(wc -l < "$USER_DIR/log/client.log")
    watched "$WORK/trace-2" "$WORK/none.xwd" launch
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
    check "the old client ended on request" \
        grep -q "asked to end, pid $OLD_CLIENT\$" "$USER_DIR/log/client.log"
}

act_4() {
    say "== Act 4: the same with a client that ignores SIGTERM: killed after about five seconds"
    new_home 4
    upgrade_to_121 LUMARIS_CLIENT_IGNORE_SIGTERM=1
    check "the launch took at least five and less than ten seconds ($SECONDS_TAKEN)" \
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
    ship "$WORK/package-121"

    start_launcher
    sleep 1.5
    pkill -KILL -P "$LAUNCHER" || fail "the launcher to kill has already ended"
    wait "$LAUNCHER" 2>/dev/null || true
    check "the first launcher was killed; its lock file is left behind" \
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
    echo '<plist version="1.0"><dict/></plist>' > "$client/Contents/Info.plist"
    "$PACK" "$client" "$WORK/package-many" >/dev/null
    ship "$WORK/package-many"

    watched "$DEMO/dialog-trace-many.txt" "$WORK/none.xwd" launch
    local steps pause base
    steps=$(wc -l < "$DEMO/dialog-trace-many.txt")
    pause=$(awk 'NR > 1 && $1 - last > max { max = $1 - last } { last = $1 } END { print max + 0 }' \
        "$DEMO/dialog-trace-many.txt")
    check "100,000 small files are there" \
        [ "$(find "$USER_DIR/Lumaris.app/Contents/Resources/many" -type f | wc -l)" -eq 100000 ]
    check "the dialog moved in $steps steps (at least 60)" [ "$steps" -ge 60 ]
    check "it never stood still for two seconds (longest pause $pause ms)" [ "$pause" -lt 2000 ]
    base=$(cat "$DEMO/peak-act-1" 2>/dev/null || echo 0)
    [ "$base" -gt 0 ] || fail "run act 1 first: this act compares its peak memory"
    check "peak memory $PEAK_KB KB is within 40 MB of act 1's $base KB" \
        [ $((PEAK_KB - base)) -lt 40960 ]
    check "the client runs" client_runs
}
