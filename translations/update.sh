#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings the English texts of the string table into all catalogues: new texts are marked as
# unfinished, old ones are removed. In the English catalogue every text is its own translation.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

command -v lupdate >/dev/null || PATH=$PATH:/usr/lib/qt5/bin
for catalogue in *.ts; do
    # lupdate needs a language, any one, since no text has plural forms. It is removed again: without
    # it lrelease writes neither a language section nor plural rules.
    sed -i '2,4s/<TS version="2.1">/<TS version="2.1" language="en">/' "$catalogue"
    lupdate -silent -no-obsolete -locations none ../libcommon/str-table-rows.h -ts "$catalogue"
    sed -i '2,4s/ \(source\)\?language="[^"]*"//g' "$catalogue"
done
awk '/<source>/ { text = $0; gsub(/^ *<source>|<\/source>$/, "", text) }
     /<translation type="unfinished"/ { print "        <translation>" text "</translation>"; next }
     { print }' enu.ts > enu.ts.new
mv enu.ts.new enu.ts
grep -c 'type="unfinished"' -- *.ts | grep -v ':0$' || echo "every text is translated"
