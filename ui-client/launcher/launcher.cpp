// SPDX-License-Identifier: MIT
#include "launcher.h"

#include <QApplication>
#include <QKeyEvent>

#include "notify-adapter.h"
#include "progress-dialog.h"
#include "worker.h"

Launcher::Launcher() : QObject(nullptr), worker(new Worker), dialog(new ProcessingProgressDialog) {
    dialog->setCancelButton(nullptr);
    dialog->setAutoReset(false);

    // The run ends with LaunchDone, not when the window closes.
    QApplication::setQuitOnLastWindowClosed(false);
    qApp->installEventFilter(this);

    Notify_Adapter *relay = &Notify_Adapter::GetInstance();
    connect(this, &Launcher::sigStart, worker, &Worker::HandleServicce);
    connect(worker, &Worker::sigShowMsg, this, &Launcher::ShowMsgBox);
    connect(worker, &Worker::sigServiceDone, this, &Launcher::LaunchDone);
    connect(worker, &Worker::sigUpdateProgress, this, &Launcher::UpdateProgress);
    connect(worker, &Worker::sigSetLabelText, this, &Launcher::SetLabelText);
    connect(relay, &Notify_Adapter::sigUpdateProgress, this, &Launcher::UpdateProgress);
    connect(relay, &Notify_Adapter::sigUpdateDialogText, this, &Launcher::SetLabelText);
}

Launcher::~Launcher() {
    worker->QuitThread();
    worker->JoinThread();
    delete worker;
    delete dialog;
}

bool Launcher::eventFilter(QObject *watched, QEvent *event) {
    // When the system asks the application to quit, for example at log-out, Qt closes all windows.
    // A window that stayed visible would block the log-out.
    if (watched == qApp) {
        if (event->type() == QEvent::Close || event->type() == QEvent::Quit) {
            dialog->hide();
        }
        return false;
    }
    const bool escape = event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel);
    if (watched == dialog && (escape || event->type() == QEvent::Close)) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void Launcher::Run() {
    if (!worker->StartThread()) {
        QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
    }
}

void Launcher::Start() {
    Q_EMIT sigStart();
}

void Launcher::LaunchDone() {
    dialog->setValue(100);
    dialog->hide();
    worker->QuitThread();
    worker->JoinThread();
    QCoreApplication::quit();
}

void Launcher::UpdateProgress(int total, int steps) {
    // 64 bits: a package may hold more than INT_MAX / 100 entries.
    dialog->setValue(static_cast<int>(qint64(steps) * 100 / total));
}

void Launcher::SetLabelText(QString text) {
    dialog->setLabelText(text);
}

void Launcher::ShowMsgBox() {
    dialog->show();
}
