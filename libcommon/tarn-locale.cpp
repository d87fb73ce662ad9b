// SPDX-License-Identifier: MIT
#include "tarn-locale.h"

#include <QDebug>
#include <QFile>
#include <QLocale>
#include <QMap>
#include <iterator>

// Writes an expression with its file and line to Qt's debug channel, not to the log.
#define TRACE_VALUE(format, value) \
    QMessageLogger().debug("%s:%d %s=" format, __FILE__, __LINE__, #value, value)

namespace TarnLocale {

namespace {

const char *const grgszLanguages[] = {
    "enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",   "rus",
    "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy", nullptr,
};
constexpr int kLanguageCount = int(std::size(grgszLanguages)) - 1;

const QString qstrLanguageFallSafe = QStringLiteral("enu");

/// The code for an ISO 639-1 language. `languageForLocale` handles the countries that differ.
QString codeForLanguage(const QString &language) {
    const QMap<QString, QString> table = {
        {QStringLiteral("en"), QStringLiteral("enu")},
        {QStringLiteral("zh"), QStringLiteral("chs")},
        {QStringLiteral("ja"), QStringLiteral("jpn")},
        {QStringLiteral("de"), QStringLiteral("deu")},
        {QStringLiteral("ko"), QStringLiteral("krn")},
        {QStringLiteral("fr"), QStringLiteral("fra")},
        {QStringLiteral("it"), QStringLiteral("ita")},
        {QStringLiteral("es"), QStringLiteral("esn")},
        {QStringLiteral("pt"), QStringLiteral("ptb")},
        {QStringLiteral("ru"), QStringLiteral("rus")},
        {QStringLiteral("da"), QStringLiteral("dan")},
        {QStringLiteral("no"), QStringLiteral("nor")},
        {QStringLiteral("nb"), QStringLiteral("nor")},
        {QStringLiteral("nn"), QStringLiteral("nor")},
        {QStringLiteral("sv"), QStringLiteral("sve")},
        {QStringLiteral("nl"), QStringLiteral("nld")},
        {QStringLiteral("pl"), QStringLiteral("plk")},
        {QStringLiteral("hu"), QStringLiteral("hun")},
        {QStringLiteral("tr"), QStringLiteral("trk")},
        {QStringLiteral("cs"), QStringLiteral("csy")},
    };
    return table.value(language, table.value(QStringLiteral("en")));
}

}  // namespace

QString languageForLocale(const QString &locale) {
    static const QStringList traditionalChinese = {QStringLiteral("zh_tw"), QStringLiteral("zh_hk"),
                                                   QStringLiteral("zh_mo")};
    static const QStringList europeanPortuguese = {QStringLiteral("pt"), QStringLiteral("pt_pt")};

    if (traditionalChinese.contains(locale)) {
        return QStringLiteral("cht");
    }
    if (europeanPortuguese.contains(locale)) {
        return QStringLiteral("ptg");
    }
    return codeForLanguage(locale.section(QLatin1Char('_'), 0, 0));
}

QString getDefaultLanguage() {
    const QString qstrLocaleLower = QLocale::system().name().toLower();
    TRACE_VALUE("[%s\n] ", qPrintable(qstrLocaleLower));
    TRACE_VALUE("[%s] ", qPrintable(qstrLocaleLower));

    QString qstrDef = languageForLocale(qstrLocaleLower);
    if (!isLanguageInstalled(qstrDef)) {
        qstrDef = qstrLanguageFallSafe;
    }
    TRACE_VALUE("[%s\n] ", qPrintable(qstrDef));
    return qstrDef;
}

bool isLanguageInstalled(const QString &code) {
    const QString qstrLangFileName = QStringLiteral(":/") + code + QStringLiteral(".qm");
    if (!QFile::exists(qstrLangFileName)) {
        return false;
    }
    TRACE_VALUE("[%s\n] ", qPrintable(qstrLangFileName));
    return true;
}

QStringList getSupportedLanguages() {
    QStringList codes;
    for (int id = 0; id < kLanguageCount; ++id) {
        codes += QString::fromLatin1(grgszLanguages[id]);
    }
    return codes;
}

QString getStrLanguageFallSafe() {
    return qstrLanguageFallSafe;
}

QString getLanguageAbbrByID(int id) {
    if (id < 0 || id >= kLanguageCount) {
        return QString();
    }
    return QString::fromLatin1(grgszLanguages[id]);
}

}  // namespace TarnLocale
