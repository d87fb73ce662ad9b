#include <QApplication>
#include <QDir>
#include <QTimer>

#include "launch-services.h"
#include "progress-dialog.h"
#include "str-table.h"

// usage: empty-app [dialog]
// What every start costs at least: an application object and an event loop that opens the client of
// the home folder, or shows the launcher's dialog for a moment, and ends. It lies beside the
// launcher and so uses the same plug-ins.
int main(int argc, char **argv) {
    QCoreApplication::setLibraryPaths({QDir::cleanPath(
        QString::fromLocal8Bit(argv[0]) + QStringLiteral("/../../Frameworks/plugins"))});
    QApplication app(argc, argv);
    if (argc > 1) {
        StrTable::InitStrTable();
        ProcessingProgressDialog dialog;
        dialog.show();
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
