// SPDX-License-Identifier: MIT
#include "version-info.h"

#include <QFile>

#include "package-rules.h"

std::string InfoText(const VersionInfo &version) {
    std::string text = "[Version]\n";
    for (std::size_t i = 0; i < version.size(); ++i) {
        text += std::string(kVersionKeys[i]) + "=" + version[i] + "\n";
    }
    return text;
}

std::string InfoDifference(const std::string &path, const VersionInfo &version) {
    InfoTexts texts;
    if (ReadInfoFile(QFile::decodeName(path.c_str()), texts) != 0) {
        return "holds a serialized object, for which the launcher ignores it";
    }
    for (std::size_t i = 0; i < version.size(); ++i) {
        const std::string found = texts[i] ? texts[i]->toStdString() : std::string();
        if (found != version[i]) {
            return "has " + std::string(kVersionKeys[i]) + " " + Quoted(found) +
                   ", the package would have " + Quoted(version[i]);
        }
    }
    return {};
}
