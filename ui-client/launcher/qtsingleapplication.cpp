// SPDX-License-Identifier: MIT
#include "qtsingleapplication.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <cerrno>

namespace {

/// Built from the executable's path and the user id, like the lock file of the original component.
QByteArray LockName(const QString &executable) {
    const QByteArray id =
        QCryptographicHash::hash(executable.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
    return QFile::encodeName(QStringLiteral("%1/qtsingleapp-launcher-%2-%3-lockfile")
                                 .arg(QDir::tempPath(), QString::fromLatin1(id))
                                 .arg(getuid(), 0, 16));
}

/// Opens the lock file and creates it if it is missing. Returns its descriptor, or -1. Everybody
/// can write to the temporary folder, so a link or a pipe may have this name. A file that another
/// user owns, or has hard-linked, is refused as well: that user could lock it.
int OpenLock(const QByteArray &name) {
    const int flags = O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    const int file = open(name.constData(), flags, S_IRUSR | S_IWUSR);
    struct stat info;
    if (file >= 0 && (fstat(file, &info) != 0 || info.st_uid != getuid() || info.st_nlink > 1)) {
        close(file);
        return -1;
    }
    return file;
}

}  // namespace

QtSingleApplication::QtSingleApplication(int &argc, char **argv, bool GUIenabled)
    : QApplication(argc, argv, GUIenabled ? ApplicationFlags : 0) {}

QtSingleApplication::~QtSingleApplication() {
    if (lock >= 0) {
        close(lock);
    }
}

bool QtSingleApplication::isRunning() {
    if (lock >= 0) {
        return false;
    }
    lock = OpenLock(LockName(applicationFilePath()));
    if (lock < 0 || flock(lock, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) {
        return false;
    }
    close(lock);
    lock = -1;
    return true;
}
