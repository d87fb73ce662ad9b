// SPDX-License-Identifier: MIT
#include "install-paths.h"

#include <QCoreApplication>
#include <QDir>

#include "client-layout.h"
#include "qt-text.h"

namespace InstallPaths {

ustring Home() {
    return ToUString(QDir::homePath());
}

ustring UserFolder() {
    return Home() + "/" + ".LumarisBackup";
}

ustring UserBundle() {
    return UserFolder() + "/" + kClientBundle;
}

ustring UserData() {
    return UserFolder() + "/" + "data";
}

ustring ApplicationFolder() {
    return ToUString(QCoreApplication::applicationDirPath());
}

ustring LauncherBundle() {
    return ToUString(
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../..")));
}

ustring LauncherResources() {
    return LauncherBundle() + "/" + kResources;
}

}  // namespace InstallPaths
