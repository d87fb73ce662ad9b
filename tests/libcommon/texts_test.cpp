// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>

#include "str-table-rows.h"
#include "str-table.h"
#include "tarn-locale.h"

int qInitResources_texts();

namespace {

TEST(Catalogues, TranslateEveryTextAndKeepItsForm) {
    int argc = 0;
    QCoreApplication app(argc, nullptr);
    qInitResources_texts();
    StrTable::InitStrTable();
    QFile unchanged(QStringLiteral(TRANSLATIONS "/unchanged.txt"));
    ASSERT_TRUE(unchanged.open(QIODevice::ReadOnly));
    const QByteArray same = unchanged.readAll();
    for (const QString &code : TarnLocale::getSupportedLanguages()) {
        SCOPED_TRACE(qPrintable(code));
        QTranslator translator;
        ASSERT_TRUE(translator.load(QStringLiteral(":/%1.qm").arg(code)));
        QCoreApplication::installTranslator(&translator);  // until it is destroyed
        for (int id = 0; id < 260; ++id) {
            SCOPED_TRACE(StrTable::kRows[id].key);
            const QString text = QString::fromUtf8(StrTable::kRows[id].text);
            const QString said = translator.translate("global", StrTable::kRows[id].text);
            EXPECT_FALSE(said.trimmed().isEmpty());
            for (const char *kept : {"%1", "%2", "..."}) {
                EXPECT_EQ(text.count(QLatin1String(kept)), said.count(QLatin1String(kept))) << kept;
            }
            const QRegularExpression ends(QStringLiteral("^ |[:\uFF1A](?= ?$)| $"));
            EXPECT_EQ(text.count(ends), said.count(ends));
            const bool keep = same.contains(QStringLiteral("%1\t%2\n").arg(code, text).toUtf8());
            EXPECT_EQ(code == QLatin1String("enu") || keep, text == said);
            EXPECT_EQ(said, StrTable::LoadStr(id));
        }
    }
}

TEST(StrTable, NumbersAndKeys) {
    StrTable::InitStrTable();
    EXPECT_EQ(0, StrTable::LookupStrID(QStringLiteral("TRAY_help")));
    EXPECT_EQ(259, StrTable::LookupStrID(QStringLiteral("setting_filter_table_desc")));
    EXPECT_EQ(-1, StrTable::LookupStrID(QStringLiteral("tray_hel")));
    EXPECT_EQ("Lumaris Backup is ready.", StrTable::LoadStr(39).toStdString());
    EXPECT_EQ("", StrTable::LoadStr(260).toStdString());
}

TEST(TarnLocale, LanguageForLocale) {
    const char *const cases[][2] = {
        {"en_us", "enu"},  {"zh_tw", "cht"}, {"zh_hk", "cht"}, {"zh_mo", "cht"}, {"zh_sg", "chs"},
        {"ja_jp", "jpn"},  {"de_ch", "deu"}, {"ko_kr", "krn"}, {"fr_ca", "fra"}, {"it_it", "ita"},
        {"es_419", "esn"}, {"pt_br", "ptb"}, {"pt_pt", "ptg"}, {"pt", "ptg"},    {"ru_ru", "rus"},
        {"da_dk", "dan"},  {"no", "nor"},    {"nb_no", "nor"}, {"nn_no", "nor"}, {"sv_fi", "sve"},
        {"nl_be", "nld"},  {"pl_pl", "plk"}, {"hu_hu", "hun"}, {"tr_tr", "trk"}, {"cs_cz", "csy"},
        {"fi_fi", "enu"},  {"", "enu"},
    };
    for (const auto &[locale, code] : cases) {
        const QString name = QString::fromLatin1(locale);
        EXPECT_EQ(code, TarnLocale::languageForLocale(name).toStdString()) << locale;
    }
    EXPECT_EQ(20, TarnLocale::getSupportedLanguages().size());
    EXPECT_EQ("csy", TarnLocale::getLanguageAbbrByID(19).toStdString());
    EXPECT_EQ("", TarnLocale::getLanguageAbbrByID(20).toStdString());
}

}  // namespace
