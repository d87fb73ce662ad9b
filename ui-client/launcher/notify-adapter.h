// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

/// Relay for worker-side code that holds no reference to the GUI.
///
/// Its operations are called on the worker thread; receivers on the GUI thread get them queued, so
/// the caller never waits. First used, and so created, on the GUI thread; lives until exit.
class Notify_Adapter : public QObject {
    Q_OBJECT

public:
    static Notify_Adapter &GetInstance();

    /// `total` is greater than 0, `current` runs from 1 to `total`.
    void UpdateProgress(int total, int current);
    void UpdateDialogText(QString text);

Q_SIGNALS:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString);

private:
    Notify_Adapter() = default;
};
