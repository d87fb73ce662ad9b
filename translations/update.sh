#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings the English texts of the string table into all twenty sources: new texts come in as
# unfinished, texts that are gone are dropped. English is its own translation and is filled in.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

command -v lupdate >/dev/null || PATH=$PATH:/usr/lib/qt5/bin
declare -A languages=(
    [enu]=en [cht]=zh_TW [chs]=zh_CN [jpn]=ja [deu]=de [krn]=ko [fra]=fr [ita]=it [esn]=es
    [ptb]=pt_BR [rus]=ru [dan]=da [nor]=nb [sve]=sv [nld]=nl [plk]=pl [hun]=hu [ptg]=pt_PT
    [trk]=tr [csy]=cs
)
for code in "${!languages[@]}"; do
    # lupdate wants a language attribute. It does not stay: without it lrelease writes no language
    # section and no plural rules, which none of the texts need.
    sed -i "2,4s/<TS version=\"2.1\">/<TS version=\"2.1\" language=\"${languages[$code]}\">/" "$code.ts"
    lupdate -silent -no-obsolete -locations none ../libcommon/str-table-rows.h -ts "$code.ts"
    sed -i '2,4s/ \(source\)\?language="[^"]*"//g' "$code.ts"
done
awk '/<source>/ { text = $0; gsub(/^ *<source>|<\/source>$/, "", text) }
     /<translation type="unfinished"/ { print "        <translation>" text "</translation>"; next }
     { print }' enu.ts > enu.ts.new
mv enu.ts.new enu.ts
grep -c 'type="unfinished"' -- *.ts | grep -v ':0$' || echo "every text is translated"
