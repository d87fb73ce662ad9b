// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QFile>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include "str-table-rows.h"
#include "str-table.h"
#include "tarn-locale.h"

int qInitResources_texts();

namespace {

QByteArray Read(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

/// What of `text` a translation has to keep: blanks at its ends, its placeholders and how it ends.
QStringList Form(QString text) {
    const QRegularExpression kept(QStringLiteral("^ |%[0-9]|(\\.\\.\\.|:)(?= ?$)| $"));
    QStringList parts;
    auto match = kept.globalMatch(text.replace(QChar(0xFF1A), QLatin1Char(':')));
    while (match.hasNext()) {
        parts += match.next().captured();
    }
    parts.sort();  // a translation may turn placeholders around
    return parts;
}

TEST(Catalogues, TranslateEveryTextAndKeepItsForm) {
    int argc = 0;
    QGuiApplication app(argc, nullptr);
    qInitResources_texts();
    StrTable::InitStrTable();
    const QByteArray unchanged = Read(QStringLiteral(TRANSLATIONS "/unchanged.txt"));
    const QStringList languages = TarnLocale::getSupportedLanguages();
    EXPECT_EQ(20, languages.size());
    for (const QString &code : languages) {
        SCOPED_TRACE(qPrintable(code));
        QTranslator translator;
        ASSERT_TRUE(translator.load(QStringLiteral(":/%1.qm").arg(code)));
        QCoreApplication::installTranslator(&translator);  // until it is destroyed
        QSet<QString> english;
        for (int id = 0; id < 260; ++id) {
            SCOPED_TRACE(StrTable::kRows[id].key);
            const QString text = QString::fromUtf8(StrTable::kRows[id].text);
            const QString said = translator.translate("global", StrTable::kRows[id].text);
            EXPECT_FALSE(said.trimmed().isEmpty());
            EXPECT_EQ(Form(text), Form(said));
            const bool keep =
                unchanged.contains(QStringLiteral("%1\t%2\n").arg(code, text).toUtf8());
            EXPECT_EQ(code == QLatin1String("enu") || keep, text == said);
            EXPECT_EQ(said, StrTable::LoadStr(id));
            english.insert(text);
        }
        const QFontMetrics metrics(QFont(QStringLiteral("Arial")));
        for (const int shown : {StrTable::kPreparingText, StrTable::kReadyText}) {
            EXPECT_GE(376, metrics.horizontalAdvance(StrTable::LoadStr(shown)));
        }
        const QByteArray source = Read(QStringLiteral(TRANSLATIONS "/%1.ts").arg(code));
        EXPECT_EQ(english.size(), source.count("<message>"));
        EXPECT_EQ(english.size(), source.count("<translation>"));  // none is unfinished
    }
}

TEST(StrTable, NumbersAndKeys) {
    StrTable::InitStrTable();
    const std::tuple<int, const char *, const char *> cases[] = {
        {0, "TRAY_help", "Help"},
        {38, "tray_main_app", "Open Lumaris Backup"},
        {39, "desc_lmrs_env_preparation_done", "Lumaris Backup is ready."},
        {131, "last_page", "Last page"},
        {259, "setting_filter_table_desc", "Matching files are not backed up."},
        {-1, "tray_hel", ""},
    };
    for (const auto &[id, key, text] : cases) {
        EXPECT_EQ(id, StrTable::LookupStrID(QString::fromLatin1(key))) << key;
        EXPECT_EQ(text, StrTable::LoadStr(id).toStdString()) << key;
    }
    EXPECT_EQ("", StrTable::LoadStr(260).toStdString());
}

}  // namespace
