#include <gtest/gtest.h>

#include <QApplication>
#include <QDataStream>
#include <QElapsedTimer>
#include <QFile>
#include <QGlyphRun>
#include <QLabel>
#include <QMap>
#include <QRawFont>
#include <QRegularExpression>
#include <QSet>
#include <QTextLayout>
#include <QTranslator>
#include <QXmlStreamReader>
#include <limits>

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
    const QString file = QStringLiteral(":/%1.qm").arg(code);
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
    QFile compiled(file);
    ASSERT_TRUE(compiled.open(QIODevice::ReadOnly));
    EXPECT_TRUE(compiled.size() >= 20 * 1024 && compiled.size() <= 33 * 1024) << compiled.size();
    QDataStream stream(&compiled);
    stream.skipRawData(16);  // magic number
    quint8 first = 0, second = 0;
    QByteArray hashes, messages;
    stream >> first >> hashes >> second >> messages;
    EXPECT_TRUE(first == 0x42 && second == 0x69 && stream.atEnd()) << int(first) << int(second);

    QDataStream items(messages);
    QMap<int, int> count;
    while (!items.atEnd()) {
        quint8 tag = 0;
        QByteArray value;
        items >> tag;
        ++count[tag];
        if (tag != 1) {  // the end of a message has no value
            items >> value;
        }
        const std::string text = value.toStdString();
        EXPECT_TRUE(tag < 7 || text == (tag == 7 ? "global" : "")) << text;
    }
    // End, translation, source text, context and comment: one each a message.
    EXPECT_EQ((QMap<int, int>{{1, 245}, {3, 245}, {6, 245}, {7, 245}, {8, 245}}), count);
}

TEST_P(Catalogue, LoadsFastAndFitsTheDialog) {
    QTranslator translator;
    qint64 fastest = std::numeric_limits<qint64>::max();  // of several: the machine may be busy
    for (int attempt = 0; attempt < 5; ++attempt) {
        QElapsedTimer timer;
        timer.start();
        ASSERT_TRUE(translator.load(file));
        fastest = std::min(fastest, timer.nsecsElapsed());
    }
    EXPECT_LT(fastest, 5 * 1000 * 1000);
    QCoreApplication::installTranslator(&translator);  // until it is destroyed
    ProcessingProgressDialog dialog;
    dialog.setCancelButton(nullptr);
    EXPECT_EQ("Lumaris Backup", dialog.windowTitle().toStdString());
    EXPECT_EQ(translator.translate("global", "Lumaris Backup is initializing..."),
              dialog.labelText());
    for (const int id : {218, 39}) {
        dialog.setLabelText(StrTable::LoadStr(id));
        dialog.show();
        QCoreApplication::processEvents();
        const auto *label = dialog.findChild<QLabel *>();
        EXPECT_LE(label->sizeHint().width(), label->width()) << qPrintable(label->text());
    }
    const QFont font(QStringLiteral("Arial"));
    for (const StrTable::Row &row : StrTable::kRows) {
        QTextLayout layout(translator.translate("global", row.text), font);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        for (const QGlyphRun &run : layout.glyphRuns()) {
            EXPECT_FALSE(run.glyphIndexes().contains(0)) << qPrintable(layout.text());
        }
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
