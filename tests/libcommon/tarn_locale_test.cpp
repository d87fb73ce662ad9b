#include "tarn-locale.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <cstdlib>
#include <sstream>

int qInitResources_texts();
int qCleanupResources_texts();

namespace {

/// The language chosen under that system locale. The toolkit reads the locale once a process, so
/// each name gets a process of its own, which answers with the language's ID.
std::string LanguageUnder(const char *locale, bool embedded = true) {
    const pid_t child = fork();
    if (child == 0) {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        if (!embedded)
            while (QFile::exists(QStringLiteral(":/enu.qm")))
                qCleanupResources_texts();
        setenv("LC_ALL", locale, 1);
        unsetenv("LANGUAGE");
        const QString code = TarnLocale::getDefaultLanguage();
        _exit(TarnLocale::getSupportedLanguages().indexOf(code));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return TarnLocale::getLanguageAbbrByID(WEXITSTATUS(status)).toStdString();
}

TEST(TarnLocale, LanguageForLocale) {
    qInitResources_texts();
    const char *const cases[][2] = {
        {"enu", "en_US.UTF-8 en_GB fi_FI sr_Latn_RS C POSIX nonsense"},
        {"cht", "zh_TW zh_HK zh_MO zh_Hant_TW zh_Hant_HK"},
        {"chs", "zh_CN zh_SG zh_Hans_CN zh"},
        {"jpn", "ja_JP ja"},
        {"deu", "de_DE.UTF-8 de_AT de_CH@euro"},
        {"krn", "ko_KR"},
        {"fra", "fr_FR fr_CA"},
        {"ita", "it_IT"},
        {"esn", "es_ES es_MX es_419"},
        {"ptb", "pt_BR pt_AO"},
        {"ptg", "pt_PT"},
        {"rus", "ru_RU.KOI8-R"},
        {"dan", "da_DK"},
        {"nor", "nb_NO nn_NO no_NO"},
        {"sve", "sv_SE sv_FI"},
        {"nld", "nl_NL nl_BE"},
        {"plk", "pl_PL"},
        {"hun", "hu_HU"},
        {"trk", "tr_TR"},
        {"csy", "cs_CZ"},
    };
    for (const auto &[code, locales] : cases) {
        std::istringstream names(locales);
        for (std::string locale; names >> locale;)
            EXPECT_EQ(code, LanguageUnder(locale.c_str())) << locale;
    }
    EXPECT_EQ("enu", LanguageUnder("de_DE", false));
}

TEST(TarnLocale, CodesAndCatalogues) {
    const QStringList codes = TarnLocale::getSupportedLanguages();
    ASSERT_EQ(20, codes.size());
    for (int id = 0; id < codes.size(); ++id)
        EXPECT_EQ(codes[id], TarnLocale::getLanguageAbbrByID(id));
    EXPECT_EQ("enu", codes.first().toStdString());
    EXPECT_EQ("ptg", codes[17].toStdString());
    EXPECT_EQ("csy", codes.last().toStdString());
    EXPECT_TRUE(TarnLocale::getLanguageAbbrByID(20).isEmpty());
    EXPECT_TRUE(TarnLocale::getLanguageAbbrByID(-1).isEmpty());

    QStringList files;
    for (const QString &code : codes) {
        EXPECT_TRUE(TarnLocale::isLanguageInstalled(code)) << qPrintable(code);
        files += code + QStringLiteral(".qm");
    }
    files.sort();
    EXPECT_EQ(files, QDir(QStringLiteral(":/")).entryList({QStringLiteral("*.qm")}));
    for (const char *code : {"", "fin", "ENU"})
        EXPECT_FALSE(TarnLocale::isLanguageInstalled(QString::fromLatin1(code))) << code;
}

}  // namespace
