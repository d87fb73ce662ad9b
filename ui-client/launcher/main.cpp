// SPDX-License-Identifier: MIT
#include <signal.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QString>
#include <QTranslator>
#include <clocale>
#include <cstdio>

#include "launcher.h"
#include "log-macros.h"
#include "lumaris-service.h"
#include "qt-text.h"
#include "qtsingleapplication.h"
#include "str-table.h"
#include "tarn-locale.h"

#define LOG_MODULE "main"
static const ustring LOG_COMPONENT("launcher_debug");

int qInitResources_texts();

namespace {

/// A write beyond the file size limit, or into a pipe that nobody reads, sends a signal that would
/// kill the launcher in the middle of an upgrade. Without it the write fails with an error, which
/// every writer here handles.
void IgnoreWriteSignals() {
    signal(SIGXFSZ, SIG_IGN);
    signal(SIGPIPE, SIG_IGN);
}

/// Makes Qt load plug-ins from the bundle only, and never from the system.
void SetPluginPath(const char *executable) {
    const QString path = QDir::cleanPath(QString::fromLocal8Bit(executable) +
                                         QStringLiteral("/../../Frameworks/plugins"));
    QCoreApplication::setLibraryPaths({path});
    printf("lib path = '%s'\n", path.toUtf8().constData());
    fflush(stdout);
}

/// Makes a folder and its parents, never writable for other users, whatever the umask: whoever can
/// write to the per-user folder decides which program the user starts.
bool MakeFolder(const QString &path) {
    const mode_t mask = umask(0);
    umask(mask | S_IWGRP | S_IWOTH);
    const bool made = QDir().mkpath(path);
    umask(mask);
    return made;
}

void OpenLog() {
    const ustring levelFile = Service::GetRootLumarisInstallPath() + "/log/launcher.debug";
    const ustring logFolder = Service::GetUserLumarisInstallPath() + "/log";
    if (!MakeFolder(ToQString(logFolder))) {
        return;  // Errors and warnings go to standard error then.
    }
    Logger::Initialize(Logger::TYPE_FILE, logFolder + "/launcher.log", levelFile,
                       Logger::rotate_cnt);
}

/// Installs the user's language; without a catalogue the texts stay English.
void InstallTranslation(QTranslator &translator) {
    const QString catalogue =
        QStringLiteral(":/") + TarnLocale::getDefaultLanguage() + QStringLiteral(".qm");
    if (translator.load(catalogue) && !translator.isEmpty()) {
        QCoreApplication::installTranslator(&translator);
    }
}

}  // namespace

int main(int argc, char **argv) {
    IgnoreWriteSignals();
    setlocale(LC_ALL, "");
    qInitResources_texts();
    SetPluginPath(argv[0]);

    QtSingleApplication app(argc, argv, true);
    OpenLog();
    if (app.isRunning()) {
        MSG_DEBUG("app has already launched, return\n");
        return 0;
    }

    QTranslator translator;
    InstallTranslation(translator);
    StrTable::InitStrTable();  // before the launcher, whose dialog asks for texts

    Launcher *launcher = new Launcher;
    launcher->Run();
    launcher->Start();
    const int result = QApplication::exec();
    delete launcher;
    return result;
}
