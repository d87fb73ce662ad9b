// SPDX-License-Identifier: MIT
#include "info-file.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryFile>

#include "qt-text.h"
#include "regular-file.h"

namespace {

/// Replaces "@" while QSettings reads the file: it takes a value that begins with "@Variant(" for a
/// serialized object, and a damaged one crashes the program.
const char kMark = '\1';

InfoTexts ReadSettings(const QString &path) {
    InfoTexts texts;
    QSettings info(path, QSettings::IniFormat);
    info.beginGroup(QLatin1String(kVersionGroup));
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const QString key = QLatin1String(kVersionKeys[i]);
        if (info.contains(key)) {
            texts[i] = info.value(key).toString();
        }
    }
    return texts;
}

/// In the home folder where the temporary one cannot be written: an INFO file that cannot be read
/// counts as build 0.
bool Open(QTemporaryFile &file) {
    if (file.open()) {
        return true;
    }
    file.setFileTemplate(QDir::homePath() + QStringLiteral("/.lumaris-info-XXXXXX"));
    return file.open();
}

}  // namespace

InfoTexts ReadInfoFile(const ustring &path) {
    QFile file;
    const int descriptor = OpenTextFile(path);
    if (descriptor < 0 ||
        !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        return {};
    }
    const QByteArray content = file.readAll();
    return content.contains('@') ? ParseInfo(content) : ReadSettings(ToQString(path));
}

InfoTexts ParseInfo(const QByteArray &content) {
    QTemporaryFile file;  // QSettings only reads files that have a name
    if (content.size() > kMaxTextFile || !Open(file) ||
        file.write(QByteArray(content).replace('@', kMark)) != content.size() || !file.flush()) {
        return {};
    }
    InfoTexts texts = ReadSettings(file.fileName());
    for (std::optional<QString> &text : texts) {
        if (text) {
            text->replace(QLatin1Char(kMark), QLatin1Char('@'));
        }
    }
    return texts;
}
