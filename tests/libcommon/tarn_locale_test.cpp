// SPDX-License-Identifier: MIT
#include "tarn-locale.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDirIterator>
#include <QFileInfo>
#include <cstdlib>

int qInitResources_texts();
int qCleanupResources_texts();

namespace {

/// The language chosen under that system locale. The toolkit reads the locale once a process, so
/// each name gets a process of its own, which answers with the language's ID.
std::string LanguageUnder(const char *locale, bool embedded = true) {
    const pid_t child = fork();
    if (child == 0) {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        setenv("LC_ALL", locale, 1);
        unsetenv("LANGUAGE");
        while (!embedded && QFile::exists(QStringLiteral(":/enu.qm"))) {
            qCleanupResources_texts();
        }
        const QString code = TarnLocale::getDefaultLanguage();
        _exit(static_cast<int>(TarnLocale::getSupportedLanguages().indexOf(code)));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return TarnLocale::getLanguageAbbrByID(WEXITSTATUS(status)).toStdString();
}

TEST(TarnLocale, LanguageForLocale) {
    qInitResources_texts();
    const char *const cases[][2] = {
        {"en_US.UTF-8", "enu"}, {"zh_TW", "cht"}, {"zh_Hant_HK", "cht"}, {"zh_MO", "cht"},
        {"zh_Hans_SG", "chs"},  {"zh", "chs"},    {"ja", "jpn"},         {"de_CH@euro", "deu"},
        {"ko_KR", "krn"},       {"fr_CA", "fra"}, {"it_IT", "ita"},      {"es_419", "esn"},
        {"pt_BR", "ptb"},       {"pt_PT", "ptg"}, {"pt_AO", "ptb"},      {"ru_RU.KOI8-R", "rus"},
        {"da_DK", "dan"},       {"nb_NO", "nor"}, {"nn_NO", "nor"},      {"sv_FI", "sve"},
        {"nl_BE", "nld"},       {"pl_PL", "plk"}, {"hu_HU", "hun"},      {"tr_TR", "trk"},
        {"cs_CZ", "csy"},       {"fi_FI", "enu"}, {"nonsense", "enu"},
    };
    for (const auto &[locale, code] : cases) {
        EXPECT_EQ(code, LanguageUnder(locale)) << locale;
    }
    EXPECT_EQ("enu", LanguageUnder("de_DE", false));
    // macOS gives a name without a country where Linux adds the likeliest.
    EXPECT_EQ("ptg", TarnLocale::languageForLocale(QStringLiteral("pt")).toStdString());
    EXPECT_EQ("nor", TarnLocale::languageForLocale(QStringLiteral("no")).toStdString());
}

TEST(TarnLocale, CodesAndCatalogues) {
    qInitResources_texts();
    // Not sorted by QDir, which would settle the locale for the other test.
    QStringList catalogues, codes = TarnLocale::getSupportedLanguages();
    for (QDirIterator file(QStringLiteral(":/"), {QStringLiteral("*.qm")}); file.hasNext();) {
        catalogues += QFileInfo(file.next()).baseName();
    }
    catalogues.sort();
    for (int id = -1; id <= 20; ++id) {
        EXPECT_EQ(codes.value(id), TarnLocale::getLanguageAbbrByID(id)) << id;
    }
    EXPECT_EQ("enu", codes.first().toStdString());
    codes.sort();
    EXPECT_EQ(codes, catalogues);
    EXPECT_EQ(20, codes.size());
    EXPECT_FALSE(TarnLocale::isLanguageInstalled(QString()));
    EXPECT_FALSE(TarnLocale::isLanguageInstalled(QStringLiteral("fin")));
}

}  // namespace
