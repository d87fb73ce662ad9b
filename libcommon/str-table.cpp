// SPDX-License-Identifier: MIT
#include "str-table.h"

#include <QByteArray>
#include <QCoreApplication>
#include <iterator>

#include "str-table-rows.h"

namespace StrTable {

namespace {

constexpr int kCount = 260;
static_assert(std::size(kRows) == kCount, "IDs are positions, so the number of rows is fixed");

const char *stab[kCount];  // English texts
const char *ktab[kCount];  // keys

}  // namespace

void InitStrTable() {
    for (int id = 0; id < kCount; ++id) {
        ktab[id] = kRows[id].key;
        stab[id] = kRows[id].text;
    }
}

QString LoadStr(int id) {
    if (id < 0 || id >= kCount || stab[id] == nullptr) {
        return QString();
    }
    QString text = QCoreApplication::translate("global", stab[id]);
    text.replace(QLatin1String("\\n"), QLatin1String("\n"));
    text.replace(QLatin1String("\\t"), QLatin1String("\t"));
    return text;
}

int LookupStrID(QString key) {
    const QByteArray wanted = key.toLocal8Bit();
    for (int id = 0; id < kCount; ++id) {
        // Before InitStrTable the keys are null; to qstricmp() null differs from any text.
        if (qstricmp(wanted.constData(), ktab[id]) == 0) {
            return id;
        }
    }
    return -1;
}

}  // namespace StrTable
