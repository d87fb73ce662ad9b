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
// What every start costs at least: an application object and an event loop that opens the client of
// the home folder and ends, with or without the launcher's dialog hidden; or one that shows the
// dialog for a moment. It lies beside the launcher and so uses the same plug-ins.
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
