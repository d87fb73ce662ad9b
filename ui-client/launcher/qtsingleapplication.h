#pragma once

#include <QApplication>
#include <QLockFile>
#include <QString>

/// An application of which one instance runs per executable and user.
///
/// Stand-in for the Qt Solutions component of this name, reduced to what the launcher asks: the
/// lock is a QLockFile in the temporary folder. GUI thread.
class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    QtSingleApplication(int &argc, char **argv, bool GUIenabled = true);

    /// True when another living process holds the lock; otherwise this process holds it from now
    /// on. A lock that cannot be taken for any other reason, such as a temporary folder that is not
    /// writable, keeps nobody from running.
    bool isRunning();

private:
    bool HeldByLivingProcess() const;

    const QString lockName;
    QLockFile lock;
};
