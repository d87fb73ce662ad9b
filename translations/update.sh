#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Copies the English texts of the string table into all catalogues: marks new texts as unfinished and
# removes old ones. In the English catalogue every text is its own translation.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

command -v lupdate >/dev/null || PATH=$PATH:/usr/lib/qt5/bin
for catalogue in *.ts; do
    # lupdate needs a language; any will do, since no text has plural forms. Afterwards it is removed,
    # so that lrelease writes neither a language section nor plural rules.
    sed -i '2,4s/<TS version="2.1">/<TS version="2.1" language="en">/' "$catalogue"
    lupdate -silent -no-obsolete -locations none ../libcommon/str-table-rows.h -ts "$catalogue"
    sed -i '2,4s/ \(source\)\?language="[^"]*"//g' "$catalogue"
done
awk '/<source>/ { text = $0; gsub(/^ *<source>|<\/source>$/, "", text) }
     /<translation type="unfinished"/ { print "        <translation>" text "</translation>"; next }
     { print }' enu.ts > enu.ts.new
mv enu.ts.new enu.ts
grep -c 'type="unfinished"' -- *.ts | grep -v ':0$' || echo "every text is translated"
