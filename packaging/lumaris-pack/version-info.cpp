#include "version-info.h"

#include <QFile>
#include <QSettings>
#include <QString>

#include "package-rules.h"

std::string InfoText(const VersionInfo &version) {
    std::string text = "[Version]\n";
    for (std::size_t i = 0; i < version.size(); ++i) {
        text += std::string(kVersionKeys[i]) + "=" + version[i] + "\n";
    }
    return text;
}

std::string InfoDifference(const std::string &path, const VersionInfo &version) {
    QSettings info(QFile::decodeName(path.c_str()), QSettings::IniFormat);
    if (info.status() != QSettings::NoError) {
        return "cannot be read as an INI file";
    }
    info.beginGroup(QStringLiteral("Version"));
    for (std::size_t i = 0; i < version.size(); ++i) {
        const QString key = QLatin1String(kVersionKeys[i]);
        const std::string found = info.value(key).toString().toStdString();
        if (found != version[i]) {
            return "has " + key.toStdString() + " " + Quoted(found) + ", the package would have " +
                   Quoted(version[i]);
        }
    }
    return {};
}
