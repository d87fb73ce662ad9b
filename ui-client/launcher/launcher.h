// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class ProcessingProgressDialog;
class Worker;

/// Controller on the GUI thread: owns the dialog and the worker, turns the worker's signals into
/// changes of the dialog and ends the event loop when the service run is done.
class Launcher : public QObject {
    Q_OBJECT

public:
    Launcher();
    /// Waits for the worker thread: the desktop may end the event loop before `LaunchDone` does,
    /// and a run that has begun must still finish.
    ~Launcher() override;

    /// Starts the worker thread; called once. If that fails, the event loop ends at once.
    void Run();
    /// Requests the service run; called once, after `Run`.
    void Start();

Q_SIGNALS:
    void sigStart();

private Q_SLOTS:
    /// Hides the dialog, joins the worker thread and quits the event loop.
    void LaunchDone();
    /// `total` is greater than 0.
    void UpdateProgress(int total, int steps);
    void SetLabelText(QString text);
    void ShowMsgBox();

private:
    /// Keeps the user from closing the dialog, since nothing can be cancelled, and hides it when
    /// the application is asked to quit. The run continues in both cases.
    bool eventFilter(QObject *watched, QEvent *event) override;

    Worker *worker;                    // owned
    ProcessingProgressDialog *dialog;  // owned
};
