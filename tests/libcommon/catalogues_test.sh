#!/bin/sh
# SPDX-License-Identifier: MIT
# Changes a text on a copy: the new one has to reach every catalogue, and the old one to leave them.
# usage: catalogues_test.sh SOURCES
set -eux
work=$(mktemp -d "${TMPDIR:-/tmp}/lumaris-catalogues-test.XXXXXX")
trap 'rm -rf "$work"' EXIT
cp -r "$1/translations" "$1/libcommon" "$work"
cd "$work/translations"
sed -i 's/"Lumaris Backup is ready\."/"A new text"/' ../libcommon/str-table-rows.h
# update.sh prints FILE:TEXTS TO TRANSLATE, one text in every language but English.
./update.sh | grep -c '\.ts:1$' | grep -x 19
grep '<translation>A new text</translation>' enu.ts
(! grep 'Lumaris Backup is ready\.' ./*.ts)
