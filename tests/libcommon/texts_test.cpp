// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include "str-table-rows.h"
#include "str-table.h"
#include "tarn-locale.h"
#include "test-support.h"

int qInitResources_texts();

namespace {

TEST(Catalogues, TranslateEveryTextAndKeepItsForm) {
    int argc = 0;
    QCoreApplication app(argc, nullptr);
    qInitResources_texts();
    StrTable::InitStrTable();
    // Lines of LANGUAGE, tab, TEXT: those that are rightly the same as in English.
    const std::string unchanged = ReadFile(SOURCES "/translations/unchanged.txt");
    for (const QString &code : TarnLocale::getSupportedLanguages()) {
        SCOPED_TRACE(qPrintable(code));
        QTranslator translator;
        ASSERT_TRUE(translator.load(QStringLiteral(":/%1.qm").arg(code)));
        QCoreApplication::installTranslator(&translator);  // until it is destroyed
        for (int id = 0; id < 260; ++id) {
            SCOPED_TRACE(StrTable::kRows[id].key);
            const QString english = QString::fromUtf8(StrTable::kRows[id].text);
            const QString translated = StrTable::LoadStr(id);
            // A missing text is empty to the translator, and English to LoadStr.
            EXPECT_EQ(translated, translator.translate("global", StrTable::kRows[id].text));
            // The last is a colon at the end, a wide one, too.
            for (const char *kept : {"%1", "%2", "\\.\\.\\.", "^ ", " $", "[:\uFF1A](?= ?$)"}) {
                const QRegularExpression form(QString::fromUtf8(kept));
                EXPECT_EQ(english.count(form), translated.count(form)) << kept;
            }
            const std::string entry = (code + QLatin1Char('\t') + english).toStdString() + "\n";
            EXPECT_EQ(code == QLatin1String("enu") || unchanged.find(entry) != unchanged.npos,
                      english == translated);
        }
    }
}

TEST(StrTable, FindsIdsByKeyAndTextsById) {
    StrTable::InitStrTable();
    const int last = 259;
    EXPECT_EQ(0, StrTable::LookupStrID(QStringLiteral("TRAY_help"))) << "in any letter case";
    EXPECT_EQ(last, StrTable::LookupStrID(QStringLiteral("setting_filter_table_desc")));
    EXPECT_EQ(-1, StrTable::LookupStrID(QStringLiteral("tray_hel"))) << "not a whole key";
    EXPECT_EQ("Lumaris Backup is ready.", StrTable::LoadStr(StrTable::kReadyText).toStdString());
    EXPECT_EQ("", StrTable::LoadStr(last + 1).toStdString());
}

TEST(TarnLocale, MapsALocaleToALanguage) {
    // The two Chinese scripts, and English for a language that there are no texts in.
    const char *const rows[][2] = {
        {"zh_hk", "cht"}, {"zh_mo", "cht"}, {"zh_sg", "chs"}, {"es_419", "esn"}, {"pt", "ptg"},
        {"no", "nor"},    {"nn_no", "nor"}, {"fi_fi", "enu"}, {"", "enu"},
    };
    for (const auto &[locale, code] : rows) {
        const QString name = QString::fromLatin1(locale);
        EXPECT_EQ(code, TarnLocale::languageForLocale(name).toStdString()) << locale;
    }
}

TEST(TarnLocale, TheSystemChoosesAmongAllLanguages) {
    // In the order of their IDs.
    const std::string plist = ReadFile(SOURCES "/packaging/bundle/Info.plist.in");
    const QRegularExpression item(QStringLiteral("\n        <string>([^<]+)"));
    QStringList codes;
    for (auto found = item.globalMatch(QString::fromStdString(plist)); found.hasNext();) {
        const QString name = QLocale(found.next().captured(1)).name();
        codes += TarnLocale::languageForLocale(name.toLower());
    }
    EXPECT_EQ(TarnLocale::getSupportedLanguages(), codes);
    EXPECT_EQ("csy", TarnLocale::getLanguageAbbrByID(19).toStdString());
    EXPECT_EQ("", TarnLocale::getLanguageAbbrByID(20).toStdString());
}

}  // namespace
