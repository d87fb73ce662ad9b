// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Chooses among the twenty languages of the user interface. Any thread; nothing fails.
namespace TarnLocale {

/// The code of the embedded language that fits the system locale; "enu" when there is none.
QString getDefaultLanguage();

/// The code for a locale name in lower case, with or without a country ("zh_tw", "pt"), since
/// systems differ in what they report. The language need not be embedded.
QString languageForLocale(const QString &locale);

/// Whether a translation for `code` is embedded in the program.
bool isLanguageInstalled(const QString &code);

/// The twenty codes in the order of their IDs.
QStringList getSupportedLanguages();

/// The language used when no better one is installed: "enu".
QString getStrLanguageFallSafe();

/// The code with that ID (0 to 19), otherwise an empty string.
QString getLanguageAbbrByID(int id);

}  // namespace TarnLocale
