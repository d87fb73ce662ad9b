#include <gtest/gtest.h>

#include <QApplication>
#include <QDataStream>
#include <QElapsedTimer>
#include <QFile>
#include <QGlyphRun>
#include <QLabel>
#include <QMap>
#include <QRawFont>
#include <QSet>
#include <QTextLayout>
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

QSet<QString> EnglishTexts() {
    QSet<QString> texts;
    for (const StrTable::Row &row : StrTable::kRows)
        texts.insert(QString::fromUtf8(row.text));
    return texts;
}

/// Source text to translation, as the translators wrote them.
QMap<QString, QString> ReadSource(const QString &code) {
    QMap<QString, QString> messages;
    QXmlStreamReader xml(ReadText(QStringLiteral(TRANSLATIONS "/%1.ts").arg(code)));
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            EXPECT_EQ(QStringLiteral("global"), xml.readElementText());
        } else if (xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation")) {
            EXPECT_TRUE(xml.attributes().isEmpty()) << "unfinished: " << qPrintable(source);
            EXPECT_FALSE(messages.contains(source)) << "twice: " << qPrintable(source);
            messages[source] = xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return messages;
}

/// What of `text` a translation has to keep: blanks at its ends, its placeholders and how it ends.
QString Form(const QString &text) {
    const QString trimmed = text.trimmed();
    QString form = text.startsWith(QLatin1Char(' ')) ? QStringLiteral("_") : QString();
    for (const char *placeholder : {"%1", "%2"}) {
        if (text.contains(QLatin1String(placeholder)))
            form += QLatin1String(placeholder);
    }
    if (trimmed.endsWith(QStringLiteral("...")))
        form += QStringLiteral("...");
    else if (trimmed.endsWith(QLatin1Char(':')) || trimmed.endsWith(QChar(0xFF1A)))
        form += QLatin1Char(':');
    return text.endsWith(QLatin1Char(' ')) ? form + QLatin1Char('_') : form;
}

class Catalogue : public testing::TestWithParam<QString> {
protected:
    const QString code = GetParam();
    const QString file = QStringLiteral(":/%1.qm").arg(code);
};

TEST_P(Catalogue, TranslatesEveryTextAndKeepsItsForm) {
    const QMap<QString, QString> messages = ReadSource(code);
    EXPECT_EQ(EnglishTexts(), QSet<QString>(messages.keyBegin(), messages.keyEnd()));

    QSet<QString> unchanged;
    for (const QString &line :
         ReadText(QStringLiteral(TRANSLATIONS "/unchanged.txt")).split(QLatin1Char('\n'))) {
        if (line.startsWith(code + QLatin1Char('\t')))
            unchanged.insert(line.mid(4));
    }
    for (auto message = messages.begin(); message != messages.end(); ++message) {
        SCOPED_TRACE(qPrintable(message.key()));
        EXPECT_FALSE(message.value().trimmed().isEmpty());
        EXPECT_EQ(Form(message.key()), Form(message.value()));
        const bool same = message.key() == message.value();
        EXPECT_EQ(code == QLatin1String("enu") || unchanged.contains(message.key()), same);
    }
}

// The sections and tags of the compiled form are those of Qt's qtranslator.cpp.
TEST_P(Catalogue, CompiledFormHoldsHashesAndMessagesOnly) {
    QFile compiled(file);
    ASSERT_TRUE(compiled.open(QIODevice::ReadOnly));
    EXPECT_GE(compiled.size(), 20 * 1024);
    EXPECT_LE(compiled.size(), 33 * 1024);
    QDataStream stream(&compiled);
    stream.skipRawData(16);  // magic number
    QByteArray tags, messages;
    while (!stream.atEnd()) {
        quint8 tag = 0;
        QByteArray section;
        stream >> tag >> section;
        tags += char(tag);
        if (tag == 0x69)
            messages = section;
    }
    EXPECT_EQ(QByteArray("\x42\x69"), tags) << tags.toHex().constData();

    QDataStream items(messages);
    QMap<int, int> count;
    while (!items.atEnd()) {
        quint8 tag = 0;
        items >> tag;
        ++count[tag];
        if (tag == 1)  // end of a message
            continue;
        QByteArray value;
        items >> value;
        if (tag == 7 || tag == 8) {
            EXPECT_EQ(tag == 7 ? "global" : "", value.toStdString());
        }
    }
    // End, translation, source text, context and comment: one each a message.
    const QMap<int, int> expected = {{1, 245}, {3, 245}, {6, 245}, {7, 245}, {8, 245}};
    EXPECT_EQ(expected, count);
}

TEST_P(Catalogue, LoadsFastAndFitsTheDialog) {
    QTranslator translator;
    QElapsedTimer timer;
    timer.start();
    ASSERT_TRUE(translator.load(file));
    EXPECT_LT(timer.nsecsElapsed(), 5 * 1000 * 1000);
    QCoreApplication::installTranslator(&translator);
    {
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
            EXPECT_LE(label->sizeHint().width(), label->width())
                << "cut: " << qPrintable(label->text());
        }
    }
    for (const StrTable::Row &row : StrTable::kRows) {
        QTextLayout layout(translator.translate("global", row.text),
                           QFont(QStringLiteral("Arial")));
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        for (const QGlyphRun &run : layout.glyphRuns())
            EXPECT_FALSE(run.glyphIndexes().contains(0))
                << "no glyph: " << qPrintable(layout.text());
    }
    QCoreApplication::removeTranslator(&translator);
}

INSTANTIATE_TEST_SUITE_P(All, Catalogue, testing::ValuesIn([] {
                             const QStringList codes = TarnLocale::getSupportedLanguages();
                             return std::vector<QString>(codes.begin(), codes.end());
                         }()),
                         [](const auto &test) { return test.param.toStdString(); });

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    qInitResources_texts();
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
