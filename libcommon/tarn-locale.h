// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Which of the twenty languages the user interface speaks. Any thread; nothing fails.
namespace TarnLocale {

/// Code of the language that fits the system locale and is embedded; "enu" when none does.
QString getDefaultLanguage();

/// Code of the language for a locale name in lower case, such as "zh_tw" or "pt", whether or not it
/// is embedded. Which names a system gives differs.
QString languageForLocale(const QString &locale);

/// True when a translation for `code` is embedded in the program.
bool isLanguageInstalled(const QString &code);

/// The twenty codes in the order of their IDs.
QStringList getSupportedLanguages();

/// The language used when no better one is installed: "enu".
QString getStrLanguageFallSafe();

/// The code with that ID (0 to 19), otherwise an empty string.
QString getLanguageAbbrByID(int id);

}  // namespace TarnLocale
