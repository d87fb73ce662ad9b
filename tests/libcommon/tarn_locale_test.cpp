// SPDX-License-Identifier: MIT
#include "tarn-locale.h"

#include <gtest/gtest.h>

#include <QString>

namespace {

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
