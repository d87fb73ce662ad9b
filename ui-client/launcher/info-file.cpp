// SPDX-License-Identifier: MIT
#include "info-file.h"

#include <QDataStream>
#include <QFile>
#include <QRegularExpression>
#include <QResource>
#include <QSettings>
#include <QStringList>
#include <QVariant>
#include <algorithm>
#include <atomic>

namespace {

/// Bytes as a file that the settings reader can open: it takes nothing but a name, and a file on
/// disk could be replaced between two readings. Lives as long as this object.
class MemoryFile {
public:
    explicit MemoryFile(const QByteArray &content)
        : m_root(NewRoot()), m_resource(Compile(content)) {
        QResource::registerResource(Bytes(), m_root);
    }
    ~MemoryFile() { QResource::unregisterResource(Bytes(), m_root); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    QString Path() const { return QLatin1Char(':') + m_root + QLatin1String("/I"); }

private:
    /// The settings reader keeps what it has read under the file's name, so each file has its own.
    static QString NewRoot() {
        static std::atomic<int> count{0};
        return QStringLiteral("/info-file/%1").arg(++count);
    }

    /// What `rcc --binary` makes of one file "I" in format 1: a header, the tree of a folder with
    /// one entry, the name with its hash (of one letter: its code), and the content.
    static QByteArray Compile(const QByteArray &content) {
        const quint32 header = 20, tree = 2 * 14, names = 8;
        QByteArray compiled;
        QDataStream out(&compiled, QIODevice::WriteOnly);
        out.writeRawData("qres", 4);
        out << quint32(1) << header << header + tree + names << header + tree;
        out << quint32(0) << quint16(2) << quint32(1) << quint32(1);                // the folder
        out << quint32(0) << quint16(0) << quint16(0) << quint16(1) << quint32(0);  // the file
        out << quint16(1) << quint32('I') << quint16('I');
        out << quint32(content.size());
        out.writeRawData(content.constData(), static_cast<int>(content.size()));
        return compiled;
    }

    const uchar *Bytes() const { return reinterpret_cast<const uchar *>(m_resource.constData()); }

    const QString m_root;
    const QByteArray m_resource;
};

/// Takes the place of "@" where the settings reader must not see one.
const QLatin1Char kMark('\1');

/// The same text without objects: a mark stands for each "@", however it is escaped (a character
/// number counts modulo 65536, and what else is behind a backslash is skipped). Each key gets a
/// number, so that the reader keeps the values of all lines.
QString WithoutObjects(const QByteArray &text) {
    static const QRegularExpression special(
        QStringLiteral(R"((?<!\\)(?:\\\\)*+\K)"  // not behind a backslash that means something
                       R"((?:(=)|@|\\x[0-9a-fA-F]++(?<=x40|x040|0040))"
                       R"(|\\[0-7]++(?<=\\100|\\0100|[\\0246]00100)))"));
    const QString original = QString::fromLatin1(text.constData(), text.size());
    QString plain;
    decltype(original.size()) end = 0;
    int count = 0;
    for (auto matches = special.globalMatch(original); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const bool assigns = match.capturedLength(1) > 0;
        plain += original.mid(end, match.capturedStart() - end);
        plain += assigns ? QStringLiteral("key%1=").arg(++count) : QString(kMark);
        end = match.capturedEnd();
    }
    return plain + original.mid(end);
}

/// The reader lists a key with an empty part ("a//b"), but finds no value for it.
bool IsReadable(const QString &key) {
    return !QStringLiteral("/%1/").arg(key).contains(QLatin1String("//"));
}

bool IsObject(const QString &value) {
    return value.startsWith(QStringLiteral("\1Variant(")) ||
           value.startsWith(QStringLiteral("\1DateTime("));
}

bool HoldsObject(const QByteArray &text) {
    const QString plain = WithoutObjects(text);
    if (!plain.contains(kMark)) {
        return false;
    }
    const MemoryFile file(plain.toLatin1());
    QSettings info(file.Path(), QSettings::IniFormat);
    info.beginGroup(QLatin1String(kVersionGroup));
    const QStringList keys = info.allKeys();
    return std::any_of(keys.begin(), keys.end(), [&info](const QString &key) {
        const QStringList values = info.value(key).toStringList();
        return !IsReadable(key) || std::any_of(values.begin(), values.end(), IsObject);
    });
}

}  // namespace

int ReadInfoFile(const QString &path, InfoTexts &texts) {
    QFile file(path);
    return ParseInfo(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(), texts);
}

int ParseInfo(const QByteArray &content, InfoTexts &texts) {
    texts = {};
    if (HoldsObject(content)) {
        return -1;
    }
    const MemoryFile file(content);
    QSettings info(file.Path(), QSettings::IniFormat);
    info.beginGroup(QLatin1String(kVersionGroup));
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const QString key = QLatin1String(kVersionKeys[i]);
        if (info.contains(key)) {
            texts[i] = info.value(key).toString();
        }
    }
    return 0;
}
