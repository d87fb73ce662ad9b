#include "qtsingleapplication.h"

#include <signal.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QThread>
#include <limits>

namespace {

/// Named from the executable's path and the user id, like the component's own lock.
QString LockName(const QString &executable) {
    const QByteArray id =
        QCryptographicHash::hash(executable.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
    return QStringLiteral("%1/qtsingleapp-launcher-%2-%3-lockfile")
        .arg(QDir::tempPath(), QString::fromLatin1(id))
        .arg(getuid(), 0, 16);
}

}  // namespace

QtSingleApplication::QtSingleApplication(int &argc, char **argv, bool GUIenabled)
    : QApplication(argc, argv, GUIenabled ? ApplicationFlags : 0),
      lockName(LockName(applicationFilePath())),
      lock(lockName) {
    // A holder may take its time (a large package): only its death makes the lock stale.
    lock.setStaleLockTime(0);
}

/// False for a lock file that names a dead process or nobody (its holder was killed while writing
/// it), and for one that another user has put there.
bool QtSingleApplication::HeldByLivingProcess() const {
    qint64 pid = 0;
    QString host, application;
    if (QFileInfo(lockName).ownerId() != getuid() || !lock.getLockInfo(&pid, &host, &application) ||
        pid <= 0 || pid > std::numeric_limits<pid_t>::max())
        return false;
    return kill(static_cast<pid_t>(pid), 0) == 0;
}

bool QtSingleApplication::isRunning() {
    // A holder that has just created the file needs a moment to write its name into it.
    for (int attempt = 0; attempt < 10; ++attempt) {
        if (lock.isLocked() || lock.tryLock(0))
            return false;
        if (lock.error() != QLockFile::LockFailedError)
            return false;
        if (HeldByLivingProcess())
            return true;
        QThread::msleep(50);
    }
    // Nobody's: an empty file left by a killed holder would block every later start.
    lock.removeStaleLockFile();
    lock.tryLock(0);
    return !lock.isLocked() && HeldByLivingProcess();
}
