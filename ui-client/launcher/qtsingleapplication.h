// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QString>

/// An application that runs once per executable and user.
///
/// Stand-in for the Qt Solutions component of this name, reduced to what the launcher needs: the
/// running instance locks a file in the temporary folder (flock(2)). The kernel drops the lock when
/// its holder ends, however it ends, so the file is never removed and never stale.
/// GUI thread.
class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    QtSingleApplication(int &argc, char **argv, bool GUIenabled = true);
    ~QtSingleApplication() override;

    /// True when another process holds the lock. Otherwise takes it; a lock file that cannot be
    /// used, such as one of another user, does not keep the application from running.
    bool isRunning();

private:
    int lock = -1;  // descriptor of the lock file; holds the lock while it is open
};
