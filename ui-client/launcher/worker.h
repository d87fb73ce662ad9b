// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QThread>

class Service;

/// A thread that runs an event loop and nothing else.
class HandlerThread : public QThread {
    Q_OBJECT

protected:
    void run() override;
};

/// Carries out the whole service run in one slot, on its own thread, and reports only by signals.
///
/// Created and destroyed on the GUI thread; destroyed only after `JoinThread`.
class Worker : public QObject {
    Q_OBJECT

public:
    Worker();
    ~Worker() override;

    /// False when the thread cannot be started; the failure is logged.
    bool StartThread();
    /// Asks the thread's event loop to end; does not wait.
    void QuitThread();
    /// Waits for the thread to end, without a time limit.
    void JoinThread();

Q_SIGNALS:
    void sigServiceDone();
    void sigShowMsg();
    void sigUpdateProgress(int, int);
    void sigSetLabelText(QString);

private Q_SLOTS:
    /// The service run, on the worker thread; ends with `sigServiceDone` whatever happened.
    void HandleServicce();

private:
    friend class Launcher;  // connects its start signal to the slot

    /// The run itself, with the per-user folder locked.
    void Serve();
    void Upgrade();

    HandlerThread *thread;  // owned
    Service *service;       // owned; used on the worker thread only
};
