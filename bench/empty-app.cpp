// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <QTimer>
#include <cstring>
#include <memory>

#include "launch-services.h"
#include "progress-dialog.h"
#include "str-table.h"

// usage: empty-app [hidden|shown]
// The least that a start can cost: an application object and an event loop that opens the client in
// the home folder and quits. "hidden" also creates the launcher's dialog; "shown" shows it for half
// a second instead of opening the client. The program lies beside the launcher to use its plug-ins.
int main(int argc, char **argv) {
    QCoreApplication::setLibraryPaths({QDir::cleanPath(
        QString::fromLocal8Bit(argv[0]) + QStringLiteral("/../../Frameworks/plugins"))});
    QApplication app(argc, argv);
    const char *const mode = argc > 1 ? argv[1] : "";
    std::unique_ptr<ProcessingProgressDialog> dialog;
    if (*mode != '\0') {
        StrTable::InitStrTable();
        dialog = std::make_unique<ProcessingProgressDialog>();
    }
    if (std::strcmp(mode, "shown") == 0) {
        dialog->show();
        QTimer::singleShot(500, &app, &QApplication::quit);
        return QApplication::exec();
    }
    QTimer::singleShot(0, &app, [] {
        LaunchServices::OpenBundle(QDir::homePath() +
                                   QStringLiteral("/.LumarisBackup/Lumaris.app"));
        QApplication::quit();
    });
    return QApplication::exec();
}
