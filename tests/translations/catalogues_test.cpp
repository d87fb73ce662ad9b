// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QDataStream>
#include <QFile>
#include <QLabel>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>

#include "progress-dialog.h"
#include "str-table-rows.h"
#include "str-table.h"
#include "tarn-locale.h"

int qInitResources_texts();

namespace {

QString ReadText(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

/// Source text to translation, as the translators wrote them.
QMap<QString, QString> ReadSource(const QString &code) {
    QMap<QString, QString> messages;
    QXmlStreamReader xml(ReadText(QStringLiteral(TRANSLATIONS "/%1.ts").arg(code)));
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            EXPECT_TRUE(xml.attributes().isEmpty()) << "unfinished: " << qPrintable(source);
            EXPECT_FALSE(messages.contains(source)) << "twice: " << qPrintable(source);
            messages[source] = xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return messages;
}

/// What of `text` a translation has to keep: blanks at its ends, its placeholders and how it ends.
QString Form(QString text) {
    const QRegularExpression kept(QStringLiteral("%[0-9]|(\\.\\.\\.|:)(?= ?$)| $"));
    QStringList parts;
    auto match = kept.globalMatch(text.replace(QChar(0xFF1A), QLatin1Char(':')));
    while (match.hasNext()) {
        parts += match.next().captured();
    }
    parts.sort();  // a translation may turn placeholders around
    return (text.startsWith(QLatin1Char(' ')) ? text.left(1) : QString()) + parts.join(QString());
}

class Catalogue : public testing::TestWithParam<QString> {
protected:
    const QString code = GetParam();
};

TEST_P(Catalogue, TranslatesEveryTextAndKeepsItsForm) {
    const QMap<QString, QString> messages = ReadSource(code);
    QSet<QString> english;
    for (const StrTable::Row &row : StrTable::kRows) {
        english.insert(QString::fromUtf8(row.text));
    }
    EXPECT_EQ(english, QSet<QString>(messages.keyBegin(), messages.keyEnd()));

    const QStringList unchanged =
        ReadText(QStringLiteral(TRANSLATIONS "/unchanged.txt")).split(QLatin1Char('\n'));
    for (auto message = messages.begin(); message != messages.end(); ++message) {
        SCOPED_TRACE(qPrintable(message.key()));
        EXPECT_FALSE(message.value().trimmed().isEmpty());
        EXPECT_EQ(Form(message.key()), Form(message.value()));
        const bool keep = unchanged.contains(code + QLatin1Char('\t') + message.key());
        EXPECT_EQ(code == QLatin1String("enu") || keep, message.key() == message.value());
    }
}

// The sections and tags of the compiled form are those of Qt's qtranslator.cpp.
TEST_P(Catalogue, CompiledFormHoldsHashesAndMessagesOnly) {
    QFile compiled(QStringLiteral(":/%1.qm").arg(code));
    ASSERT_TRUE(compiled.open(QIODevice::ReadOnly));
    QDataStream stream(&compiled);
    stream.skipRawData(16);  // magic number
    quint8 first = 0, second = 0;
    QByteArray hashes, messages;
    stream >> first >> hashes >> second >> messages;
    EXPECT_EQ("42 69 1",
              QString::asprintf("%x %x %d", first, second, stream.atEnd()).toStdString());
    EXPECT_EQ(245 * 8, hashes.size());
    // Each message has an empty comment before its source text, and ends behind its context.
    EXPECT_EQ(245, messages.count(QByteArray("\x08\0\0\0\0\x06", 6)));
    EXPECT_EQ(245, messages.count(QByteArray("\x07\0\0\0\x06global\x01", 12)));
}

TEST_P(Catalogue, FitsTheDialog) {
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/%1.qm").arg(code)));
    QCoreApplication::installTranslator(&translator);  // until it is destroyed
    ProcessingProgressDialog dialog;
    dialog.setCancelButton(nullptr);
    for (const int id : {218, 39}) {
        dialog.setLabelText(StrTable::LoadStr(id));
        EXPECT_EQ(ReadSource(code)[QString::fromUtf8(StrTable::kRows[id].text)],
                  dialog.labelText());
        dialog.show();
        QCoreApplication::processEvents();
        const auto *label = dialog.findChild<QLabel *>();
        EXPECT_LE(label->sizeHint().width(), label->width()) << qPrintable(label->text());
    }
}

INSTANTIATE_TEST_SUITE_P(All, Catalogue, testing::ValuesIn(TarnLocale::getSupportedLanguages()),
                         [](const auto &test) { return test.param.toStdString(); });

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    qInitResources_texts();
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
