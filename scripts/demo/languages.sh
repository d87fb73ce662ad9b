# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Shows the dialog in all languages on one sheet; sourced by demo.sh.

act_languages() {
    say "== Languages: the dialog under all twenty locales, on one sheet"
    local languages=(enu=en_US cht=zh_TW chs=zh_CN jpn=ja_JP deu=de_DE krn=ko_KR fra=fr_FR ita=it_IT
        esn=es_ES ptb=pt_BR rus=ru_RU dan=da_DK nor=nb_NO sve=sv_SE nld=nl_NL plk=pl_PL hun=hu_HU
        ptg=pt_PT trk=tr_TR csy=cs_CZ)
    local language code locale watch catalogues pictures=()
    catalogues=("$ROOT"/translations/*.ts)
    check "there is a locale for each catalogue" [ ${#languages[@]} -eq ${#catalogues[@]} ]
    new_bundle languages 120
    # The launcher shows its last text while it removes this older layout; without it, the text would
    # be gone in an instant.
    mkdir -p "$WORK/aged"
    (cd "$WORK/aged" && seq 20000 | split -a 5 -l 1 - file-)
    for language in "${languages[@]}"; do
        code=${language%=*} locale=${language#*=}
        new_home "language-$code"
        mkdir -p "$USER_DIR"
        cp -al "$WORK/aged" "$USER_DIR/app"
        rm -f "$WORK/dialog.xwd" "$WORK/end.xwd"
        "$WATCH" "$WORK/screen/Xvfb_screen0" "$WORK/dialog.xwd" "$WORK/end.xwd" \
            > "$WORK/trace-language" &
        watch=$!
        start_launcher LC_ALL="$locale.UTF-8"
        TITLE=
        while kill -0 "$LAUNCHER" 2>/dev/null && [ -z "$TITLE" ]; do
            TITLE=$(xdotool search --onlyvisible --class launcher getwindowname 2>/dev/null || true)
        done
        STATUS=0
        wait "$LAUNCHER" || STATUS=$?
        kill "$watch"
        wait "$watch" 2>/dev/null || true
        { [ "$STATUS" -eq 0 ] && client_runs; } ||
            fail "$code: status $STATUS, or the client does not run"
        [ "$TITLE" = "Lumaris Backup" ] || fail "$code: the title is '$TITLE'"
        { [ -s "$WORK/dialog.xwd" ] && [ -s "$WORK/end.xwd" ]; } ||
            fail "$code: the dialog was not seen both at work and at its end"
        check "$code under $locale: dialog, title, catalogue, client" \
            grep -q "qstrDef)=\[$code" "$HOME_DIR/../err"
        convert "xwd:$WORK/dialog.xwd" -trim +repage "xwd:$WORK/end.xwd" -trim +repage \
            -background '#e8e8e8' -append "$WORK/$code.png"
        pictures+=(-label "$code  $locale" "$WORK/$code.png")
        kill -9 "$(client_pid)"
        rm -rf "$HOME_DIR"
    done
    montage "${pictures[@]}" -tile 3x -geometry +12+8 -pointsize 14 -background '#e8e8e8' \
        "$DEMO/languages.png"
    say "  the sheet: $DEMO/languages.png"
}
