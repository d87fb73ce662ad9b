#include <QProcess>
#include <QString>

#include "launch-services.h"

namespace LaunchServices {

int UnregisterBundle(const QString & /*bundle*/) {
    return 0;  // No registry of bundles: there is nothing to forget.
}

bool OpenBundle(const QString &bundle) {
    QProcess client;
    client.setProgram(bundle + QStringLiteral("/Contents/MacOS/lumaris-backup-ui"));
    // The client outlives the launcher; it must not hold the launcher's output open.
    client.setStandardInputFile(QProcess::nullDevice());
    client.setStandardOutputFile(QProcess::nullDevice());
    client.setStandardErrorFile(QProcess::nullDevice());
    return client.startDetached();  // in a session of its own
}

}  // namespace LaunchServices
