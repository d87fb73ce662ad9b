// SPDX-License-Identifier: MIT
#include <QDesktopServices>
#include <QProcess>
#include <QStringList>
#include <QUrl>

#include "launch-services.h"

namespace LaunchServices {

int UnregisterBundle(const QString &bundle) {
    const QString tool = QStringLiteral(
        "/System/Library/Frameworks/CoreServices.framework/Frameworks/"
        "LaunchServices.framework/Support/lsregister");
    return QProcess::execute(tool, {QStringLiteral("-u"), bundle});
}

bool OpenBundle(const QString &bundle) {
    // Opening registers the bundle again.
    return QDesktopServices::openUrl(QUrl::fromLocalFile(bundle));
}

}  // namespace LaunchServices
