#include "tarn-locale.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
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
    const struct {
        const char *locale, *code;
    } cases[] = {
        {"en_US.UTF-8", "enu"}, {"en_GB", "enu"},      {"en_AU", "enu"},
        {"zh_TW", "cht"},       {"zh_HK", "cht"},      {"zh_MO", "cht"},
        {"zh_Hant_TW", "cht"},  {"zh_Hant_HK", "cht"}, {"zh_CN", "chs"},
        {"zh_SG", "chs"},       {"zh_Hans_CN", "chs"}, {"zh_Hans_SG", "chs"},
        {"zh", "chs"},          {"ja_JP", "jpn"},      {"ja", "jpn"},
        {"de_DE.UTF-8", "deu"}, {"de_AT", "deu"},      {"de_CH@euro", "deu"},
        {"ko_KR", "krn"},       {"fr_FR", "fra"},      {"fr_CA", "fra"},
        {"fr_CH", "fra"},       {"it_IT", "ita"},      {"es_ES", "esn"},
        {"es_MX", "esn"},       {"es_419", "esn"},     {"pt_BR", "ptb"},
        {"pt_PT", "ptg"},       {"pt_AO", "ptb"},      {"ru_RU.KOI8-R", "rus"},
        {"da_DK", "dan"},       {"nb_NO", "nor"},      {"nn_NO", "nor"},
        {"no_NO", "nor"},       {"sv_SE", "sve"},      {"sv_FI", "sve"},
        {"nl_NL", "nld"},       {"nl_BE", "nld"},      {"pl_PL", "plk"},
        {"hu_HU", "hun"},       {"tr_TR", "trk"},      {"cs_CZ", "csy"},
        {"fi_FI", "enu"},       {"sr_Latn_RS", "enu"}, {"uk_UA", "enu"},
        {"C", "enu"},           {"POSIX", "enu"},      {"nonsense", "enu"},
    };
    for (const auto &row : cases)
        EXPECT_EQ(row.code, LanguageUnder(row.locale)) << row.locale;
}

TEST(TarnLocale, FallsBackToEnglishWithoutCatalogue) {
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
