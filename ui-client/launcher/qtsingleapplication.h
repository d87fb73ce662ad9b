// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QString>

/// An application of which one instance runs per executable and user.
///
/// Stand-in for the Qt Solutions component of this name, reduced to what the launcher asks: a file
/// in the temporary folder that the running instance keeps locked (flock(2)). The kernel drops the
/// lock when its holder ends, however it ends, so the file is never removed and never stale.
/// GUI thread.
class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    QtSingleApplication(int &argc, char **argv, bool GUIenabled = true);
    ~QtSingleApplication() override;

    /// True when another process holds the lock; otherwise this process holds it from now on. A
    /// lock file that cannot be used, such as one of another user, keeps nobody from running.
    bool isRunning();

private:
    int lock = -1;  // descriptor of the lock file; holds the lock while it is open
};
